#include "energy/Heizsysteme.h"

#include "toolkit/fehler.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <regex>
#include <string>

namespace velmaris {
namespace {

TEST(Heizsysteme, JedeZeileBietetWasZuIhrGehoert) {
    // By system how many transfers and carriers there are.
    const std::string uebergabezahl = "222222200", traegerzahl = "222214111";
    const std::regex deutsch("[äöü]|[Hh]eiz|[Hh]olz|Erdgas|Strom");
    for (const char* sprache : {"d", "e", "x"}) {
        const Heizsystemkatalog katalog = katalog_laden(sprache);
        const bool englisch = sprache[0] == 'e';
        for (int s = 1; s <= heizsysteme; ++s) {
            const auto stelle = static_cast<std::size_t>(s - 1);
            const auto da = [](const std::string& text) { return !text.empty(); };
            const auto& [name, uebergabe, traeger] = katalog(s);
            EXPECT_EQ(std::count_if(uebergabe.begin(), uebergabe.end(), da), uebergabezahl[stelle] - '0');
            EXPECT_EQ(std::count_if(traeger.begin(), traeger.end(), da), traegerzahl[stelle] - '0');
            for (const std::string& text :
                 {name, uebergabe(1), uebergabe(2), traeger(1), traeger(2), traeger(3)})
                EXPECT_TRUE(text.empty() || std::regex_search(text, deutsch) != englisch) << text;
            EXPECT_EQ(ohne_uebergabe(s), uebergabezahl[stelle] == '0');
        }
        EXPECT_EQ(katalog(9).Bezeichnung, englisch ? "electric storage heating" : "Elektro-Speicherheizung");
        EXPECT_EQ(katalog(4).Energietraeger(2), englisch ? "firewood" : "Stückholz");
        EXPECT_TRUE(katalog(7).Uebergabe(1).ends_with(" 55/45°C"));
        EXPECT_TRUE(katalog(7).Uebergabe(2).ends_with(" 35/28°C"));
    }
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
    const std::string traegerzahl = "222214111";
    for (int s = 1; s <= heizsysteme; ++s) {
        const int letzter = traegerzahl[static_cast<std::size_t>(s - 1)] - '0';
        for (int t = 1; t <= energietraeger_je_zeile; ++t)
            EXPECT_EQ(einwand(s, 2, t), t <= letzter ? "" : "Energietraeger") << s << t;
    }
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
