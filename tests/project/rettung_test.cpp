#include "project/rettung.h"

#include "tests/project/projektlauf.h"
#include "tests/volle_festplatte.h"
#include "toolkit/fehler.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <optional>

namespace velmaris {
namespace {

namespace fs = std::filesystem;
using test::aus_rettung;
using testing::HasSubstr;

/// A program with a changed project, 20 m long; opened from a file or, unless `benannt`, a new one.
class Fall : public test::Projektlauf {
  public:
    explicit Fall(bool benannt) {
        if (benannt) oeffne(haus);
        laenge(20);
    }

    /// The rescue files that the messages name.
    [[nodiscard]] std::vector<fs::path> gerettet() const {
        std::vector<fs::path> dateien;
        for (const Meldung& meldung : programm.plattform.meldungen)
            if (meldung.hinweis.find("Velmaris_Rettung") != std::string::npos)
                dateien.push_back(pfad(meldung.hinweis));
        return dateien;
    }

    fs::path anderes = schreibe("anderes.vel", 2, " 11");
};

TEST(Rettung, BewahrtWasNachDemJaNichtGespeichertWird) {
    const std::map<std::string, std::function<void(Fall&)>> befehle{
        {"new", [](Fall& f) { f.datei().datei_neu(); }},
        {"open", [](Fall& f) { f.datei().datei_oeffnen(pfadtext(f.anderes)); }},
        {"exit", [](Fall& f) { f.datei().programm_beenden(); }},
        {"close", [](Fall& f) { f.datei().fenster_schliessen(); }},
    };
    enum class Platte { frei, gesperrt, voll };
    struct Lage {
        bool benannt;
        Platte platte;
        Antwort antwort;
        bool getan;  ///< the command is carried out
        std::size_t gerettet;
        std::string meldung;
    };
    for (const auto& [name, tu] : befehle) {
        for (const Lage& lage :
             {Lage{false, Platte::frei, Antwort::ja, true, 1, "liegt in der Rettungsdatei"},
              {false, Platte::voll, Antwort::ja, false, 0, "bleibt geöffnet"},
              {true, Platte::gesperrt, Antwort::ja, false, 1, ""},
              {true, Platte::frei, Antwort::ja, true, 0, ""},
              {true, Platte::frei, Antwort::nein, true, 0, ""},
              {true, Platte::frei, Antwort::abbrechen, false, 0, ""}}) {
            Fall f(lage.benannt);
            std::optional<test::VolleFestplatte> voll;
            if (lage.platte == Platte::voll) voll.emplace(100);
            if (lage.platte == Platte::gesperrt) fs::permissions(f.haus, fs::perms::owner_read);
            f.plattform().antworten = {lage.antwort, Antwort::ja};
            if (lage.benannt) f.plattform().dateien = {f.haus};
            tu(f);
            EXPECT_EQ(f.plattform().beendet || f.p().l < 20, lage.getan) << name << lage.meldung;
            EXPECT_THAT(f.meldung().text, HasSubstr(lage.meldung)) << name;
            ASSERT_EQ(f.gerettet().size(), lage.gerettet) << name << lage.meldung;
            EXPECT_TRUE(lage.getan || f.p().Geaendert == 1) << name;
            for (const fs::path& datei : f.gerettet()) {
                EXPECT_EQ(datei.parent_path(),
                          lage.benannt ? f.haus.parent_path() : fs::temp_directory_path());
                EXPECT_EQ(aus_rettung(datei)->p().l, 20) << name;
            }
        }
    }
}

TEST(Rettung, WerDochNichtOeffnetVerliertNichts) {
    Fall f(false);
    for (const char* wohin : {"", "nirgends.vel"}) {
        f.oeffne(wohin, Antwort::ja);
        EXPECT_TRUE(f.gerettet().empty()) << wohin;
        EXPECT_EQ(f.p().l, 20);
        EXPECT_EQ(f.p().Geaendert, 1);
    }
}

TEST(Rettung, HaeltDenLetztenStandDerSichRechnenLiess) {
    Fall f(true);
    const Rettung& rettung = f.programm.haupt->rettung;
    EXPECT_TRUE(rettung.hat_stand());
    f.p().l = 0;
    f.p().kwn = 9;
    EXPECT_THROW(f.programm.haupt->alles_berechnen(), Laufzeitfehler);
    for (const char* name : {"Velmaris_Rettung.vel", "Velmaris_Rettung_2.vel", "Velmaris_Rettung_3.vel"}) {
        const auto datei = rettung.projekt_retten();
        EXPECT_EQ(datei, f.haus.parent_path() / name);
        EXPECT_EQ(f.laenge_in(*datei), 20);
    }
    const auto wieder = aus_rettung(*rettung.letzten_stand_retten());
    EXPECT_EQ(wieder->p().l, 20);
    EXPECT_EQ(wieder->p().kwn, 0.2F);
}

TEST(Rettung, EinHalbGelesenesProjektWeichtDemVorigen) {
    Fall f(true);
    f.oeffne(f.schreibe("weit.vel", 2, " 60"));
    EXPECT_EQ(f.p().FormLoadGuard, -1);
    f.programm.haupt->e_geometrie.b_sb.setze(150);
    f.plattform().antworten = {Antwort::ja};
    f.datei().datei_neu();
    ASSERT_EQ(f.gerettet().size(), 1U);
    EXPECT_EQ(f.laenge_in(f.gerettet()[0]), 20);
}

TEST(Rettung, OhneGerechnetenStandGibtEsNichts) {
    test::Projektlauf lauf;
    Sitzung sitzung{lauf.p(), lauf.plattform(), [] {}};
    Rettung rettung(sitzung);
    lauf.p().FormLoadGuard = -1;
    rettung.rechnung_gelungen();
    EXPECT_FALSE(rettung.hat_stand() || rettung.letzten_stand_retten() || rettung.projekt_retten());
}

}  // namespace
}  // namespace velmaris
