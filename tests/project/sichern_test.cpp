#include "project/dateiwahl.h"
#include "tests/project/projektlauf.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>

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

    /// All files below the program's folder with their bytes.
    [[nodiscard]] std::map<fs::path, std::string> stand() const {
        std::map<fs::path, std::string> dateien;
        for (const auto& eintrag : fs::recursive_directory_iterator(programm.ordner.pfad()))
            if (eintrag.is_regular_file()) dateien[eintrag.path()] = inhalt(eintrag.path());
        return dateien;
    }

    fs::path kurz = programm.ordner.schreibe("kurz.vel", inhalt(haus).substr(0, 60));
    fs::path fremd = programm.ordner.schreibe("fremd/wetter.epw", "LOCATION\r\n");
};

TEST_F(Sichern, NurDieEigeneDateiWirdOhneFrageGeschrieben) {
    const std::vector<std::pair<const char*, std::function<void()>>> faelle{
        {"import source", [&] { quelle_waehlen(); }},
        {"file cut off", [&] { oeffne(kurz); }},
        {"no project", [&] { oeffne(fremd); }},
        {"a file not to be replaced after all",
         [&] {
             plattform().antworten = {Antwort::nein};
             speichere_unter(kurz);
         }},
        {"folder that is not there", [&] { speichere_unter(programm.ordner / "nirgends/haus.vel"); }},
        {"the own file, damaged meanwhile",
         [&] {
             fs::copy_file(kurz, haus, fs::copy_options::overwrite_existing);
             oeffne(haus);
         }},
    };
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
        plattform().antworten = {Antwort::ja};
        datei().datei_neu();
        EXPECT_EQ(plattform().dialoge.size(), 2U) << was << ": the Yes of the question asks for a name too";
        oeffne(haus);
    }
}

TEST_F(Sichern, EinNeuesProjektHatKeinenNamen) {
    quelle_waehlen();
    oeffne(haus);
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
    fs::last_write_time(haus, fs::file_time_type::clock::now());
    datei().datei_speichern();
    EXPECT_TRUE(plattform().meldungen.empty()) << "touched, but as it was";

    programm.ordner.schreibe("projekte/haus.vel", anderer);
    laenge(14);
    plattform().antworten = {Antwort::nein};
    datei().datei_speichern();
    ASSERT_EQ(plattform().meldungen.size(), 1U);
    EXPECT_EQ(meldung().text, pfadtext(haus) + "\n" + p().texte.txt_Ersetzen);
    EXPECT_EQ(meldung().vorgabe, Antwort::nein);
    EXPECT_THAT(meldung().hinweis, HasSubstr("geändert, seit"));
    EXPECT_EQ(p().Geaendert, 1);

    plattform().antworten = {Antwort::ja, Antwort::nein};
    datei().datei_neu();
    EXPECT_EQ(p().l, 14) << "what could not be saved stays";
    EXPECT_EQ(inhalt(haus), anderer);

    plattform().antworten = {Antwort::ja};
    datei().datei_speichern();
    EXPECT_EQ(laenge_in(haus), 14);
    laenge(15);
    plattform().meldungen.clear();
    datei().datei_speichern();
    EXPECT_TRUE(plattform().meldungen.empty());
}

TEST(Dateiwahl, DieDialogeBeginnenWoDerLetzteWar) {
    test::Projektlauf neu("e");
    Haupt& h = *neu.programm.haupt;
    const fs::path ordner = neu.programm.ordner.pfad();
    fs::create_directories(ordner / "papier");
    const fs::path haus = ordner / "projekte/Haus 2.5.VEL";
    fs::rename(neu.haus, haus);
    struct Fall {
        std::function<void()> tu;
        fs::path antwort, ordner;
        std::string name;
    };
    const std::vector<Fall> faelle{
        {[&] { h.datei.datei_speichern_unter(); }, {}, ordner, ""},
        {[&] { h.datei.datei_oeffnen({}); }, haus, ordner, ""},
        {[&] { h.a_report.report_zeigen(), h.a_report.speichern(); }, ordner / "papier/x.rtf",
         haus.parent_path(), "Haus 2.5.rtf"},
        {[&] { h.e_klimaimport.Command1.druecke(); }, haus, ordner / "papier", ""},
        {[&] { h.datei.datei_speichern_unter(); }, haus.parent_path() / "anders.bau", haus.parent_path(),
         "Haus 2.5.VEL"},
        {[&] { h.a_report.report_zeigen(), h.a_report.speichern(); },
         {},
         haus.parent_path(),
         "anders.bau.rtf"},
    };
    for (const Fall& fall : faelle) {
        if (!fall.antwort.empty()) neu.plattform().dateien = {fall.antwort};
        fall.tu();
        EXPECT_EQ(neu.plattform().dialoge.back().ordner, fall.ordner) << fall.name;
        EXPECT_EQ(neu.plattform().dialoge.back().dateiname, fall.name);
    }
    EXPECT_EQ(neu.plattform().dialoge.size(), faelle.size());
    fs::rename(ordner / "projekte", ordner / "weg");
    h.p.InitDir = ordner / "weg/Haus 2.5.VEL";
    h.datei.datei_oeffnen({});
    EXPECT_EQ(neu.plattform().dialoge.back().ordner, ordner / "weg") << "the command line may name a project";
}

TEST_F(Sichern, EinZielWirdNurNachEinemJaErsetzt) {
    const Dateidialog dialog{.art = Dateidialog::Art::speichern};
    const fs::path neu = programm.ordner / "neu.rtf";
    plattform().dateien = {haus, neu};
    plattform().antworten = {Antwort::nein};
    EXPECT_EQ(zieldatei_erfragen(programm.haupt->sitzung, dialog), neu);
    EXPECT_EQ(plattform().dialoge.back().dateiname, "haus.vel");
    EXPECT_EQ(plattform().dialoge.back().ordner, haus.parent_path());
    EXPECT_EQ(plattform().meldungen.back().text,
              pfadtext(haus) + "\nDiese Datei ist bereits vorhanden.\n\nVorhandene Datei ersetzen?");
    EXPECT_EQ(plattform().meldungen.back().vorgabe, Antwort::nein);
    plattform().dateien = {haus, neu};
    plattform().antworten = {Antwort::ja};
    EXPECT_EQ(zieldatei_erfragen(programm.haupt->sitzung, dialog), haus);
    plattform().dateien.clear();
    EXPECT_EQ(zieldatei_erfragen(programm.haupt->sitzung, dialog), std::nullopt);
}

}  // namespace
}  // namespace velmaris
