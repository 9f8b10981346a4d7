#include "calc/geometrie.h"
#include "calc/monatsbilanz.h"
#include "calc/rechenstufen.h"
#include "climate/klimadatei.h"
#include "climate/strahlung.h"
#include "planes/Haupt.h"
#include "project/feldtabelle.h"
#include "tests/musterprojekt.h"
#include "tests/testplattform.h"
#include "tests/wie_geschrieben.h"
#include "toolkit/text.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

/// How many floats lie between the two, 100 at most.
int abstand(float a, float b) {
    int schritte = 0;
    for (; a != b && schritte < 100; ++schritte)
        a = std::nextafter(a, b);
    return schritte;
}

/// The widest distance between the hours, months and loads of two records.
int groesster_abstand(const Projekt& a, const Projekt& b) {
    int groesster =
        std::max(abstand(a.Heizlast_max, b.Heizlast_max), abstand(a.Kuehllast_max, b.Kuehllast_max));
    fuer_jede_stunde([&](int m, int d, int h, int) {
        for (const auto feld : {&Projekt::T_frei, &Projekt::T_regel, &Projekt::Q_heiz, &Projekt::Q_kuehl})
            groesster = std::max(groesster, abstand((a.*feld)(m, d, h), (b.*feld)(m, d, h)));
    });
    const auto zahl = [](const Monatswerte& werte, const Monatszeiger& zeiger) -> float {
        if (const auto* ganz = std::get_if<std::int16_t Monatswerte::*>(&zeiger)) return werte.*(*ganz);
        const auto* gleitend = std::get_if<float Monatswerte::*>(&zeiger);
        return gleitend != nullptr ? werte.*(*gleitend) : 0;
    };
    for (const Monatszeile& zeile : monatsfelder()) {
        for (int m = 1; m <= monate; ++m)
            groesster =
                std::max(groesster, abstand(zahl(a.Monat(m), zeile.zeiger), zahl(b.Monat(m), zeile.zeiger)));
    }
    return groesster;
}

/// Calculates the record as it stands both ways; the widest distance between the results.
int beide_wege(Projekt& schnell) {
    const auto geschrieben = std::make_unique<Projekt>(schnell);
    monatsstrahlung_berechnen(schnell);
    geometrie_stufe(schnell);
    bilanz_stufe(schnell);
    simulation_stufe(schnell);

    test::monatsstrahlung_wie_geschrieben(*geschrieben);
    geometrie_berechnen(*geschrieben);
    monatsbilanz(*geschrieben);
    test::stundensimulation_wie_geschrieben(*geschrieben);
    return groesster_abstand(schnell, *geschrieben);
}

TEST(ZweiWege, SchnelleRechnungSpeichertDasselbeWieDieFormelnJederStunde) {
    for (const test::Musterort& ort : test::musterorte()) {
        for (const test::Musterhaus& haus : test::musterhaeuser()) {
            const auto projekt = test::musterprojekt(ort);
            haus.einrichten(*projekt);
            EXPECT_LE(beide_wege(*projekt), 4) << ort.name << ", " << haus.name;
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
            haupt.p.Klimadatei = station;
            klimadatei_lesen(haupt.p);
            EXPECT_LE(beide_wege(haupt.p), 4) << beispiel << ", " << station;
        }
    }
}

}  // namespace
}  // namespace velmaris
