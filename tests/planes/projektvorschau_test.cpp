#include "tests/testprogramm.h"
#include "toolkit/text.h"
#include "toolkit/zahlen.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

/// Lines of a new project that are changed, and what the dialogs say of it then.
struct Fall {
    const char* name;
    std::vector<std::pair<std::size_t, const char*>> zeilen;
    const char* deutsch;
    const char* englisch;
};

const Fall faelle[]{
    {"haus.vel",
     {},
     "10.0 m × 10.0 m, 2 Geschosse, Trier (Deutschland), Heizwärmebedarf # kWh/(m² a)",
     "10.0 m × 10.0 m, 2 floors, Trier (Deutschland), heat demand # kWh/(m² a)"},
    {"HAUS.VEL",
     {{2, " 12.5"}, {5, " 1"}, {59, " 1"}},
     "12.5 m × 10.0 m, 1 Geschoss und Dachgeschoss, Trier (Deutschland), Heizwärmebedarf # kWh/(m² a)",
     "12.5 m × 10.0 m, 1 floor and attic, Trier (Deutschland), heat demand # kWh/(m² a)"},
    {"weit.vel",
     {{2, " 60"}},
     "Nicht lesbar, Zeile 2 (l): Wert außerhalb des Bereichs: 60 (2.0 .. 50.0)",
     "Not readable, line 2 (l): value out of range: 60 (2.0 .. 50.0)"},
    {"fremd.vel",
     {{1, "GIF89a"}},
     "Nicht lesbar: keine gültige Velmaris-Datendatei: die erste Zeile nennt keine bekannte Version",
     "Not readable: not a valid Velmaris data file: line 1 names no known version"},
    {"haus.txt", {}, "", ""},
};

/// Both dialogs of a project tell what is in a file, and the open one stays as it is.
TEST(Projektvorschau, DieDialogeSagenWasInEinerDateiSteht) {
    for (const char* sprache : {"d", "e"}) {
        const test::Testprogramm programm(sprache);
        FILEIO& datei = programm.haupt->datei;
        datei.datei_oeffnen("");
        datei.datei_speichern_unter();
        const auto vorher = test::projektzeilen(programm.p());
        for (const Dateidialog& dialog : programm.plattform.dialoge) {
            EXPECT_EQ(dialog.ort.empty(), dialog.art == Dateidialog::Art::speichern);
            for (const Fall& fall : faelle) {
                auto zeilen = vorher;
                for (const auto& [zeile, inhalt] : fall.zeilen)
                    zeilen[zeile - 1] = inhalt;
                const auto pfad = programm.ordner.schreibe(fall.name, test::projekttext(zeilen));
                const std::string vorschau = dialog.vorschau(pfad);
                std::string soll = englisch(sprache) ? fall.englisch : fall.deutsch;
                EXPECT_EQ(test::projektzeilen(programm.p()), vorher);
                if (const auto ort = soll.find('#'); ort != std::string::npos) {
                    test::Testprogramm geoeffnet(sprache);
                    geoeffnet.haupt->datei.datei_oeffnen(pfadtext(pfad));
                    soll.replace(ort, 1, muster(geoeffnet.p().qhs_sum, 1));
                }
                EXPECT_EQ(vorschau, soll);
            }
        }
        EXPECT_EQ(programm.plattform.meldungen.size(), 1U) << "the cancelled opening";
    }
}

}  // namespace
}  // namespace velmaris
