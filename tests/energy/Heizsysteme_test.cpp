#include "energy/Heizsysteme.h"

#include "toolkit/fehler.h"

#include <gtest/gtest.h>
#include <regex>
#include <string>

namespace velmaris {
namespace {

/// The quantity that a combination is refused for, empty if it is on offer.
std::string einwand(int system, int uebergabe, int energietraeger) {
    try {
        kombination_pruefen(system, uebergabe, energietraeger);
    } catch (const Laufzeitfehler& fehler) {
        return fehler.feld();
    }
    return "";
}

TEST(Heizsysteme, JedeZeileBietetWasZuIhrGehoertUndSonstNichts) {
    // By system how many transfers and carriers there are.
    const std::string uebergabezahl = "222222200", traegerzahl = "222214111";
    const std::regex deutsch("[äöü]|[Hh]eiz|[Hh]olz|Erdgas|Strom");
    for (const bool englisch : {false, true}) {
        const Heizsystemkatalog katalog = katalog_laden(englisch ? "e" : "d");
        for (int s = 1; s <= heizsysteme; ++s) {
            const auto& [name, uebergabe, traeger] = katalog(s);
            EXPECT_NE(std::regex_search(name, deutsch), englisch) << name;
            EXPECT_EQ(ohne_uebergabe(s), uebergabezahl[static_cast<std::size_t>(s - 1)] == '0');
            for (int u = 1; u <= uebergaben; ++u) {
                EXPECT_EQ(uebergabe(u).empty(), ohne_uebergabe(s));
                EXPECT_TRUE(uebergabe(u).empty() || std::regex_search(uebergabe(u), deutsch) != englisch);
            }
            for (int t = 1; t <= energietraeger_je_zeile; ++t) {
                const bool angeboten = t <= traegerzahl[static_cast<std::size_t>(s - 1)] - '0';
                EXPECT_EQ(traeger(t).empty(), !angeboten);
                EXPECT_EQ(einwand(s, 2, t), angeboten ? "" : "Energietraeger") << s << t;
                EXPECT_TRUE(!angeboten || std::regex_search(traeger(t), deutsch) != englisch);
            }
        }
        EXPECT_EQ(katalog(9).Bezeichnung, englisch ? "electric storage heating" : "Elektro-Speicherheizung");
        EXPECT_EQ(katalog(4).Energietraeger(2), englisch ? "firewood" : "Stückholz");
        EXPECT_TRUE(katalog(7).Uebergabe(1).ends_with(" 55/45°C"));
        EXPECT_TRUE(katalog(7).Uebergabe(2).ends_with(" 35/28°C"));
    }
    for (const int falsch : {-32768, 0, 10, 32767}) {
        EXPECT_EQ(einwand(falsch, 1, 1), "Heizsystem");
        EXPECT_EQ(einwand(1, falsch, 1), "Uebergabe");
        EXPECT_EQ(einwand(1, 1, falsch), "Energietraeger");
    }
    EXPECT_EQ(einwand(8, 3, 1), "Uebergabe");
    EXPECT_EQ(einwand(6, 1, 5), "Energietraeger");
}

}  // namespace
}  // namespace velmaris
