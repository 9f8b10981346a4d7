#include "calc/geometrie.h"
#include "calc/monatsbilanz.h"
#include "calc/rechenstufen.h"
#include "climate/strahlung.h"
#include "project/feldtabelle.h"
#include "tests/musterprojekt.h"
#include "tests/wie_geschrieben.h"

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

TEST(ZweiWege, SchnelleRechnungSpeichertDasselbeWieDieFormelnJederStunde) {
    for (const test::Musterort& ort : test::musterorte()) {
        for (const test::Musterhaus& haus : test::musterhaeuser()) {
            const auto schnell = test::musterprojekt(ort);
            haus.einrichten(*schnell);
            const auto geschrieben = std::make_unique<Projekt>(*schnell);
            monatsstrahlung_berechnen(*schnell);
            geometrie_stufe(*schnell);
            bilanz_stufe(*schnell);
            simulation_stufe(*schnell);

            test::monatsstrahlung_wie_geschrieben(*geschrieben);
            geometrie_berechnen(*geschrieben);
            monatsbilanz(*geschrieben);
            test::stundensimulation_wie_geschrieben(*geschrieben);
            EXPECT_LE(groesster_abstand(*schnell, *geschrieben), 4) << ort.name << ", " << haus.name;
        }
    }
}

}  // namespace
}  // namespace velmaris
