#include "project/FILEIO.h"
#include "tests/testprogramm.h"
#include "toolkit/text.h"

#include <functional>
#include <gtest/gtest.h>
#include <map>

namespace velmaris {
namespace {

namespace fs = std::filesystem;
using test::inhalt;
using test::projekttext;
using test::projektzeilen;
using test::Testprogramm;

/// A program that has opened "haus.vel", a house 12 m long, and changed it.
class Sichern : public testing::Test {
  protected:
    Sichern() {
        auto zeilen = projektzeilen(p());
        zeilen[1] = " 12";
        haus = programm.ordner.schreibe("projekte/haus.vel", projekttext(zeilen));
        zeilen.resize(20);
        kurz = programm.ordner.schreibe("kurz.vel", projekttext(zeilen));
        fremd = programm.ordner.schreibe("fremd/wetter.epw", "LOCATION\r\n");
        datei().datei_oeffnen(pfadtext(haus));
        laenge(13);
    }

    FILEIO& datei() { return programm.haupt->datei; }
    Projekt& p() { return programm.p(); }
    test::Testplattform& plattform() { return programm.plattform; }
    void laenge(int meter) { programm.haupt->e_geometrie.l_sb.setze(10 * meter); }

    void quelle_waehlen() {
        plattform().dateien = {fremd};
        programm.haupt->e_klimaimport.Command1.druecke();
    }

    void oeffnen_ohne_sichern(const fs::path& pfad) {
        plattform().antworten = {Antwort::nein};
        datei().datei_oeffnen(pfadtext(pfad));
    }

    /// All files below the program's folder with their bytes.
    [[nodiscard]] std::map<fs::path, std::string> stand() const {
        std::map<fs::path, std::string> dateien;
        for (const auto& eintrag : fs::recursive_directory_iterator(programm.ordner.pfad()))
            if (eintrag.is_regular_file()) dateien[eintrag.path()] = inhalt(eintrag.path());
        return dateien;
    }

    Testprogramm programm;
    fs::path haus, kurz, fremd;
};

TEST_F(Sichern, NurDieEigeneDateiWirdOhneFrageGeschrieben) {
    struct Fall {
        const char* was;
        std::function<void()> tu;
    };
    const std::vector<Fall> faelle{
        {"import source", [&] { quelle_waehlen(); }},
        {"import source, then a cancelled dialog",
         [&] {
             quelle_waehlen();
             datei().datei_speichern_unter();
         }},
        {"file cut off", [&] { oeffnen_ohne_sichern(kurz); }},
        {"file not there", [&] { oeffnen_ohne_sichern(programm.ordner / "nirgends.vel"); }},
        {"no project", [&] { oeffnen_ohne_sichern(fremd); }},
        {"a file not to be replaced after all",
         [&] {
             plattform().dateien = {kurz};
             plattform().antworten = {Antwort::nein};
             datei().datei_speichern_unter();
         }},
        {"folder that is not there",
         [&] {
             plattform().dateien = {programm.ordner / "nirgends/haus.vel"};
             datei().datei_speichern_unter();
         }},
        {"the own file, damaged meanwhile",
         [&] {
             programm.ordner.schreibe("projekte/haus.vel", inhalt(kurz));
             oeffnen_ohne_sichern(haus);
         }},
    };
    for (const Fall& fall : faelle) {
        fall.tu();
        p().Geaendert = 1;
        plattform().dialoge.clear();
        const auto vorher = stand();
        datei().datei_speichern();
        ASSERT_EQ(plattform().dialoge.size(), 1U) << fall.was;
        EXPECT_EQ(plattform().dialoge[0].ordner, haus.parent_path()) << fall.was;
        EXPECT_EQ(plattform().dialoge[0].dateiname, "haus.vel") << fall.was;
        EXPECT_EQ(stand(), vorher) << fall.was;
        plattform().antworten = {Antwort::ja};
        datei().datei_neu();
        EXPECT_EQ(plattform().dialoge.size(), 2U)
            << fall.was << ": the Yes of the question asks for a name too";
        oeffnen_ohne_sichern(haus);
    }
}

TEST_F(Sichern, EinNeuesProjektHatKeinenNamen) {
    quelle_waehlen();
    oeffnen_ohne_sichern(haus);
    datei().datei_neu();
    datei().datei_speichern();
    EXPECT_EQ(plattform().dialoge.back().dateiname, "");
    EXPECT_EQ(plattform().dialoge.back().ordner, fremd.parent_path()) << "where the last dialog was left";
}

TEST_F(Sichern, DieEigeneDateiBleibtEsAufAllenWegen) {
    const auto verweis = programm.ordner / "verweis.vel";
    fs::create_symlink(haus, verweis);
    const auto zweites = programm.ordner / "zweites.vel";
    const std::vector<std::pair<fs::path, std::function<void()>>> faelle{
        {haus, [] {}},
        {haus, [&] { oeffnen_ohne_sichern(verweis); }},
        {haus, [&] { oeffnen_ohne_sichern(fs::relative(haus)); }},
        {zweites,
         [&] {
             plattform().dateien = {zweites};
             datei().datei_speichern_unter();
         }},
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
        EXPECT_NE(inhalt(ziel).find("3.2\r\n " + std::to_string(meter) + "\r\n"), std::string::npos) << meter;
        EXPECT_EQ(p().Geaendert, 0);
    }
    EXPECT_TRUE(fs::is_symlink(verweis));
}

TEST_F(Sichern, EineDateiDieEinAndererGeaendertHatWirdNurAufFrageErsetzt) {
    const std::string anderer = inhalt(haus) + "mehr\r\n";
    fs::last_write_time(haus, fs::file_time_type::clock::now());
    datei().datei_speichern();
    EXPECT_TRUE(plattform().meldungen.empty()) << "touched, but as it was";

    programm.ordner.schreibe("projekte/haus.vel", anderer);
    laenge(14);
    plattform().antworten = {Antwort::nein};
    datei().datei_speichern();
    ASSERT_EQ(plattform().meldungen.size(), 1U);
    const Meldung& frage = plattform().meldungen[0];
    EXPECT_EQ(frage.text, pfadtext(haus) + "\n" + p().texte.txt_Ersetzen);
    EXPECT_EQ(frage.vorgabe, Antwort::nein);
    EXPECT_NE(frage.hinweis.find("geändert, seit"), std::string::npos);
    EXPECT_EQ(inhalt(haus), anderer);
    EXPECT_EQ(p().Geaendert, 1);

    plattform().antworten = {Antwort::ja, Antwort::nein};
    datei().datei_neu();
    EXPECT_EQ(p().l, 14) << "what could not be saved stays";
    EXPECT_EQ(inhalt(haus), anderer);

    plattform().antworten = {Antwort::ja};
    datei().datei_speichern();
    EXPECT_NE(inhalt(haus).find("3.2\r\n 14\r\n"), std::string::npos);
    laenge(15);
    plattform().meldungen.clear();
    datei().datei_speichern();
    EXPECT_TRUE(plattform().meldungen.empty());
}

TEST_F(Sichern, DieDialogeBeginnenWoDerLetzteWar) {
    Testprogramm neu("e");
    fs::create_directories(neu.ordner / "papier");
    const auto haus2 = neu.ordner.schreibe("projekte/Haus 2.5.VEL", inhalt(haus));
    Haupt& h = *neu.haupt;
    auto& dialoge = neu.plattform.dialoge;
    struct Fall {
        std::function<void()> tu;
        fs::path antwort, ordner;
        std::string name;
    };
    const std::vector<Fall> faelle{
        {[&] { h.datei.datei_speichern_unter(); }, {}, neu.ordner.pfad(), ""},
        {[&] { h.datei.datei_oeffnen({}); }, haus2, neu.ordner.pfad(), ""},
        {[&] { h.a_report.report_zeigen(), h.a_report.speichern(); }, neu.ordner / "papier/x.rtf",
         haus2.parent_path(), "Haus 2.5.rtf"},
        {[&] { h.a_report.temperaturverlauf_zeigen(), h.a_report.speichern(); },
         {},
         neu.ordner / "papier",
         "Haus 2.5.txt"},
        {[&] { h.e_klimaimport.Command1.druecke(); }, haus2, neu.ordner / "papier", ""},
        {[&] { h.datei.datei_speichern_unter(); }, haus2, haus2.parent_path(), "Haus 2.5.VEL"},
        {[&] { h.datei.datei_oeffnen({}); }, {}, haus2.parent_path(), ""},
    };
    for (std::size_t i = 0; i < faelle.size(); ++i) {
        if (!faelle[i].antwort.empty()) neu.plattform.dateien = {faelle[i].antwort};
        neu.plattform.antworten = {Antwort::ja};
        faelle[i].tu();
        ASSERT_EQ(dialoge.size(), i + 1);
        EXPECT_EQ(dialoge.back().ordner, faelle[i].ordner) << i;
        EXPECT_EQ(dialoge.back().dateiname, faelle[i].name) << i;
    }
    fs::rename(neu.ordner / "projekte", neu.ordner / "weg");
    h.p.InitDir = neu.ordner / "weg/Haus 2.5.VEL";
    h.datei.datei_oeffnen({});
    EXPECT_EQ(dialoge.back().ordner, neu.ordner / "weg") << "the command line may name a project";
}

}  // namespace
}  // namespace velmaris
