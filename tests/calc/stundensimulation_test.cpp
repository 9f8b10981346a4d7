#include "calc/stundensimulation.h"

#include "calc/geometrie.h"
#include "tests/musterprojekt.h"

#include <cmath>
#include <gtest/gtest.h>
#include <memory>

namespace velmaris {
namespace {

std::unique_ptr<Projekt> simuliert(const Wetterstunde& wetter, void (*einrichten)(Projekt&)) {
    auto p = test::musterprojekt();
    test::gleiches_wetter(*p, wetter);
    einrichten(*p);
    geometrie_berechnen(*p);
    stundensimulation(*p);
    return p;
}

std::unique_ptr<Projekt> simuliert(float Ta) {
    return simuliert({Ta, 0, 0}, [](Projekt&) {});
}

// The new project by hand: 228.872 W/K drive the temperature, 243.872 W/K hold it, 456.621 W come from
// inside; over an hour the house keeps the share 0.98520017 of its temperature; 16.355788 kWh/K.

TEST(Stundensimulation, GleichesKaltesWetterLaesstDasHausAuskuehlen) {
    const auto p = simuliert(10);
    // 744 hours of warm-up December lie before the first hour of January.
    const double gleichgewicht = 11.257303;
    const auto nach = [&](int h) { return gleichgewicht + (20 - gleichgewicht) * std::pow(0.98520017, h); };
    EXPECT_NEAR(p->T_frei(1, 1, 1), nach(745), 1e-5);
    EXPECT_NEAR(p->T_frei(12, 31, 24), gleichgewicht, 1e-5);
    EXPECT_NEAR(p->Q_heiz(1, 1, 1), 2.1162824, 2e-6);
    EXPECT_EQ(p->Q_heiz(1, 1, 1), p->Q_heiz(12, 31, 24));
    EXPECT_EQ(p->Heizlast_max, p->Q_heiz(6, 15, 12));
    EXPECT_EQ(p->T_regel(7, 1, 12), 20);
    EXPECT_EQ(p->Kuehllast_max, 0);
    EXPECT_EQ(p->Monat(2).Stunden_kalt, 672);
    EXPECT_EQ(p->Monat(2).Stunden_komfort, 0);
    EXPECT_EQ(p->Monat(2).Kuehlgradstunden, 0);
}

TEST(Stundensimulation, GleichesHeissesWetterWirdNachUrsachenGekuehlt) {
    const auto p = simuliert(40);
    const Monatswerte& juli = p->Monat(7);
    EXPECT_NEAR(p->T_frei(7, 1, 1), 39.412073, 1e-5);
    EXPECT_NEAR(p->Q_kuehl(7, 1, 1), 3.0045021, 3e-6);
    EXPECT_EQ(p->Kuehllast_max, p->Q_kuehl(7, 1, 1));
    EXPECT_EQ(p->T_regel(7, 1, 1), 27);
    EXPECT_EQ(p->Heizlast_max, 0);
    EXPECT_EQ(juli.Stunden_heiss, 744);
    EXPECT_NEAR(juli.Kuehlgradstunden, 9234.583, 0.05);
    // 744 equal additions to a 32-bit sum round to the same side.
    EXPECT_NEAR(juli.Kuehlbedarf, 2235.3496, 0.03);
    EXPECT_NEAR(juli.Kuehl_intern, 301.1013, 0.005);
    EXPECT_NEAR(juli.Kuehl_trans, 1178.3709, 0.03);
    EXPECT_NEAR(juli.Kuehl_lueft, 755.8774, 0.01);
    EXPECT_EQ(juli.Kuehl_solar, 0);
}

TEST(Stundensimulation, VergleichtAufDemGespeichertenWert) {
    // In balance at the set point up to the rounding of `tau`: below it in 64 bits, on it in 32.
    const auto p = simuliert({20, 0, 0}, [](Projekt& haus) {
        haus.intg = 0;
        haus.ugd_typ = 5;
        haus.Fx_ugd = 1;
        haus.Tueber = 20;
    });
    EXPECT_EQ(p->T_frei(12, 31, 24), 20);
    EXPECT_EQ(p->Heizlast_max, 0);
    EXPECT_EQ(p->Kuehllast_max, 0);
    EXPECT_EQ(p->Monat(5).Stunden_komfort, 744);
}

TEST(Stundensimulation, SpitzeDesVorlaufsBleibt) {
    auto p = test::musterprojekt();
    test::gleiches_wetter(*p, {24, 0, 0});
    p->Wetter(12, 1, 1).Ta = -100;
    p->Tueber = 100;
    geometrie_berechnen(*p);
    stundensimulation(*p);
    // The warm-up starts at 20 degrees into a cold hour; at the end of the year the house is warm enough.
    fuer_jede_stunde([&](int m, int d, int h, int) { ASSERT_EQ(p->Q_heiz(m, d, h), 0) << m << d << h; });
    // 20 - (-91.981 (1 - e) + 20 e) degrees of 16.355788 kWh each
    EXPECT_NEAR(p->Heizlast_max, 111.9809 * (1 - 0.98520017) * 16.355788, 0.001);
    EXPECT_EQ(p->Kuehllast_max, 0);
}

}  // namespace
}  // namespace velmaris
