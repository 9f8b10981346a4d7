#include "climate/sonne.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <vector>

namespace velmaris {
namespace {

constexpr double grad = std::numbers::pi / 180;

float bogen(double breite) {
    return static_cast<float>(breite * 0.01745);
}

// Reda and Andreas, "Solar Position Algorithm for Solar Radiation Applications" (NREL, 2003): the worked
// example of 17 October 2003 (day 290), 12:30:30 at 39.742476 N, 105.1786 W, seven hours behind Greenwich has
// the sun at a height of 39.872, a declination of -9.314 and an hour angle of 11.106 degrees.
TEST(Sonne, StehtSoHochWieImVeroeffentlichtenBeispiel) {
    const Standort ort{bogen(39.742476), static_cast<float>(105.1786 - 15 * 7)};
    const double t = 12 + 30.0 / 60 + 30.0 / 3600;
    const auto hoehe = [&](int n) {
        return std::asin(1 / static_cast<double>(direktfaktor_horizontal(ort, n, t))) / grad;
    };
    EXPECT_NEAR(Sonnenuhr(290, ort.Laengenkorrektur).stundenwinkel(t) / grad, 11.106, 0.25);
    // Cooper's declination runs a degree ahead in October; on day 287 it is that of the example.
    EXPECT_NEAR(deklination(290) / grad, -9.314, 1.1);
    EXPECT_NEAR(deklination(287) / grad, -9.314, 0.1);
    EXPECT_NEAR(hoehe(290), 39.872, 1.1);
    EXPECT_NEAR(hoehe(287), 39.872, 0.1);
}

TEST(Sonne, TrifftDieVonHandGerechnetenTage) {
    struct Fall {
        int n;
        double deklination, zeitgleichung, stundenwinkel;  ///< at half past ten, 4.5 degrees west
        double SA, SU;                                     ///< at 50 degrees north
    };
    for (const Fall& fall : {Fall{10, -0.3845898, -7.42815, -0.503555, 7.62159, 15.77841},
                             Fall{100, 0.1314703, -1.59312, -0.4781, 5.0944, 18.3056},
                             Fall{300, -0.240531, 16.38628, -0.399665, 6.83195, 16.56805}}) {
        EXPECT_NEAR(deklination(fall.n), fall.deklination, 1e-6);
        EXPECT_NEAR(zeitgleichung(fall.n), fall.zeitgleichung, 1e-4);
        EXPECT_NEAR(Sonnenuhr(fall.n, 4.5F).stundenwinkel(10.5), fall.stundenwinkel, 1e-5);
        const Sonnentag tag = sonnentag({bogen(50), 4.5F}, fall.n);
        EXPECT_NEAR(tag.SA, fall.SA, 1e-4);
        EXPECT_NEAR(tag.SU, fall.SU, 1e-4);
    }
}

TEST(Arccos, TrifftDenKehrwertDesKosinus) {
    for (const double winkel : {0.1, 0.5, 1.0, 1.5708, 2.0, 3.0})
        EXPECT_NEAR(arccos(std::cos(winkel)), winkel, 1e-5);
}

TEST(Sonnentag, HatDieLaengeDesBreitengrads) {
    struct Fall {
        double breite;
        int tag;
        double stunden;
    };
    // Day lengths by 2/15 arccos(-tan phi tan delta) with the declination of the almanac.
    const std::vector<Fall> faelle{{0, 172, 12.0},    {50, 172, 16.15}, {50, 355, 7.85},
                                   {-35, 355, 14.35}, {50, 81, 12.0},   {80, 172, 24.0},
                                   {80, 355, 0.0},    {-80, 172, 0.0},  {-80, 355, 24.0}};
    for (const Fall& fall : faelle) {
        const Sonnentag tag = sonnentag({bogen(fall.breite), 0}, fall.tag);
        EXPECT_NEAR(tag.SU - tag.SA, fall.stunden, 0.03) << fall.breite << " day " << fall.tag;
        EXPECT_NEAR((tag.SU + tag.SA) / 2, 12, 1e-5);
    }
    const Sonnentag verschoben = sonnentag({bogen(80), 30}, 355);
    EXPECT_DOUBLE_EQ(verschoben.SA, 10) << "against the longitude correction";
    EXPECT_FLOAT_EQ(verschoben.SU, 10);
}

TEST(Probezeit, LiegtInDerMitteDesHellenTeils) {
    const Sonnentag tag{6.3, 18.5F};
    for (const auto& [stunde, zeit] : {std::pair{6, 5.5}, {7, 6.65}, {12, 11.5}, {19, 18.25}, {20, 19.5}})
        EXPECT_DOUBLE_EQ(probezeit(tag, stunde), zeit) << stunde;
    EXPECT_DOUBLE_EQ(probezeit({11.25, 11.75F}, 12), 11.375) << "sunset overrides sunrise";
    EXPECT_DOUBLE_EQ(probezeit({-0.25, 24.25F}, 0), -0.125) << "rounding goes down below zero";
}

TEST(Direktfaktor, IstNullSolangeDieSonneUntenSteht) {
    const Standort ort{bogen(50), 0};
    EXPECT_EQ(direktfaktor_horizontal(ort, 172, 0), 0);
    EXPECT_EQ(direktfaktor_horizontal({bogen(80), 0}, 355, 12), 0);
    EXPECT_GT(direktfaktor_horizontal({bogen(80), 0}, 172, 0), 1);
    // On the equator at the equinox the sun climbs 15 degrees an hour.
    const auto laenge = static_cast<float>(zeitgleichung(81) / 4);
    EXPECT_NEAR(direktfaktor_horizontal({0, laenge}, 81, 12), 1, 1e-4);
    EXPECT_NEAR(direktfaktor_horizontal({0, laenge}, 81, 16), 2, 2e-3);
}

// A second way: the direction of the sun and the normal of the plane as vectors (south, west, up).
TEST(Einfallsfaktor, FolgtDemSkalarproduktVonSonneUndNormale) {
    const int orient = 25, neigung = 35;
    for (const double breite : {-55.0, 0.0, 49.75, 78.0}) {
        const Standort ort{bogen(breite), 4.5F};
        const double phi = ort.Breite, beta = neigung * 0.01745;
        for (int fall = 0; fall < 720; ++fall) {
            const int n = 5 + fall % 9 * 45, h = 1 + fall / 9 % 8 * 3, azimut = -180 + fall / 72 * 40;
            const double delta = deklination(n);
            const double omega = Sonnenuhr(n, 4.5F).stundenwinkel(h);
            const double gamma = (azimut + orient) * 0.01745;
            const double oben =
                std::sin(phi) * std::sin(delta) + std::cos(phi) * std::cos(delta) * std::cos(omega);
            const double sued =
                std::sin(phi) * std::cos(delta) * std::cos(omega) - std::cos(phi) * std::sin(delta);
            const double west = std::cos(delta) * std::sin(omega);
            const double cos_theta =
                oben * std::cos(beta) + (sued * std::cos(gamma) + west * std::sin(gamma)) * std::sin(beta);
            const double c = std::max(0.0, cos_theta);
            ASSERT_NEAR(einfallsfaktor_ebene(ort, n, h, orient, azimut, neigung),
                        c - c * std::pow(1 - c, 2.5), 1e-6)
                << breite << ' ' << n << ' ' << h << ' ' << azimut;
        }
    }
}

}  // namespace
}  // namespace velmaris
