#include "project/dateiwahl.h"
#include "tests/project/projektlauf.h"

#include <array>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

namespace fs = std::filesystem;
using test::inhalt;
using testing::HasSubstr;

/// A program that has opened "haus.vel" and made it 13 m long.
class Sichern : public testing::Test, public test::Projektlauf {
  protected:
    Sichern() {
        oeffne(haus);
        laenge(13);
    }

    void quelle_waehlen() {
        plattform().dateien = {fremd};
        programm.haupt->e_klimaimport.Command1.druecke();
    }

    fs::path kurz = programm.ordner.schreibe("kurz.vel", inhalt(haus).substr(0, 60));
    fs::path fremd = programm.ordner.schreibe("fremd/wetter.epw", "LOCATION\r\n");
};

TEST_F(Sichern, NurDieEigeneDateiWirdOhneFrageGeschrieben) {
    const std::vector<std::pair<const char*, std::function<void()>>> faelle{
        {"import source", [&] { quelle_waehlen(); }},
        {"file cut off", [&] { oeffne(kurz); }},
        {"a file not to be replaced after all", [&] { speichere_unter(kurz, Antwort::nein); }},
        {"folder that is not there", [&] { speichere_unter(programm.ordner / "nirgends/haus.vel"); }},
        {"the own file, damaged meanwhile",
         [&] { oeffne(programm.ordner.schreibe("projekte/haus.vel", inhalt(kurz))); }},
    };
    const auto stand = [&] { return std::array{inhalt(haus), inhalt(kurz), inhalt(fremd)}; };
    for (const auto& [was, tu] : faelle) {
        tu();
        p().Geaendert = 1;
        plattform().dialoge.clear();
        const auto vorher = stand();
        datei().datei_speichern();
        ASSERT_EQ(plattform().dialoge.size(), 1U) << was;
        EXPECT_EQ(plattform().dialoge[0].ordner, haus.parent_path()) << was;
        EXPECT_EQ(plattform().dialoge[0].dateiname, "haus.vel") << was;
        EXPECT_EQ(stand(), vorher) << was;
        oeffne(haus);
    }
    quelle_waehlen();
    datei().datei_neu();
    datei().datei_speichern();
    EXPECT_EQ(plattform().dialoge.back().dateiname, "") << "a new project";
    EXPECT_EQ(plattform().dialoge.back().ordner, fremd.parent_path()) << "where the last dialog was left";
}

TEST_F(Sichern, DieEigeneDateiBleibtEsAufAllenWegen) {
    const auto verweis = programm.ordner / "verweis.vel", zweites = programm.ordner / "zweites.vel";
    fs::create_symlink(haus, verweis);
    const std::vector<std::pair<fs::path, std::function<void()>>> faelle{
        {haus, [&] { oeffne(verweis); }},
        {haus, [&] { oeffne(fs::relative(haus)); }},
        {zweites, [&] { speichere_unter(zweites); }},
        {zweites, [&] { fs::remove(zweites); }},
    };
    int meter = 20;
    for (const auto& [ziel, tu] : faelle) {
        tu();
        plattform().dialoge.clear();
        plattform().meldungen.clear();
        laenge(++meter);
        datei().datei_speichern();
        EXPECT_TRUE(plattform().dialoge.empty() && plattform().meldungen.empty()) << meter;
        EXPECT_EQ(laenge_in(ziel), meter);
        EXPECT_EQ(p().Geaendert, 0);
    }
    EXPECT_TRUE(fs::is_symlink(verweis));
}

TEST_F(Sichern, EineDateiDieEinAndererGeaendertHatWirdNurAufFrageErsetzt) {
    const std::string anderer = inhalt(haus) + "mehr\r\n";
    programm.ordner.schreibe("projekte/haus.vel", anderer);
    laenge(14);
    plattform().antworten = {Antwort::nein};
    datei().datei_speichern();
    EXPECT_EQ(meldung().text, pfadtext(haus) + "\n" + p().texte.txt_Ersetzen);
    EXPECT_THAT(meldung().hinweis, HasSubstr("geändert, seit"));
    EXPECT_EQ(p().Geaendert, 1);

    plattform().antworten = {Antwort::ja, Antwort::nein};
    datei().datei_neu();
    EXPECT_EQ(p().l, 14) << "what could not be saved stays";
    EXPECT_EQ(inhalt(haus), anderer);

    plattform().antworten = {Antwort::ja};
    datei().datei_speichern();
    EXPECT_EQ(laenge_in(haus), 14);
    plattform().meldungen.clear();
    datei().datei_speichern();
    EXPECT_TRUE(plattform().meldungen.empty());
    programm.ordner.schreibe("projekte/haus.vel", anderer);
    speichere_unter(kurz, Antwort::nein);
    EXPECT_EQ(meldung().hinweis, "") << "the question is about another file";
}

TEST(Dateiwahl, DieDialogeBeginnenWoDerLetzteWar) {
    test::Projektlauf neu;
    Haupt& h = *neu.programm.haupt;
    const fs::path ordner = neu.programm.ordner.pfad();
    const fs::path haus = ordner / "projekte/Haus 2.5.VEL";
    fs::rename(neu.haus, haus);
    fs::create_directories(ordner / "papier");
    const auto beginnt = [&neu](const std::function<void()>& tu, const fs::path& ort, const std::string& name,
                                const fs::path& antwort) {
        if (!antwort.empty()) neu.plattform().dateien = {antwort};
        tu();
        EXPECT_EQ(neu.plattform().dialoge.back().ordner, ort) << name;
        EXPECT_EQ(neu.plattform().dialoge.back().dateiname, name);
    };
    const auto oeffnen = [&h] { h.datei.datei_oeffnen({}); };
    const auto speichern = [&h] { h.datei.datei_speichern_unter(); };
    const auto bericht = [&h] { h.a_report.report_zeigen(), h.a_report.speichern(); };
    beginnt(speichern, ordner, "", {});
    beginnt(oeffnen, ordner, "", haus);
    beginnt(bericht, haus.parent_path(), "Haus 2.5.rtf", ordner / "papier/x.rtf");
    beginnt([&h] { h.e_klimaimport.Command1.druecke(); }, ordner / "papier", "", haus);
    beginnt(speichern, haus.parent_path(), "Haus 2.5.VEL", haus.parent_path() / "anders.bau");
    beginnt(bericht, haus.parent_path(), "anders.bau.rtf", {});
    neu.plattform().antworten = {Antwort::nein};
    beginnt(bericht, ordner / "klima", "trier.met", ordner / "klima/trier.met");
    fs::rename(ordner / "projekte", ordner / "weg");
    h.p.InitDir = ordner / "weg/Haus 2.5.VEL";  // the command line may name a project
    beginnt(oeffnen, ordner / "weg", "", {});
}

}  // namespace
}  // namespace velmaris
