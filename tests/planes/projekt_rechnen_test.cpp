#include "planes/projekt_rechnen.h"

#include "tests/testprogramm.h"
#include "toolkit/text.h"

#include <gtest/gtest.h>
#include <string>

namespace velmaris {
namespace {

TEST(ProjektRechnen, RechnetEineDateiOderNenntIhrenFehler) {
    const test::Testprogramm vorlage("e");
    test::Testplattform plattform;
    const auto vorbereitet = programm_vorbereiten(plattform, vorlage.ordner.pfad(), "e");
    EXPECT_EQ(test::projektzeilen(vorbereitet->p), test::projektzeilen(vorlage.p()));
    struct Fall {
        int zeile;
        const char* inhalt;
        std::string fehler;  ///< empty where the project is calculated
    };
    for (const Fall& fall : {Fall{2, " 50", ""},
                             {2, " 2", ""},
                             {1, "Velmaris Version 9", "line 1 names no known version"},
                             {56, "fehlt.met", "fehlt.met"},
                             {2, " 60", "line 2 (l): value out of range: 60 (2.0 .. 50.0)"},
                             {10, "-11", "value out of range: -11 (-10.0 .. 40.0)"},
                             {61, " 7", "value out of range: 7 (0.0 .. 5.0)"}}) {
        auto zeilen = test::projektzeilen(vorlage.p());
        zeilen[static_cast<std::size_t>(fall.zeile - 1)] = fall.inhalt;
        const auto datei = vorlage.ordner.schreibe("haus.vel", test::projekttext(zeilen));
        try {
            const auto haupt = projekt_rechnen(plattform, vorlage.ordner.pfad(), "e", pfadtext(datei));
            EXPECT_EQ(fall.fehler, "");
            EXPECT_EQ(haupt->p.l, std::stof(fall.inhalt));
            EXPECT_GT(haupt->p.qh, 0);
            EXPECT_NE(haupt->a_klima.anz_Heizlast.text(), "");
        } catch (const Dateifehler& fehler) {
            EXPECT_NE(fall.fehler, "") << fehler.text("e");
            EXPECT_NE(fehler.text("e").find(fall.fehler), std::string::npos) << fehler.text("e");
        }
    }
    EXPECT_TRUE(plattform.meldungen.empty());
}

}  // namespace
}  // namespace velmaris
