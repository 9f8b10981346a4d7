#include "energy/Heizsysteme.h"

#include "toolkit/fehler.h"
#include "toolkit/wort.h"

#include <array>
#include <cstddef>

namespace velmaris {
namespace {

/// A row of the catalogue; a text is empty where there is no such choice.
struct Katalogzeile {
    Wort bezeichnung;
    std::array<Wort, uebergaben> uebergabe;
    std::array<Wort, energietraeger_je_zeile> energietraeger;
};

constexpr Wort heizflaechen_70_55{
    "Heizflächen (Außenwand), Thermostatventile, Auslegungs- proportionalbereich: 1K, "
    "Systemtemperatur: 70/55°C",
    "radiators (outside walls), thermostatic valves (layout temperature: 1K), system temperature: 70/55°C"};
constexpr Wort heizflaechen_55_45{
    "Heizflächen (Außenwand), Thermostatventile, Auslegungs- proportionalbereich: 1K, "
    "Systemtemperatur: 55/45°C",
    "radiators (outside walls), thermostatic valves (layout temperature: 1K), system temperature: 55/45°C"};
constexpr Wort fussboden_35_28{
    "Integrierte Heizflächen (z.B. Fußbodenheizung), Schaltdifferenz: 1 K, Systemtemperatur: 35/28°C",
    "underfloor heating (switch difference : 1K), system temperature: 35/28°C"};

constexpr Wort heizoel{"Heizöl EL", "fuel oil"};
constexpr Wort erdgas{"Erdgas H", "natural gas"};
constexpr Wort holzpellets{"Holzpellets", "wool pellets"};
constexpr Wort stueckholz{"Stückholz", "firewood"};
constexpr Wort strom{"Strom", "electricity"};

constexpr std::array<Katalogzeile, heizsysteme> katalog{{
    {{"Niedertemperaturkessel, Kessel und Verteilleitungen innerhalb der thermischen Hülle",
      "low temperature burner, boiler and distribution inside the thermal zone"},
     {heizflaechen_70_55, fussboden_35_28},
     {heizoel, erdgas}},
    {{"Brennwertkessel, Kessel und Verteilleitungen innerhalb der thermischen Hülle",
      "condensing boiler, boiler and distribution inside the thermal zone"},
     {heizflaechen_70_55, fussboden_35_28},
     {heizoel, erdgas}},
    {{"Brennwertkessel (hocheffektiv), Kessel und Verteilleitungen innerhalb der thermischen Hülle",
      "condensing boiler (high efficiency), boiler and distribution inside the thermal zone"},
     {heizflaechen_70_55, fussboden_35_28},
     {heizoel, erdgas}},
    {{"Biomasse-Heizkessel, direkte und indirekte Wärmeabgabe, Kessel und Verteilleitungen innerhalb der "
      "thermischen Hülle",
      "biomass boiler, direct and indirect thermal output, boiler and distribution inside the thermal zone"},
     {heizflaechen_70_55, fussboden_35_28},
     {holzpellets, stueckholz}},
    {{"Biomasse-Heizkessel, indirekte Wärmeabgabe, Kessel und Verteilleitungen innerhalb der thermischen "
      "Hülle",
      "biomass boiler, indirect thermal output, boiler and distribution inside the thermal zone"},
     {heizflaechen_70_55, fussboden_35_28},
     {holzpellets}},
    {{"Nah- oder Fernwärme, Übergabe und Verteilleitungen innerhalb der thermischen Hülle",
      "district heat, boiler and distribution inside the thermal zone"},
     {heizflaechen_70_55, fussboden_35_28},
     {{{"Wärme aus Kraftwärmekopplung, fossiler Brennstoff",
        "heat from combined heat and power system, fossil fuels"},
       {"Wärme aus Kraftwärmekopplung, erneuerbarer Brennstoff",
        "heat from combined heat and power system, renew. energy"},
       {"Wärme aus Heizkraftwerken, fossiler Brennstoff", "heat from thermal power station, fossil fuels"},
       {"Wärme aus Heizkraftwerken, erneuerbarer Brennstoff",
        "heat from thermal power station, renewable energy"}}}},
    {{"Erdreich-Wärmepumpe, Pufferspeicher und Verteilleitungen innerhalb der thermischen Hülle",
      "soil heat pump, buffer storage and distribution inside the thermal zone"},
     {heizflaechen_55_45, fussboden_35_28},
     {strom}},
    {{"Elektro-Direktheizung", "electric direct heating"}, {}, {strom}},
    {{"Elektro-Speicherheizung", "electric storage heating"}, {}, {strom}},
}};

constexpr const Katalogzeile& zeile(int system) {
    return katalog.at(static_cast<std::size_t>(system - 1));
}

void index_pruefen(const std::string& feld, int wert, int letzter) {
    if (wert >= 1 && wert <= letzter) return;
    const std::string zahlen = " " + std::to_string(wert) + " (1 .. " + std::to_string(letzter) + ")";
    throw Laufzeitfehler({"kein Eintrag des Heizsystemkatalogs:" + zahlen,
                          "no entry of the catalogue of heating systems:" + zahlen},
                         feld);
}

}  // namespace

Heizsystemkatalog katalog_laden(std::string_view sprache) {
    Heizsystemkatalog ergebnis;
    for (int system = 1; system <= heizsysteme; ++system) {
        const Katalogzeile& quelle = zeile(system);
        Heizsystemzeile& ziel = ergebnis(system);
        ziel.Bezeichnung = quelle.bezeichnung.in(sprache);
        for (int u = 1; u <= uebergaben; ++u)
            ziel.Uebergabe(u) = quelle.uebergabe.at(static_cast<std::size_t>(u - 1)).in(sprache);
        for (int t = 1; t <= energietraeger_je_zeile; ++t)
            ziel.Energietraeger(t) = quelle.energietraeger.at(static_cast<std::size_t>(t - 1)).in(sprache);
    }
    return ergebnis;
}

bool ohne_uebergabe(int system) {
    return zeile(system).uebergabe.front().de.empty();
}

void kombination_pruefen(int system, int uebergabe, int energietraeger) {
    index_pruefen("Heizsystem", system, heizsysteme);
    index_pruefen("Uebergabe", uebergabe, uebergaben);
    index_pruefen("Energietraeger", energietraeger, energietraeger_je_zeile);
    if (!zeile(system).energietraeger.at(static_cast<std::size_t>(energietraeger - 1)).de.empty()) return;
    const std::string traeger = std::to_string(energietraeger);
    throw Laufzeitfehler(
        {"das Heizsystem " + std::to_string(system) + " bietet keinen Energieträger " + traeger,
         "heating system " + std::to_string(system) + " does not offer energy carrier " + traeger},
        "Energietraeger");
}

}  // namespace velmaris
