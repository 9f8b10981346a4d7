#include "tools/climate/klarheit.h"
#include "tools/climate/sonnenjahr.h"
#include "tools/climate/temperatur.h"
#include "tools/climate/witterung.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <numeric>

namespace velmaris::klimasatz {
namespace {

TEST(Jahresgang, HaeltDieMittelUndSchliesstSich) {
    Monatswerte bremen;
    int m = 0;
    for (const double wert : {2.2, 2.6, 5.2, 9.4, 13.2, 16.2, 18.4, 18.0, 14.3, 10.0, 5.8, 3.1})
        bremen(++m) = wert;
    const Tageswerte tage = jahresgang(bremen);
    EXPECT_NEAR(std::accumulate(tage.begin(), tage.begin() + 31, 0.0) / 31, 2.2, 1e-8);
    EXPECT_NEAR(std::accumulate(tage.end() - 31, tage.end(), 0.0) / 31, 3.1, 1e-8);
    for (int n = 1; n <= 365; ++n) {
        const double morgen = tage(n % 365 + 1);
        EXPECT_LT(std::fabs(morgen - tage(n)), 0.25) << n;
        EXPECT_LT(std::fabs(tage((n + 1) % 365 + 1) - 2 * morgen + tage(n)), 0.02) << n;
    }
    const auto waermster = std::max_element(tage.begin(), tage.end()) - tage.begin();
    EXPECT_LE(std::abs(waermster - 211), 15) << "the end of July";
}

TEST(Sonnenjahr, TrifftVeroeffentlichteWerte) {
    // Largest and smallest distance factor: 1.033 at the turn of the year, 0.967 at midyear.
    EXPECT_NEAR(abstandsfaktor(365), 1.033, 1e-9);
    EXPECT_NEAR(abstandsfaktor(182), 0.967, 1e-4);
    // Air mass 1 leaves seven tenths of 1353 W/m²; at 30 degrees of height, air mass 1.994, it is 0.5654.
    EXPECT_NEAR(klarer_strahl(1, 0), 947, 1);
    EXPECT_NEAR(klarer_strahl(0.5, 0), 765, 2);
    // 2000 m up there are 0.7889 of the air: 1353 * 0.7^0.8515.
    EXPECT_NEAR(klarer_strahl(1, 2000), 998.6, 1);
    for (const double cos_z : {1e-5, 0.01, 0.1, 0.5, 1.0}) {
        EXPECT_LE(klarheitsgrenze(cos_z, 5000), 0.85);
        EXPECT_GE(klarheitsgrenze(cos_z, 0), 0.3);
    }
}

TEST(Klarheit, TrifftVeroeffentlichteWerte) {
    // The clearest day of a month of clearness 0.5 is 0.6313 + 0.1335 - 0.0002.
    EXPECT_NEAR(tagesklarheit(0.5, 8), 0.7646, 1e-4);
    EXPECT_NEAR(tagesklarheit(0.5, -8), 0.05, 1e-6);
    EXPECT_NEAR(diffusanteil(0), 1, 1e-9);
    EXPECT_NEAR(diffusanteil(0.2), 0.982, 1e-9);
    EXPECT_NEAR(diffusanteil(0.5), 0.6592, 1e-4);
    EXPECT_NEAR(diffusanteil(0.7), 0.2440, 1e-4);
    EXPECT_EQ(diffusanteil(0.84), 0.165);
    for (const double naht : {0.22, 0.8})
        EXPECT_NEAR(diffusanteil(naht - 1e-9), diffusanteil(naht + 1e-9), 5e-4);
}

TEST(Temperatur, DieTageStreuenWieDieMonatsmittelEsVerlangen) {
    Monatswerte ta;
    for (double& wert : ta)
        wert = 20;
    EXPECT_NEAR(tagesstreuung(ta)(1), 0.72, 1e-9) << "no seasons";
    for (int m = 1; m <= 6; ++m)
        ta(m) = 8;
    // The months spread by 6 K: at 8 degrees 1.45 - 0.232 + 0.3984 = 1.6164 K of the monthly means; times
    // sqrt(31 * 0.3 / 1.7) = 2.3389. February has 28 days: 2.2229.
    EXPECT_NEAR(tagesstreuung(ta)(1), 3.781, 0.001);
    EXPECT_NEAR(tagesstreuung(ta)(2), 3.593, 0.001);
    for (int m = 1; m <= 6; ++m)
        ta(m) = 14.1;
    // They spread by 2.95 K, half the way from 1.2 to 4.7: 1.45 - 0.4089 + 0.19588 = 1.23698 K, a day 2.8932.
    EXPECT_NEAR(tagesstreuung(ta)(1), (0.72 + 2.8932) / 2, 0.001);
    for (int m = 1; m <= 6; ++m)
        ta(m) = -20;
    // Counted as -15 degrees and 8 K: 1.45 + 0.435 + 0.5312 = 2.4162 K.
    EXPECT_NEAR(tagesstreuung(ta)(1), 5.651, 0.001);
}

TEST(Witterung, SonneWaermtImSommerUndKuehltImWinter) {
    // Extraterrestrial sums at 50 degrees north: 11.6 kWh/m² in June, 2.2 in December, 6 and 7.5 at the
    // equinoxes.
    EXPECT_NEAR(sonnenwaerme(11.6, 50), 0.58, 1e-9);
    EXPECT_NEAR(sonnenwaerme(2.2, 50), -0.45, 1e-9);
    EXPECT_NEAR(sonnenwaerme(7.25, 50), 0.065, 1e-9);
    EXPECT_NEAR(sonnenwaerme(10, 0), 0.2, 0.1);
    EXPECT_GT(waermeschiefe(0.58, 17), 0.8);
    EXPECT_EQ(waermeschiefe(-0.4, 5), 0);
    EXPECT_EQ(waermeschiefe(0.58, 24), 0);
}

}  // namespace
}  // namespace velmaris::klimasatz
