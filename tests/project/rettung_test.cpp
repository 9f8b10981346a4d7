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

    /// The rescue file that a message names, empty if there is none.
    [[nodiscard]] fs::path gerettet() const {
        for (const Meldung& meldung : programm.plattform.meldungen)
            if (meldung.hinweis.find("Velmaris_Rettung") != std::string::npos) return pfad(meldung.hinweis);
        return {};
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
        bool getan, gerettet;  ///< whether the command is carried out, and a rescue file written
        std::string meldung;
    };
    for (const auto& [name, tu] : befehle) {
        for (const Lage& lage :
             {Lage{false, Platte::frei, Antwort::ja, true, true, "liegt in der Rettungsdatei"},
              {false, Platte::voll, Antwort::ja, false, false, "bleibt geöffnet"},
              {true, Platte::gesperrt, Antwort::ja, false, true, ""},
              {true, Platte::frei, Antwort::ja, true, false, ""},
              {true, Platte::frei, Antwort::nein, true, false, ""},
              {true, Platte::frei, Antwort::abbrechen, false, false, ""}}) {
            Fall f(lage.benannt);
            std::optional<test::VolleFestplatte> voll;
            if (lage.platte == Platte::voll) voll.emplace(100);
            if (lage.platte == Platte::gesperrt) fs::permissions(f.haus, fs::perms::owner_read);
            f.plattform().antworten = {lage.antwort, Antwort::ja};
            if (lage.benannt) f.plattform().dateien = {f.haus};
            tu(f);
            EXPECT_EQ(f.plattform().beendet || f.p().l < 20, lage.getan) << name << lage.meldung;
            EXPECT_THAT(f.meldung().text, HasSubstr(lage.meldung)) << name;
            EXPECT_TRUE(lage.getan || f.p().Geaendert == 1) << name;
            const fs::path datei = f.gerettet();
            ASSERT_EQ(!datei.empty(), lage.gerettet) << name << lage.meldung;
            if (!lage.gerettet) continue;
            EXPECT_EQ(datei.parent_path(), lage.benannt ? f.haus.parent_path() : fs::temp_directory_path());
            EXPECT_EQ(aus_rettung(datei)->p().l, 20) << name;
        }
    }
}

TEST(Rettung, HaeltDenLetztenStandDerSichRechnenLiess) {
    Fall f(true);
    const Rettung& rettung = f.programm.haupt->rettung;
    EXPECT_TRUE(rettung.hat_stand());
    f.p().l = 21;
    EXPECT_EQ(aus_rettung(*rettung.projekt_retten())->p().l, 21) << "changed without a calculation";
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
    f.programm.haupt->e_geometrie.b_sb.setze(150);
    f.plattform().antworten = {Antwort::ja};
    f.datei().datei_neu();
    EXPECT_EQ(f.laenge_in(f.gerettet()), 20);
}

}  // namespace
}  // namespace velmaris
