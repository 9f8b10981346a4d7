#include "energy/Heizsysteme.h"

#include "toolkit/fehler.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

/// The carriers of a row, joined by "|".
std::string traeger(const Heizsystemzeile& zeile) {
    std::string alle;
    for (const std::string& text : zeile.Energietraeger)
        alle += text + "|";
    return alle;
}

TEST(Heizsysteme, BezeichnungenInBeidenSprachen) {
    const Heizsystemkatalog de = katalog_laden("d");
    const Heizsystemkatalog en = katalog_laden("e");
    const std::string innen = "Kessel und Verteilleitungen innerhalb der thermischen Hülle";
    const std::string inside = "boiler and distribution inside the thermal zone";
    const std::vector<std::pair<std::string, std::string>> erwartet{
        {"Niedertemperaturkessel, " + innen, "low temperature burner, " + inside},
        {"Brennwertkessel, " + innen, "condensing boiler, " + inside},
        {"Brennwertkessel (hocheffektiv), " + innen, "condensing boiler (high efficiency), " + inside},
        {"Biomasse-Heizkessel, direkte und indirekte Wärmeabgabe, " + innen,
         "biomass boiler, direct and indirect thermal output, " + inside},
        {"Biomasse-Heizkessel, indirekte Wärmeabgabe, " + innen,
         "biomass boiler, indirect thermal output, " + inside},
        {"Nah- oder Fernwärme, Übergabe und Verteilleitungen innerhalb der thermischen Hülle",
         "district heat, " + inside},
        {"Erdreich-Wärmepumpe, Pufferspeicher und Verteilleitungen innerhalb der thermischen Hülle",
         "soil heat pump, buffer storage and distribution inside the thermal zone"},
        {"Elektro-Direktheizung", "electric direct heating"},
        {"Elektro-Speicherheizung", "electric storage heating"},
    };
    for (int s = 1; s <= heizsysteme; ++s) {
        EXPECT_EQ(de(s).Bezeichnung, erwartet[static_cast<std::size_t>(s - 1)].first);
        EXPECT_EQ(en(s).Bezeichnung, erwartet[static_cast<std::size_t>(s - 1)].second);
    }
}

TEST(Heizsysteme, UebergabenNurMitHeizwasser) {
    const std::string de1 =
        "Heizflächen (Außenwand), Thermostatventile, Auslegungs- proportionalbereich: 1K, ";
    const std::string en1 = "radiators (outside walls), thermostatic valves (layout temperature: 1K), ";
    const Heizsystemkatalog de = katalog_laden("d");
    const Heizsystemkatalog en = katalog_laden("e");
    for (int s = 1; s <= 7; ++s) {
        const std::string temperatur = s == 7 ? "55/45°C" : "70/55°C";
        EXPECT_EQ(de(s).Uebergabe(1), de1 + "Systemtemperatur: " + temperatur);
        EXPECT_EQ(en(s).Uebergabe(1), en1 + "system temperature: " + temperatur);
        EXPECT_EQ(de(s).Uebergabe(2),
                  "Integrierte Heizflächen (z.B. Fußbodenheizung), Schaltdifferenz: 1 K, Systemtemperatur: "
                  "35/28°C");
        EXPECT_EQ(en(s).Uebergabe(2),
                  "underfloor heating (switch difference : 1K), system temperature: 35/28°C");
        EXPECT_FALSE(ohne_uebergabe(s));
    }
    for (int s = 8; s <= 9; ++s) {
        EXPECT_EQ(de(s).Uebergabe(1) + de(s).Uebergabe(2) + en(s).Uebergabe(1) + en(s).Uebergabe(2), "");
        EXPECT_TRUE(ohne_uebergabe(s));
    }
}

TEST(Heizsysteme, EnergietraegerJeZeile) {
    const Heizsystemkatalog de = katalog_laden("d");
    const Heizsystemkatalog en = katalog_laden("e");
    for (int s = 1; s <= 3; ++s) {
        EXPECT_EQ(traeger(de(s)), "Heizöl EL|Erdgas H|||");
        EXPECT_EQ(traeger(en(s)), "fuel oil|natural gas|||");
    }
    EXPECT_EQ(traeger(de(4)), "Holzpellets|Stückholz|||");
    EXPECT_EQ(traeger(en(4)), "wool pellets|firewood|||");
    EXPECT_EQ(traeger(de(5)), "Holzpellets||||");
    EXPECT_EQ(traeger(en(5)), "wool pellets||||");
    EXPECT_EQ(traeger(de(6)),
              "Wärme aus Kraftwärmekopplung, fossiler Brennstoff|"
              "Wärme aus Kraftwärmekopplung, erneuerbarer Brennstoff|"
              "Wärme aus Heizkraftwerken, fossiler Brennstoff|"
              "Wärme aus Heizkraftwerken, erneuerbarer Brennstoff|");
    EXPECT_EQ(traeger(en(6)),
              "heat from combined heat and power system, fossil fuels|"
              "heat from combined heat and power system, renew. energy|"
              "heat from thermal power station, fossil fuels|"
              "heat from thermal power station, renewable energy|");
    for (int s = 7; s <= 9; ++s) {
        EXPECT_EQ(traeger(de(s)), "Strom||||");
        EXPECT_EQ(traeger(en(s)), "electricity||||");
    }
    EXPECT_EQ(traeger(katalog_laden("x")(1)), "Heizöl EL|Erdgas H|||");
}

/// The quantity that a combination is refused for, empty if it is on offer.
std::string einwand(int system, int uebergabe, int energietraeger) {
    try {
        kombination_pruefen(system, uebergabe, energietraeger);
    } catch (const Laufzeitfehler& fehler) {
        EXPECT_FALSE(fehler.text("d").empty());
        EXPECT_NE(fehler.text("d"), fehler.text("e"));
        return fehler.feld();
    }
    return "";
}

TEST(Kombination, NurWasDerKatalogBietet) {
    // Highest carrier on offer by system.
    const std::vector<int> letzter{2, 2, 2, 2, 1, 4, 1, 1, 1};
    for (int s = 1; s <= heizsysteme; ++s) {
        for (int u = 1; u <= uebergaben; ++u) {
            for (int t = 1; t <= energietraeger_je_zeile; ++t) {
                const bool angeboten = t <= letzter[static_cast<std::size_t>(s - 1)];
                EXPECT_EQ(einwand(s, u, t), angeboten ? "" : "Energietraeger") << s << u << t;
            }
        }
    }
}

TEST(Kombination, IndexAusserhalbNenntDieGroesse) {
    for (const int falsch : {-32768, -1, 0, 10, 32767}) {
        EXPECT_EQ(einwand(falsch, 1, 1), "Heizsystem");
        EXPECT_EQ(einwand(1, falsch, 1), "Uebergabe");
        EXPECT_EQ(einwand(1, 1, falsch), "Energietraeger");
    }
    EXPECT_EQ(einwand(8, 3, 1), "Uebergabe");
    EXPECT_EQ(einwand(6, 1, 5), "Energietraeger");
}

}  // namespace
}  // namespace velmaris
