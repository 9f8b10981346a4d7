#include "documents/A_Report.h"

#include "planes/reportquelle.h"
#include "tests/documents/reporthilfen.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

struct Fenster {
    explicit Fenster(const std::string& sprache = "d") : programm(test::dokumentprogramm(sprache)) {}

    std::unique_ptr<test::Testprogramm> programm;
    A_Report report{programm->haupt->sitzung, [this] { return reportquelle(*programm->haupt); }};
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
    EXPECT_TRUE(dialog.ueberschreiben_fragen);
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

TEST(AReport, AbbruchUndFehlschlagBleibenStill) {
    Fenster f;
    f.report.report_zeigen();
    const std::string vorher = f.report.Report1.text();
    f.report.Command_Speichern.druecke();
    f.programm->plattform.dateien = {f.programm->ordner / "fehlt/bericht.rtf"};
    f.report.Command_Speichern.druecke();
    EXPECT_EQ(f.programm->plattform.dialoge.size(), 2U);
    EXPECT_TRUE(f.programm->plattform.meldungen.empty());
    EXPECT_EQ(f.report.Report1.text(), vorher);
}

}  // namespace
}  // namespace velmaris
