#include "documents/planes/A_Report.h"

#include "planes/dokumentquelle.h"
#include "tests/documents/report/reporthilfen.h"

#include <array>
#include <filesystem>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

struct Fenster {
    explicit Fenster(const std::string& sprache = "d") : programm(test::dokumentprogramm(sprache)) {}

    std::unique_ptr<test::Testprogramm> programm;
    A_Report report{programm->haupt->sitzung, [this] { return dokumentquelle(*programm->haupt); }};
};

TEST(AReport, OeffnetAufSeiteEins) {
    Fenster f;
    EXPECT_FALSE(f.report.fenster.sichtbar());
    f.report.anordnen(900, 500);
    f.report.report_zeigen();
    EXPECT_TRUE(f.report.fenster.sichtbar());
    EXPECT_TRUE(f.report.Report1.sichtbar());
    EXPECT_FALSE(f.report.Temperaturverlauf1.sichtbar());
    EXPECT_TRUE(f.report.Seite(7).sichtbar());
    EXPECT_FALSE(f.report.Seite(8).sichtbar());
    EXPECT_NE(f.report.Report1.text().find("Datenblatt"), std::string::npos);
    f.report.Seite(4).druecke();
    EXPECT_NE(f.report.Report1.text().find("Ausgabe: Wärmebilanz"), std::string::npos);
    EXPECT_EQ(f.report.AktSeite.platz()->links, f.report.Seite(4).lage()->links + 2);
    f.report.Command_Schliessen.druecke();
    EXPECT_FALSE(f.report.fenster.sichtbar());
}

TEST(AReport, TemperaturverlaufHatZwoelfMonate) {
    Fenster f("e");
    EXPECT_EQ(f.report.Command_Speichern.text(), "Save report");
    f.report.temperaturverlauf_zeigen();
    EXPECT_FALSE(f.report.Report1.sichtbar());
    EXPECT_TRUE(f.report.Seite(12).sichtbar());
    EXPECT_NE(f.report.Temperaturverlauf1.text().find("January"), std::string::npos);
    f.report.Seite(12).druecke();
    EXPECT_NE(f.report.Temperaturverlauf1.text().find("December"), std::string::npos);
    f.report.report_zeigen();
    EXPECT_FALSE(f.report.Seite(12).sichtbar());
}

TEST(AReport, SpeichertAlleSeitenInEinerZeile) {
    Fenster f;
    f.report.report_zeigen();
    f.programm->plattform.dateien = {f.programm->ordner / "bericht"};
    f.report.Command_Speichern.druecke();
    const auto& dialog = f.programm->plattform.dialoge.back();
    EXPECT_EQ(dialog.filter, "Rich Text Format (*.rtf)|*.rtf");
    const std::string bytes = test::inhalt(f.programm->ordner / "bericht.rtf");
    EXPECT_TRUE(bytes.starts_with("{\\rtf1\\ansi"));
    EXPECT_EQ(bytes.find('\n'), bytes.size() - 1);
    EXPECT_NE(bytes.find("W\xE4rmebilanz"), std::string::npos);
    EXPECT_NE(bytes.find("m\xB2"), std::string::npos);
    EXPECT_NE(f.report.Report1.text().find("Wärmebilanz"), std::string::npos);
}

TEST(AReport, SpeichertDieStundenDesJahres) {
    Fenster f;
    f.report.temperaturverlauf_zeigen();
    f.programm->plattform.dateien = {f.programm->ordner / "jahr.txt"};
    f.report.Command_Speichern.druecke();
    EXPECT_EQ(f.programm->plattform.dialoge.back().filter, "Textdatei (*.txt)|*.txt");
    EXPECT_GT(test::inhalt(f.programm->ordner / "jahr.txt").size(), 8760U * 62U);
}

TEST(AReport, AbbruchBleibtStill) {
    Fenster f;
    f.report.report_zeigen();
    f.report.Command_Speichern.druecke();
    EXPECT_EQ(f.programm->plattform.dialoge.size(), 1U);
    EXPECT_FALSE(f.report.Hinweis.sichtbar());
}

TEST(AReport, FehlschlagStehtImFensterBisEtwasGelingt) {
    struct Fall {
        const char* datei;
        const char* de;
        const char* en;
    };
    const std::array<Fall, 2> faelle{
        {{"fehlt/bericht.rtf", "den Ordner gibt es nicht", "there is no such folder"},
         {"ordner.rtf", "ist ein Ordner, keine Datei", "is a folder, not a file"}}};
    for (const char* sprache : {"d", "e"}) {
        for (const Fall& fall : faelle) {
            Fenster f(sprache);
            std::filesystem::create_directory(f.programm->ordner / "ordner.rtf");
            A_Report& a = f.report;
            a.anordnen(900, 500);
            std::size_t ersetzt = 0;
            const auto scheitern = [&] {
                const auto ziel = f.programm->ordner / fall.datei;
                if (std::filesystem::exists(ziel)) ++ersetzt;
                f.programm->plattform.dateien = {ziel};
                f.programm->plattform.antworten = {Antwort::ja};
                a.Command_Speichern.druecke();
            };
            for (const bool report : {true, false}) {
                report ? a.report_zeigen() : a.temperaturverlauf_zeigen();
                const Anzeige& text = report ? a.Report1 : a.Temperaturverlauf1;
                const std::string vorher = text.text();
                const double hoehe = text.lage()->hoehe;
                scheitern();
                ASSERT_TRUE(a.Hinweis.sichtbar());
                const std::string& hinweis = a.Hinweis.text();
                EXPECT_TRUE(hinweis.starts_with(sprache[0] == 'e' ? "Nothing was saved: "
                                                                  : "Es wurde nichts gespeichert: "));
                EXPECT_NE(hinweis.find(fall.datei), std::string::npos) << hinweis;
                EXPECT_NE(hinweis.find(sprache[0] == 'e' ? fall.en : fall.de), std::string::npos) << hinweis;
                EXPECT_EQ(f.programm->plattform.meldungen.size(), ersetzt) << "only the question";
                EXPECT_EQ(text.text(), vorher);
                EXPECT_LE(text.lage()->oben + text.lage()->hoehe, a.Hinweis.lage()->oben);
                EXPECT_LE(a.Hinweis.lage()->oben + a.Hinweis.lage()->hoehe, a.Seite(1).lage()->oben);

                a.Command_Speichern.druecke();
                EXPECT_TRUE(a.Hinweis.sichtbar()) << "cancelled";
                a.Seite(2).druecke();
                EXPECT_FALSE(a.Hinweis.sichtbar());
                EXPECT_EQ(text.lage()->hoehe, hoehe);
                scheitern();
                f.programm->plattform.dateien = {f.programm->ordner / "gut"};
                a.Command_Speichern.druecke();
                EXPECT_FALSE(a.Hinweis.sichtbar());
                scheitern();
                a.Command_Schliessen.druecke();
            }
            a.report_zeigen();
            EXPECT_FALSE(a.Hinweis.sichtbar());
        }
    }
}

}  // namespace
}  // namespace velmaris
