#include "studies/rechenplatz.h"

#include "planes/projekt_rechnen.h"
#include "planes/scrolltabelle.h"
#include "tests/testprogramm.h"
#include "toolkit/csvleser.h"
#include "toolkit/text.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <sstream>

namespace velmaris {
namespace {

/// Values of an input that a row may try: what a project can hold, what it rounds and what it refuses.
class Wuerfel {
  public:
    std::string wert(const Feldzeile& feld) {
        if (feld.name == "Klimadatei") return aus({"trier.met", "sued.met", "fern.met", "fehlt.met"});
        if (const Scrollzeile* zeile = reglerzeile(feld.name)) return reglerwert(*zeile);
        if (feld.name == "Waermebruecken") return aus({"0", "0.1", "0.05", "0.07"});
        if (feld.name.ends_with("_typ")) return std::to_string(ganz(0, 7));
        if (feld.name == "Heizsystem") return std::to_string(ganz(1, 9));
        return std::to_string(ganz(0, 2));
    }

    int ganz(int von, int bis) { return std::uniform_int_distribution(von, bis)(zufall_); }

  private:
    std::string aus(std::initializer_list<const char*> werte) {
        return *(werte.begin() + ganz(0, static_cast<int>(werte.size()) - 1));
    }

    static const Scrollzeile* reglerzeile(std::string_view name) {
        const auto zeilen = scrollzeilen();
        const auto treffer = std::ranges::find(
            zeilen, name, [](const Scrollzeile& z) { return z.name.substr(0, z.name.size() - 3); });
        return treffer == zeilen.end() ? nullptr : &*treffer;
    }

    std::string reglerwert(const Scrollzeile& zeile) {
        const int rand = ganz(0, 60) == 0 ? 1 : 0;  // seldom a step too far
        const double stelle = ganz(zeile.minimum - rand, zeile.maximum + rand);
        const double daneben = ganz(0, 3) == 0 ? 0.3 : 0;
        return kuerzeste(f32((stelle + daneben) / zeile.teiler + 0.0));
    }

    std::mt19937 zufall_{20240607};
};

/// All numbers and texts of a calculated project, one a line.
std::string alle_werte(const Projekt& p, const Kennwerte& kennwerte) {
    std::ostringstream text;
    text << std::hexfloat;
    const auto dazu = [&](const auto& satz, const auto& zeilen) {
        for (const auto& zeile : zeilen)
            std::visit([&](auto ort) { text << zeile.name << ' ' << satz.*ort << '\n'; }, zeile.zeiger);
    };
    dazu(p, felder());
    for (const Monatswerte& monat : p.Monat)
        dazu(monat, monatsfelder());
    for (const Kennwertzeile& zeile : kennwertfelder())
        text << zeile.name << ' ' << kennwerte.*zeile.zeiger << '\n';
    return text.str();
}

class RechenplatzTest : public testing::Test {
  protected:
    RechenplatzTest() {
        std::string sued = test::stationsbytes("Sued (Land)");
        sued.replace(sued.find("49.75"), 5, "-33.0");
        programm.ordner.schreibe("klima/sued.met", sued);
        zeilen = test::projektzeilen(programm.p());
        for (const Feldzeile& feld : felder()) {
            if (feld.zeile > 0) spalten.push_back(&feld);
        }
    }

    /// What the opening of a project file with these values calculates, or its fault.
    std::string geoeffnet(const Planzeile& zeile) {
        auto neue = zeilen;
        for (std::size_t i = 0; i < spalten.size(); ++i)
            neue[static_cast<std::size_t>(spalten[i]->zeile - 1)] = zeile.zellen[i];
        const auto datei = programm.ordner.schreibe("zeile.vel", test::projekttext(neue));
        try {
            const auto haupt = projekt_rechnen(plattform, programm.ordner.pfad(), "e", pfadtext(datei));
            return alle_werte(haupt->p, haupt->e_energie.kennwerte());
        } catch (const Dateifehler& fehler) {
            return fehler.grund().en;
        }
    }

    static std::string gerechnet(Rechenplatz& platz, const Planzeile& zeile) {
        try {
            platz.rechnen(zeile);
            return alle_werte(platz.stand().p, platz.stand().kennwerte);
        } catch (const Laufzeitfehler& fehler) {
            return fehler.grund().en;
        }
    }

    test::Testprogramm programm{"e"};
    test::Testplattform plattform;
    std::vector<std::string> zeilen;
    std::vector<const Feldzeile*> spalten;
};

TEST_F(RechenplatzTest, ZeilenNacheinanderGleichenEinzelnGeoeffnetenProjekten) {
    Stationsvorrat stationen(programm.ordner.pfad(), {}, [](const Zweisprachig&) {});
    const Studiengrundlage grundlage{.programmordner = programm.ordner.pfad(),
                                     .sprache = "e",
                                     .basis = projektposten(test::projekttext(zeilen), "haus.vel"),
                                     .spalten = spalten,
                                     .ergebnisse = {},
                                     .stationen = stationen};
    Rechenplatz platz(grundlage);
    Wuerfel wuerfel;
    int gerechnete = 0;
    for (std::uint64_t nummer = 1; nummer <= 300; ++nummer) {
        Planzeile zeile{.nummer = nummer, .zellen = {}};
        const bool alles = nummer % 4 == 0;  // the other rows change a few inputs of the new project
        for (const Feldzeile* feld : spalten) {
            const bool neu = alles || wuerfel.ganz(0, 8) == 0;
            zeile.zellen.push_back(
                neu ? wuerfel.wert(*feld)
                    : std::string(ohne_blanks(zeilen[static_cast<std::size_t>(feld->zeile - 1)])));
        }
        const std::string soll = geoeffnet(zeile);
        ASSERT_EQ(gerechnet(platz, zeile), soll) << "row " << nummer;
        gerechnete += soll.starts_with("l ") ? 1 : 0;
    }
    EXPECT_GT(gerechnete, 100);
    EXPECT_LT(gerechnete, 290);
}

}  // namespace
}  // namespace velmaris
