#include "project/feldtabelle.h"
#include "tests/hilfen.h"
#include "tests/tools/help/html.h"
#include "toolkit/text.h"

#include <algorithm>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris::test {
namespace {

using testing::Contains;
using testing::HasSubstr;

std::string ersetzt(std::string text, std::string_view alt, std::string_view neu) {
    for (std::size_t i = text.find(alt); i != std::string::npos; i = text.find(alt, i + neu.size()))
        text.replace(i, alt.size(), neu);
    return text;
}

/// Rows of a page's tables, cells joined by " | ".
std::vector<std::string> tabellenzeilen(const std::string& sprache, const std::string& seite) {
    std::string text = hilfeseiten(sprache).at(seite);
    for (const char* naht : {"</td><td>", "</th><th>"})
        text = ersetzt(text, naht, " | ");
    for (const char* marke : {"<td>", "</td>", "<th>", "</th>", "<code>", "</code>"})
        text = ersetzt(text, marke, "");
    return zwischen(text, "<tr>", "</tr>");
}

TEST(HilfeTabellen, NennenWasDieTabellenDesProgrammsSagen) {
    const struct {
        const char *sprache, *seite, *zeile;
    } faelle[] = {
        // Worked out by hand from the ends of the scroll fields, their steps and factors.
        {"d", "E_Geometrie", "Länge | 2,0 bis 50,0 | 1,0 | 2,0 | m | 10,0"},
        {"e", "E_Geometrie", "number of floors | 1 to 20 | 1 | 2 * | &ndash; | 2"},
        {"e", "E_Geometrie", "deviation from south direction | &minus;45 to 45 | 5 | 1 | ° | 0"},
        {"d", "E_Fenster", "Wandanteil | 0 bis 100 | 5 | 5 | % | 5 / 40 / 5 / 5"},
        {"e", "E_Gebaeude", "indoor set temperature | &minus;10.0 to 40.0 | 2.0 | 20.0 | °C | 20.0"},
        {"d", "E_Gebaeude", "Mechanische Lüftung | 0,00 bis 10,00 | 0,20 | 0,60 | 1/h | 0,00"},
        {"d", "Eingaben", "g-Wert | 0,00 bis 1,00 | 0,05 | 0,20 | &ndash; | 0,58 | gfn, gfs, gfo, gfw"},
        {"d", "E_Gebaeude", "Eingabe | Bereich | kleiner Schritt | großer Schritt | Einheit | neues Projekt"},
        {"e", "Eingaben", "Input | Range | Small step | Large step | Unit | New project | Name"},
        {"d", "E_Fenster",
         "Nr. | Fenstertyp | U-Wert Glas<br>in W/(m² K) | g-Wert | U-Wert Rahmen<br>in W/(m² K)"},
        {"e", "E_Fenster",
         "No. | Window type | U-value glazing<br>in W/(m² K) | g-value | U-value frame<br>in W/(m² K)"},
        {"d", "E_Energie", "Nr. | Heizungssystem | Energieträger (Primärenergiefaktor) | Aufwandszahl"},
        {"e", "E_Energie",
         "No. | Heating system | Source of energy (primary energy factor) | Expense number"},
        {"d", "Dateien", "Zeile | Größe | Zeile | Größe | Zeile | Größe | Zeile | Größe"},
        {"e", "Dateien", "Line | Quantity | Line | Quantity | Line | Quantity | Line | Quantity"},
        // From the sources that the last column names, and from the table of window types.
        {"d", "E_Daemmung",
         "U-Wert untere Geschoßdecke | Altbau 1,00; Neubau 0,30; Passivhaus 0,15 | W/(m² K) | "
         "Regeln zur Datenaufnahme im Wohngebäudebestand 2015, GEG Anlage 7, Passivhaus Institut"},
        {"e", "E_Gebaeude", "indoor set temperature | house 20.0; office 21.0 | °C | DIN V 18599-10"},
        {"e", "E_Fenster",
         "U-value glazing | single glazing 5.80; old double glazing 3.00; triple heat protection glazing "
         "0.70 | "
         "W/(m² K) | &ndash;"},
        {"e", "E_Geometrie",
         "deviation from south direction | towards south 0; towards southwest 45; towards southeast "
         "&minus;45 | "
         "° | &ndash;"},
        // From the catalogues; lines of a project file stand below each other, four columns of 17.
        {"d", "E_Fenster", "0 | Einfachverglasung | 5,8 | 0,92 | 3,5"},
        {"e", "E_Energie", "8 | electric direct heating | 1 electricity (3.0) | 1.00"},
        {"e", "E_Energie",
         "6 | district heat, boiler and distribution inside the thermal zone | "
         "1 heat from combined heat and power system, fossil fuels (0.7)<br>"
         "2 heat from combined heat and power system, renew. energy (0.0)<br>"
         "3 heat from thermal power station, fossil fuels (1.3)<br>"
         "4 heat from thermal power station, renewable energy (0.1) | 1.01"},
        {"d", "Dateien", "2 | l | 19 | fensterw_typ | 36 | verschn | 53 | gfs"},
        {"d", "Dateien", "18 | fenstero_typ | 35 | fw | 52 | gfn | 69 | Waermebruecken"},
    };
    for (const auto& [sprache, seite, zeile] : faelle)
        EXPECT_THAT(tabellenzeilen(sprache, seite), Contains(zeile));
    EXPECT_THAT(tabellenzeilen("d", "Dateien"), testing::Not(Contains(testing::StartsWith("19 |"))));
}

TEST(HilfeTabellen, NennenJedeEingabeInBeidenSprachen) {
    const std::pair<const char*, std::string> faelle[] = {
        {"d",
         "Länge: l; Breite: b; Höhe (ohne Dach): h; Dachhöhe: hd; Anzahl Geschosse: ag; "
         "Auslenkung aus der Südrichtung: orient; Wandanteil: fn, fs, fo, fw; "
         "U-Wert Glas: kfgn, kfgs, kfgo, kfgw; U-Wert Rahmen: kfrn, kfrs, kfro, kfrw; "
         "g-Wert: gfn, gfs, gfo, gfw; Rahmenanteil: ran, ras, rao, raw; "
         "Verschattung: verschn, verschs, verscho, verschw; U-Werte der Wände: kwn, kws, kwo, kww; "
         "U-Wert Dach oder obere Geschoßdecke: kd; U-Wert untere Geschoßdecke: kk; Fläche der Tür: ft; "
         "U-Wert der Tür: kt; Absorptionskoeffizient der Wände: absfaktor; Soll-Raumlufttemperatur: Troom; "
         "Überwärmungsgrenze: Tueber; Freie Lüftung: infiltration; Mechanische Lüftung: lw; "
         "Wärmerückgewinnung: WRG; Interne Gewinne: intg; Effizienzfaktor Klimaanlage: Klimaeffizienz; "},
        {"e",
         "length: l; width: b; height (without roof): h; height of roof: hd; number of floors: ag; "
         "deviation from south direction: orient; fraction of wall: fn, fs, fo, fw; "
         "U-value glazing: kfgn, kfgs, kfgo, kfgw; U-value frame: kfrn, kfrs, kfro, kfrw; "
         "g-value: gfn, gfs, gfo, gfw; fraction of frame: ran, ras, rao, raw; "
         "shading: verschn, verschs, verscho, verschw; U-values of the walls: kwn, kws, kwo, kww; "
         "U-value of roof or upper floor: kd; U-value of lower floor: kk; area of the door: ft; "
         "U-value of the door: kt; Absorption coefficient of the walls: absfaktor; "
         "indoor set temperature: Troom; overheating: Tueber; natural ventilation: infiltration; "
         "mechanical ventilation: lw; heat recovery: WRG; internal gains: intg; "
         "efficiency factor of air conditioning: Klimaeffizienz; "},
    };
    for (const auto& [sprache, liste] : faelle) {
        std::string genannte;
        for (const std::string& zeile : tabellenzeilen(sprache, "Eingaben")) {
            if (zeile.ends_with("| Name")) continue;
            genannte +=
                zeile.substr(0, zeile.find(" | ")) + ": " + zeile.substr(zeile.rfind("| ") + 2) + "; ";
        }
        EXPECT_EQ(genannte, liste);
    }
}

TEST(HilfeErgebnisse, NennenNurGroessenDieEsGibt) {
    const auto monat = monatsfelder();
    for (const std::string& name : zwischen(hilfeseiten("d").at("Ergebnisse"), "<code>", "<")) {
        const bool im_monat =
            std::any_of(monat.begin(), monat.end(), [&](const Monatszeile& z) { return z.name == name; });
        EXPECT_TRUE(im_monat || feld_suchen(name) != nullptr) << name;
    }
}

#ifdef VELMARIS_RECHNEN
TEST(HilfeKonsole, NenntJedeAngabeDesProgramms) {
    const Testordner ordner;
    const auto ausgabe = ordner / "hilfe.txt";
    const std::string aufruf = "\"" VELMARIS_RECHNEN "\" --help > \"" + pfadtext(ausgabe) + "\"";
    ASSERT_EQ(std::system(aufruf.c_str()), 0);
    const auto alle = zwischen(inhalt(ausgabe), "\n  --", " ");
    ASSERT_THAT(alle, Contains("json"));
    for (const std::string& name : alle)
        EXPECT_THAT(hilfeseiten("d").at("velmaris_rechnen"), HasSubstr("<code>--" + name));
}
#endif

}  // namespace
}  // namespace velmaris::test
