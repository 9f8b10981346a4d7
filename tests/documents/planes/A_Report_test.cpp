#include "documents/planes/A_Report.h"

#include "tests/documents/unterlagen.h"
#include "tests/hilfen.h"
#include "tests/testplattform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

using testing::HasSubstr;

struct Fenster {
    explicit Fenster(const std::string& sprache = "d") : u(sprache) {}

    void speichern(const std::string& datei) {
        plattform.dateien = {ordner / datei};
        report.Command_Speichern.druecke();
    }

    test::Unterlagen u;
    test::Testordner ordner;
    test::Testplattform plattform;
    Sitzung sitzung{*u.p, plattform, [] {}};
    A_Report report{sitzung, [this] { return u.quelle; }};
};

TEST(AReport, ZeigtSeitenUndMonate) {
    Fenster f("e");
    A_Report& a = f.report;
    EXPECT_FALSE(a.fenster.sichtbar() || a.Hinweis.sichtbar());
    EXPECT_EQ(a.Command_Speichern.text(), "Save report");
    a.anordnen(900, 500);
    const auto pruefen = [&a](const Anzeige& text, int knoepfe, const char* erste, const char* letzte) {
        EXPECT_TRUE(a.fenster.sichtbar() && text.sichtbar());
        EXPECT_NE(a.Report1.sichtbar(), a.Temperaturverlauf1.sichtbar());
        for (int i = 1; i <= 12; ++i)
            EXPECT_EQ(a.Seite(i).sichtbar(), i <= knoepfe) << i;
        EXPECT_THAT(text.text(), HasSubstr(erste));
        a.Seite(knoepfe).druecke();
        EXPECT_THAT(text.text(), HasSubstr(letzte));
        EXPECT_EQ(a.AktSeite.text(), std::to_string(knoepfe));
        EXPECT_EQ(a.AktSeite.platz()->links, a.Seite(knoepfe).lage()->links + 2);
        a.Command_Schliessen.druecke();
        EXPECT_FALSE(a.fenster.sichtbar());
    };
    a.report_zeigen();
    pruefen(a.Report1, 7, "Data sheet", "energy demand for cooling");
    a.temperaturverlauf_zeigen();
    pruefen(a.Temperaturverlauf1, 12, "Month:      M1\r", "M12");
}

/// The buttons of the pages in one row below the texts, saving and closing at its right end.
TEST(AReport, KnoepfeStehenInEinerReihe) {
    Fenster f;
    A_Report& a = f.report;
    a.anordnen(A_Report::mindestbreite(), 500);
    for (int i = 1; i <= 12; ++i)
        EXPECT_EQ(*a.Seite(i).lage(), (Rechteck{8.0 + 30 * (i - 1), 467, 28, 25}));
    EXPECT_EQ(*a.Command_Speichern.lage(), (Rechteck{376, 467, 136, 25}));
    EXPECT_EQ(*a.Command_Schliessen.lage(), (Rechteck{520, 467, 136, 25}));
    EXPECT_EQ(*a.Report1.lage(), (Rechteck{8, 8, 648, 451}));
}

TEST(AReport, SpeichertAlleSeitenOderAlleStunden) {
    Fenster f;
    f.report.report_zeigen();
    f.speichern("bericht");
    const auto& dialoge = f.plattform.dialoge;
    EXPECT_EQ(dialoge.back().filter, "Rich Text Format (*.rtf)|*.rtf");
    const std::string bericht = test::inhalt(f.ordner / "bericht.rtf");
    EXPECT_TRUE(bericht.starts_with("{\\rtf1\\ansi"));
    EXPECT_EQ(bericht.find('\n'), bericht.size() - 1);
    EXPECT_THAT(bericht, HasSubstr("W\xE4rmebilanz"));
    EXPECT_THAT(f.report.Report1.text(), HasSubstr("Wärmebilanz"));
    f.report.temperaturverlauf_zeigen();
    f.speichern("jahr.txt");
    EXPECT_EQ(dialoge.back().filter, "Textdatei (*.txt)|*.txt");
    const std::string jahr = test::inhalt(f.ordner / "jahr.txt");
    EXPECT_GT(jahr.size(), 8760U * 62U);
    EXPECT_THAT(jahr, HasSubstr("Jahres-Temperaturverl\xE4ufe\r\n"));
    EXPECT_TRUE(jahr.ends_with("\r\n"));
}

}  // namespace
}  // namespace velmaris
