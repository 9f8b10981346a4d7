#include "documents/planes/A_Report.h"

#include "tests/documents/unterlagen.h"
#include "tests/hilfen.h"
#include "tests/testplattform.h"

#include <array>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

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

bool enthaelt(const std::string& text, const std::string& teil) {
    return text.find(teil) != std::string::npos;
}

TEST(AReport, ZeigtSeitenUndMonate) {
    Fenster f("e");
    A_Report& a = f.report;
    EXPECT_FALSE(a.fenster.sichtbar());
    EXPECT_FALSE(a.Hinweis.sichtbar());
    EXPECT_EQ(a.Command_Speichern.text(), "Save report");
    EXPECT_EQ(a.Seite(12).text(), "12");
    a.anordnen(900, 500);
    struct Fall {
        bool report;
        int knoepfe;
        const char* erste;
        int knopf;
        const char* zweite;
    };
    for (const Fall& fall : {Fall{true, 7, "Data sheet", 4, "Output: Heat balance"},
                             {false, 12, "Month:      M1\r", 12, "M12"}}) {
        fall.report ? a.report_zeigen() : a.temperaturverlauf_zeigen();
        const Anzeige& text = fall.report ? a.Report1 : a.Temperaturverlauf1;
        EXPECT_TRUE(a.fenster.sichtbar());
        EXPECT_EQ(a.Report1.sichtbar(), fall.report);
        EXPECT_EQ(a.Temperaturverlauf1.sichtbar(), !fall.report);
        for (int i = 1; i <= 12; ++i)
            EXPECT_EQ(a.Seite(i).sichtbar(), i <= fall.knoepfe) << i;
        EXPECT_TRUE(enthaelt(text.text(), fall.erste));
        EXPECT_EQ(a.AktSeite.text(), "1");
        a.Seite(fall.knopf).druecke();
        EXPECT_TRUE(enthaelt(text.text(), fall.zweite));
        EXPECT_EQ(a.AktSeite.text(), std::to_string(fall.knopf));
        EXPECT_EQ(a.AktSeite.platz()->links, a.Seite(fall.knopf).lage()->links + 2);
        a.Command_Schliessen.druecke();
        EXPECT_FALSE(a.fenster.sichtbar());
    }
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
    EXPECT_EQ(*a.Temperaturverlauf1.lage(), *a.Report1.lage());
}

TEST(AReport, SpeichertAlleSeitenOderAlleStunden) {
    Fenster f;
    f.report.report_zeigen();
    f.speichern("bericht");
    const auto& dialoge = f.plattform.dialoge;
    EXPECT_EQ(dialoge.back().filter, "Rich Text Format (*.rtf)|*.rtf");
    const std::string bytes = test::inhalt(f.ordner / "bericht.rtf");
    EXPECT_TRUE(bytes.starts_with("{\\rtf1\\ansi"));
    EXPECT_EQ(bytes.find('\n'), bytes.size() - 1);
    EXPECT_TRUE(enthaelt(bytes, "W\xE4rmebilanz"));
    EXPECT_TRUE(enthaelt(bytes, "m\xB2"));
    EXPECT_TRUE(enthaelt(f.report.Report1.text(), "Wärmebilanz"));
    f.report.temperaturverlauf_zeigen();
    f.speichern("jahr.txt");
    EXPECT_EQ(dialoge.back().filter, "Textdatei (*.txt)|*.txt");
    EXPECT_GT(test::inhalt(f.ordner / "jahr.txt").size(), 8760U * 62U);
    f.report.Command_Speichern.druecke();
    EXPECT_EQ(dialoge.size(), 3U);
    EXPECT_FALSE(f.report.Hinweis.sichtbar()) << "cancelled";
}

TEST(AReport, FehlschlagStehtImFensterBisEtwasGelingt) {
    struct Fall {
        const char* sprache;
        bool report;
        const char* datei;
        const char* anfang;
        const char* grund;
    };
    for (const Fall& fall :
         {Fall{"d", true, "fehlt/bericht.rtf", "Es wurde nichts gespeichert: ", "den Ordner gibt es nicht"},
          {"e", false, "fehlt/jahr.txt", "Nothing was saved: ", "there is no such folder"}}) {
        Fenster f(fall.sprache);
        A_Report& a = f.report;
        a.anordnen(900, 500);
        fall.report ? a.report_zeigen() : a.temperaturverlauf_zeigen();
        const Anzeige& text = fall.report ? a.Report1 : a.Temperaturverlauf1;
        const std::string vorher = text.text();
        f.speichern(fall.datei);
        ASSERT_TRUE(a.Hinweis.sichtbar());
        EXPECT_TRUE(a.Hinweis.text().starts_with(fall.anfang));
        EXPECT_TRUE(enthaelt(a.Hinweis.text(), fall.datei) && enthaelt(a.Hinweis.text(), fall.grund));
        EXPECT_TRUE(f.plattform.meldungen.empty());
        EXPECT_EQ(text.text(), vorher);
        const Rechteck hinweis = *a.Hinweis.lage();
        EXPECT_TRUE(hinweis.links == 8 && hinweis.oben == 401 && hinweis.hoehe == 58 &&
                    hinweis.breite == 884);
        EXPECT_EQ(text.lage()->hoehe, 385);

        a.Command_Speichern.druecke();
        EXPECT_TRUE(a.Hinweis.sichtbar()) << "cancelled";
        a.Seite(2).druecke();
        EXPECT_FALSE(a.Hinweis.sichtbar());
        EXPECT_EQ(text.lage()->hoehe, 451);
        f.speichern(fall.datei);
        f.speichern("gut");
        EXPECT_FALSE(a.Hinweis.sichtbar());
        f.speichern(fall.datei);
        a.Command_Schliessen.druecke();
        a.report_zeigen();
        EXPECT_FALSE(a.Hinweis.sichtbar());
    }
}

}  // namespace
}  // namespace velmaris
