#include "climate/sonne.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <tuple>

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
    using Fall = std::tuple<int, double, double, double, double, double>;
    // The hour angle is that of half past ten, 4.5 degrees west; sunrise and sunset those at 50 degrees
    // north.
    for (const auto& [n, delta, gleichung, stundenwinkel, SA, SU] :
         {Fall{10, -0.3845898, -7.42815, -0.503555, 7.62159, 15.77841},
          Fall{100, 0.1314703, -1.59312, -0.4781, 5.0944, 18.3056},
          Fall{300, -0.240531, 16.38628, -0.399665, 6.83195, 16.56805}}) {
        EXPECT_NEAR(deklination(n), delta, 1e-6);
        EXPECT_NEAR(zeitgleichung(n), gleichung, 1e-4);
        EXPECT_NEAR(Sonnenuhr(n, 4.5F).stundenwinkel(10.5), stundenwinkel, 1e-5);
        EXPECT_NEAR(sonnentag({bogen(50), 4.5F}, n).SA, SA, 1e-4);
        EXPECT_NEAR(sonnentag({bogen(50), 4.5F}, n).SU, SU, 1e-4);
    }
}

TEST(Sonnentag, HatDieLaengeDesBreitengrads) {
    // Day lengths by 2/15 arccos(-tan phi tan delta) with the declination of the almanac.
    using Fall = std::tuple<double, int, double>;
    for (const auto& [breite, tag, laenge] :
         {Fall{0, 172, 12.0}, Fall{50, 172, 16.15}, Fall{-35, 355, 14.35}, Fall{80, 172, 24.0},
          Fall{80, 355, 0.0}, Fall{-80, 172, 0.0}, Fall{-80, 355, 24.0}}) {
        const Sonnentag s = sonnentag({bogen(breite), 0}, tag);
        EXPECT_NEAR(s.SU - s.SA, laenge, 0.03) << breite << " day " << tag;
        EXPECT_NEAR((s.SU + s.SA) / 2, 12, 1e-5);
    }
    EXPECT_DOUBLE_EQ(sonnentag({bogen(80), 30}, 355).SA, 10) << "against the longitude correction";
}

TEST(Probezeit, LiegtInDerMitteDesHellenTeils) {
    const Sonnentag tag{6.3, 18.5F};
    for (const auto& [stunde, zeit] : {std::pair{6, 5.5}, {7, 6.65}, {12, 11.5}, {19, 18.25}, {20, 19.5}})
        EXPECT_DOUBLE_EQ(probezeit(tag, stunde), zeit) << stunde;
    EXPECT_DOUBLE_EQ(probezeit({11.25, 11.75F}, 12), 11.375) << "sunset overrides sunrise";
    EXPECT_DOUBLE_EQ(probezeit({-0.25, 24.25F}, 0), -0.125) << "rounding goes down below zero";
}

// A second way: the direction of the sun and the normal of the plane as vectors (south, west, up).
TEST(Einfallsfaktor, FolgtDemSkalarproduktVonSonneUndNormale) {
    const int orient = 25, neigung = 35;
    for (const double breite : {-55.0, 0.0, 49.75, 78.0}) {
        const Standort ort{bogen(breite), 4.5F};
        const double phi = ort.Breite, beta = neigung * 0.01745;
        for (int fall = 0; fall < 720; ++fall) {
            const int n = 5 + fall % 9 * 45, h = 1 + fall / 9 % 8 * 3, azimut = -180 + fall / 72 * 40;
            const double delta = deklination(n), omega = Sonnenuhr(n, 4.5F).stundenwinkel(h);
            const double gamma = (azimut + orient) * 0.01745;
            const double x = std::cos(delta) * std::cos(omega), z = std::sin(delta);
            const double oben = std::sin(phi) * z + std::cos(phi) * x,
                         sued = std::sin(phi) * x - std::cos(phi) * z;
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
