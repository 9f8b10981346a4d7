#include "project/rettung.h"

#include "project/FILEIO.h"
#include "tests/testprogramm.h"
#include "tests/volle_festplatte.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"

#include <functional>
#include <gtest/gtest.h>
#include <set>

namespace velmaris {
namespace {

namespace fs = std::filesystem;
using test::aus_rettung;
using test::Testprogramm;

/// A program with a changed project, 20 m long; opened from "haus.vel" or, unless `benannt`, a new one.
class Fall {
  public:
    explicit Fall(bool benannt, const std::string& sprache = "d") : programm(sprache) {
        if (benannt) {
            haus = programm.ordner.schreibe("haus.vel", test::projekttext(test::projektzeilen(p())));
            datei().datei_oeffnen(pfadtext(haus));
        }
        anderes = programm.ordner.schreibe("anderes.vel", test::projekttext(test::projektzeilen(p())));
        programm.haupt->e_geometrie.l_sb.setze(200);
    }

    FILEIO& datei() { return programm.haupt->datei; }
    Projekt& p() { return programm.p(); }

    /// The rescue files that the messages name.
    [[nodiscard]] std::vector<fs::path> gerettet() const {
        std::vector<fs::path> dateien;
        for (const Meldung& meldung : programm.plattform.meldungen)
            if (meldung.hinweis.find("Velmaris_Rettung") != std::string::npos)
                dateien.push_back(pfad(meldung.hinweis));
        return dateien;
    }

    Testprogramm programm;
    fs::path haus, anderes;
};

struct Befehl {
    const char* name;
    std::function<void(Fall&)> tu;
    std::function<bool(Fall&)> getan;
};

const std::vector<Befehl>& befehle() {
    const auto beendet = [](Fall& f) { return f.programm.plattform.beendet; };
    const auto ersetzt = [](Fall& f) { return f.p().l == 10; };
    static const std::vector<Befehl> alle{
        {"new", [](Fall& f) { f.datei().datei_neu(); }, ersetzt},
        {"open", [](Fall& f) { f.datei().datei_oeffnen(pfadtext(f.anderes)); }, ersetzt},
        {"exit", [](Fall& f) { f.datei().programm_beenden(); }, beendet},
        {"close", [](Fall& f) { f.datei().fenster_schliessen(); }, beendet},
    };
    return alle;
}

TEST(Rettung, WasNachDemJaNichtGespeichertWirdLiegtInEinerRettungsdatei) {
    for (const Befehl& befehl : befehle()) {
        Fall f(false, "e");
        f.programm.plattform.antworten = {Antwort::ja};
        befehl.tu(f);
        EXPECT_EQ(f.programm.plattform.dialoge.size(), 1U) << befehl.name;
        EXPECT_TRUE(befehl.getan(f)) << befehl.name;
        ASSERT_EQ(f.gerettet().size(), 1U) << befehl.name;
        EXPECT_NE(f.programm.plattform.meldungen.back().text.find("rescue file"), std::string::npos);
        EXPECT_EQ(aus_rettung(f.gerettet()[0])->p().l, 20) << befehl.name;
    }
}

TEST(Rettung, EinGescheitertesSpeichernHaeltDenBefehlAuf) {
    for (const Befehl& befehl : befehle()) {
        Fall f(true);
        fs::permissions(f.haus, fs::perms::owner_read);
        f.programm.plattform.antworten = {Antwort::ja, Antwort::ja};
        f.programm.plattform.dateien = {f.haus};
        befehl.tu(f);
        EXPECT_FALSE(befehl.getan(f)) << befehl.name;
        EXPECT_EQ(f.p().Geaendert, 1) << befehl.name;
        ASSERT_EQ(f.gerettet().size(), 1U) << befehl.name;
        EXPECT_EQ(f.gerettet()[0].parent_path(), f.haus.parent_path()) << "beside the project";
        EXPECT_EQ(aus_rettung(f.gerettet()[0])->p().l, 20) << befehl.name;
    }
}

TEST(Rettung, WoNichtsVerlorenGehtEntstehtKeine) {
    for (const Befehl& befehl : befehle()) {
        for (const Antwort antwort : {Antwort::nein, Antwort::abbrechen, Antwort::ja}) {
            Fall f(true);
            f.programm.plattform.antworten = {antwort, Antwort::ja};
            f.programm.plattform.dateien = {f.haus};
            befehl.tu(f);
            EXPECT_TRUE(f.gerettet().empty()) << befehl.name;
            EXPECT_EQ(befehl.getan(f), antwort != Antwort::abbrechen) << befehl.name;
        }
    }
    Fall f(false);
    for (const char* wohin : {"", "nirgends.vel"}) {
        f.programm.plattform.antworten = {Antwort::ja};
        f.datei().datei_oeffnen(wohin);
        EXPECT_TRUE(f.gerettet().empty()) << wohin;
        EXPECT_EQ(f.p().l, 20);
        EXPECT_EQ(f.p().Geaendert, 1);
    }
}

TEST(Rettung, WennAuchSieScheitertBleibtDasProjekt) {
    for (const Befehl& befehl : befehle()) {
        Fall f(false);
        f.programm.plattform.antworten = {Antwort::ja};
        const test::VolleFestplatte voll(100);
        befehl.tu(f);
        EXPECT_FALSE(befehl.getan(f)) << befehl.name;
        EXPECT_EQ(f.p().Geaendert, 1) << befehl.name;
        EXPECT_NE(f.programm.plattform.meldungen.back().text.find("bleibt geöffnet"), std::string::npos);
    }
}

TEST(Rettung, HaeltDenLetztenStandDerSichRechnenLiess) {
    Fall f(true);
    EXPECT_TRUE(f.programm.haupt->rettung.hat_stand());
    f.p().l = 0;
    f.p().kwn = 9;
    EXPECT_THROW(f.programm.haupt->alles_berechnen(), Laufzeitfehler);
    const Rettung& rettung = f.programm.haupt->rettung;
    std::set<fs::path> namen;
    for (const auto& datei : {rettung.letzten_stand_retten(), rettung.projekt_retten()}) {
        ASSERT_TRUE(datei.has_value());
        namen.insert(datei->filename());
        f.programm.plattform.meldungen.push_back({.text = {}, .hinweis = pfadtext(*datei)});
    }
    EXPECT_EQ(namen, (std::set<fs::path>{"Velmaris_Rettung.vel", "Velmaris_Rettung_2.vel"}));
    for (const fs::path& datei : f.gerettet()) {
        const auto wieder = aus_rettung(datei);
        EXPECT_EQ(wieder->p().l, 20);
        EXPECT_FLOAT_EQ(wieder->p().kwn, 0.2F);
    }
}

TEST(Rettung, EinHalbGelesenesProjektWeichtDemVorigen) {
    Fall f(true);
    auto zeilen = test::projektzeilen(f.p());
    zeilen[1] = " 60";
    f.programm.plattform.antworten = {Antwort::nein};
    f.datei().datei_oeffnen(pfadtext(f.programm.ordner.schreibe("weit.vel", test::projekttext(zeilen))));
    EXPECT_EQ(f.p().FormLoadGuard, -1);
    f.programm.haupt->e_geometrie.b_sb.setze(150);
    f.programm.plattform.antworten = {Antwort::ja};
    f.datei().datei_neu();
    ASSERT_EQ(f.gerettet().size(), 1U);
    EXPECT_EQ(aus_rettung(f.gerettet()[0])->p().l, 20);
}

TEST(Rettung, OhneGerechnetenStandGibtEsNichts) {
    Testprogramm programm;
    Projekt& p = programm.p();
    Sitzung sitzung{p, programm.plattform, [] {}};
    Rettung rettung(sitzung);
    p.FormLoadGuard = -1;
    rettung.rechnung_beginnt();
    rettung.rechnung_gelungen();
    EXPECT_FALSE(rettung.hat_stand());
    EXPECT_FALSE(rettung.letzten_stand_retten().has_value());
    EXPECT_FALSE(rettung.projekt_retten().has_value());
}

}  // namespace
}  // namespace velmaris
