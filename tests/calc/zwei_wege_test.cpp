#include "calc/geometrie.h"
#include "calc/monatsbilanz.h"
#include "calc/rechenstufen.h"
#include "climate/klimadatei.h"
#include "climate/strahlung.h"
#include "planes/Haupt.h"
#include "tests/musterprojekt.h"
#include "tests/testplattform.h"
#include "tests/wie_geschrieben.h"
#include "toolkit/text.h"

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

namespace velmaris {
namespace {

/// How many floats lie between the two.
std::int64_t abstand(float a, float b) {
    std::int64_t schritte = 0;
    while (a != b && schritte <= 100) {
        a = std::nextafter(a, b);
        ++schritte;
    }
    return schritte;
}

struct Vergleich {
    std::int64_t groesster = 0;
    std::string ort;

    void float_feld(float a, float b, const std::string& name) {
        const std::int64_t schritte = abstand(a, b);
        if (schritte <= groesster) return;
        groesster = schritte;
        ort = name + ": " + std::to_string(a) + " and " + std::to_string(b);
    }
};

void stunden_vergleichen(const Projekt& a, const Projekt& b, Vergleich& v) {
    fuer_jede_stunde([&](int m, int d, int h, int) {
        const std::string wann = " " + std::to_string(m) + "/" + std::to_string(d) + "/" + std::to_string(h);
        v.float_feld(a.T_frei(m, d, h), b.T_frei(m, d, h), "T_frei" + wann);
        v.float_feld(a.T_regel(m, d, h), b.T_regel(m, d, h), "T_regel" + wann);
        v.float_feld(a.Q_heiz(m, d, h), b.Q_heiz(m, d, h), "Q_heiz" + wann);
        v.float_feld(a.Q_kuehl(m, d, h), b.Q_kuehl(m, d, h), "Q_kuehl" + wann);
    });
}

void monate_vergleichen(const Projekt& a, const Projekt& b, Vergleich& v) {
    for (int m = 1; m <= monate; ++m) {
        const Monatswerte& x = a.Monat(m);
        const Monatswerte& y = b.Monat(m);
        EXPECT_EQ(x.Stunden_kalt, y.Stunden_kalt) << m;
        EXPECT_EQ(x.Stunden_heiss, y.Stunden_heiss) << m;
        EXPECT_EQ(x.Stunden_komfort, y.Stunden_komfort) << m;
        EXPECT_EQ(x.Strahlung_N, y.Strahlung_N) << m;
        EXPECT_EQ(x.Strahlung_S, y.Strahlung_S) << m;
        EXPECT_EQ(x.Strahlung_O, y.Strahlung_O) << m;
        EXPECT_EQ(x.Strahlung_W, y.Strahlung_W) << m;
        const std::string monat = " of month " + std::to_string(m);
        v.float_feld(x.Tmittel, y.Tmittel, "Tmittel" + monat);
        v.float_feld(x.Qh, y.Qh, "Qh" + monat);
        v.float_feld(x.Kuehlbedarf, y.Kuehlbedarf, "Kuehlbedarf" + monat);
        v.float_feld(x.Kuehlgradstunden, y.Kuehlgradstunden, "Kuehlgradstunden" + monat);
        v.float_feld(x.Kuehl_solar, y.Kuehl_solar, "Kuehl_solar" + monat);
        v.float_feld(x.Kuehl_intern, y.Kuehl_intern, "Kuehl_intern" + monat);
        v.float_feld(x.Kuehl_trans, y.Kuehl_trans, "Kuehl_trans" + monat);
        v.float_feld(x.Kuehl_lueft, y.Kuehl_lueft, "Kuehl_lueft" + monat);
    }
}

Vergleich vergleichen(const Projekt& a, const Projekt& b) {
    Vergleich v;
    stunden_vergleichen(a, b, v);
    monate_vergleichen(a, b, v);
    v.float_feld(a.Heizlast_max, b.Heizlast_max, "Heizlast_max");
    v.float_feld(a.Kuehllast_max, b.Kuehllast_max, "Kuehllast_max");
    return v;
}

/// Calculates the record as it stands both ways and compares.
void beide_wege(Projekt& schnell) {
    const auto geschrieben = std::make_unique<Projekt>(schnell);
    monatsstrahlung_berechnen(schnell);
    geometrie_stufe(schnell);
    bilanz_stufe(schnell);
    simulation_stufe(schnell);

    test::monatsstrahlung_wie_geschrieben(*geschrieben);
    geometrie_berechnen(*geschrieben);
    monatsbilanz(*geschrieben);
    test::stundensimulation_wie_geschrieben(*geschrieben);

    const Vergleich v = vergleichen(schnell, *geschrieben);
    EXPECT_LE(v.groesster, 4) << v.ort;
}

TEST(ZweiWege, SchnelleRechnungSpeichertDasselbeWieDieFormelnJederStunde) {
    for (const test::Musterort& ort : test::musterorte()) {
        for (const test::Musterhaus& haus : test::musterhaeuser()) {
            SCOPED_TRACE(ort.name + ", " + haus.name);
            const auto projekt = test::musterprojekt(ort);
            haus.einrichten(*projekt);
            beide_wege(*projekt);
        }
    }
}

TEST(ZweiWege, AuchFuerDieBeispieleAnGeliefertenStationen) {
    test::Testplattform plattform;
    for (const char* beispiel : {"altes_haus.vel", "niedrigenergiehaus.vel", "glasbuero.vel"}) {
        Haupt haupt(plattform, pfad(VELMARIS_PROGRAMMORDNER), "d");
        haupt.datei.projekt_vorbereiten();
        haupt.datei.projekt_laden(std::string(VELMARIS_BEISPIELE) + "/" + beispiel);
        for (const char* station : {"hamburg.met", "freiburg.met", "tromsö.met", "murmansk.met",
                                    "singapur.met", "sydney.met", "punta_arenas.met"}) {
            SCOPED_TRACE(std::string(beispiel) + ", " + station);
            haupt.p.Klimadatei = station;
            klimadatei_lesen(haupt.p);
            beide_wege(haupt.p);
        }
    }
}

}  // namespace
}  // namespace velmaris
