#include "charts/temperaturdiagramm.h"

#include "tests/charts/probe.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tuple>

namespace velmaris {
namespace {

using test::flaechen;
using ::testing::IsSupersetOf;
using Art = Zeichnung::Art;

TEST(Temperaturachse, SchritteUndEnden) {
    // 10, 20 and 50 are not below themselves; halves go to the even number of steps, and -0.5 to 0.
    using Fall = std::tuple<double, double, double, double, double>;
    for (const auto& [T_min, T_max, schritt, unten, oben] :
         {Fall{0, 0, 1, 0, 0}, Fall{0, 9, 1, 0, 10}, Fall{-12, 0, 2, -14, 0}, Fall{0.5, 2, 1, 0, 3},
          Fall{5, 15, 2, 4, 16}, Fall{-5, 8, 2, -8, 10}, Fall{10, 35, 5, 5, 40}, Fall{-8, 12, 5, -15, 15},
          Fall{-20, 35, 10, -30, 40}, Fall{-10, 40, 10, -20, 50}, Fall{0, 1000, 200, 0, 1200}}) {
        const Temperaturachse achse = temperaturachse(T_min, T_max);
        EXPECT_EQ(std::tuple(achse.schritt, achse.unten, achse.oben), std::tuple(schritt, unten, oben))
            << T_min << " " << T_max;
    }
}

/// Outdoor air 10, room 20 with one hour of 15 in July, on a surface that gives ten pixels to the day and
/// to the kelvin.
class Temperaturdiagramm : public ::testing::Test {
  protected:
    Temperaturdiagramm() {
        fuer_jede_stunde([this](int m, int d, int h, int) {
            p->Wetter(m, d, h).Ta = 10;
            p->T_frei(m, d, h) = 20;
        });
        p->T_frei(7, 2, 12) = 15;
    }

    RekorderFlaeche& zeichne(RekorderFlaeche& bild) const {
        TemperaturDiagrammZeichnen(*p, bild);
        return bild;
    }

    std::unique_ptr<Projekt> p = test::leeres_projekt();
    RekorderFlaeche bild_{350, 195};
};

TEST_F(Temperaturdiagramm, KurvenAusKaestenVonPunktZuPunkt) {
    zeichne(bild_);
    auto aussen = flaechen(bild_, farben::blau);
    auto raum = flaechen(bild_, farben::rot);
    EXPECT_NEAR(aussen[1][0], 30 + 10.0 / 24, 1e-9) << "on finer pixels the curve has finer steps";
    for (auto* kurve : {&aussen, &raum}) {
        for (test::Ecken& kasten : *kurve)
            std::ranges::transform(kasten, kasten.begin(), runden);
    }
    ASSERT_EQ(aussen.size(), 1 + 744U);
    ASSERT_EQ(raum.size(), 1 + 744U);
    EXPECT_EQ(aussen.front(), (test::Ecken{220, 24, 229, 30})) << "the legend";
    EXPECT_EQ(aussen[1], (test::Ecken{30, 155, 30, 155}));
    EXPECT_EQ(aussen[12], (test::Ecken{35, 155, 35, 155}));
    EXPECT_EQ(aussen.back(), (test::Ecken{340, 155, 340, 155}));
    EXPECT_EQ(raum.front(), (test::Ecken{70, 24, 79, 30}));
    EXPECT_EQ(raum[24 + 11], (test::Ecken{44, 55, 45, 55}));
    EXPECT_EQ(raum[24 + 12], (test::Ecken{45, 55, 45, 105}));
    EXPECT_EQ(raum[24 + 13], (test::Ecken{45, 105, 45, 55}));
}

TEST_F(Temperaturdiagramm, GitterUndZahlen) {
    zeichne(bild_);
    EXPECT_EQ(bild_.alle(Art::linie, farben::schwarz).size(), 2U);
    EXPECT_EQ(bild_.alle(Art::linie, farben::grau).size(), 31 + 7U);
    EXPECT_EQ(bild_.alle(Art::linie).at(0).zahlen, (test::Ecken{30, 35, 30, 176}));
    EXPECT_EQ(bild_.alle(Art::linie).at(31).zahlen, (test::Ecken{340, 35, 340, 176}));
    EXPECT_EQ(bild_.alle(Art::linie).at(32).zahlen, (test::Ecken{31, 175, 341, 175}));
    EXPECT_EQ(bild_.alle(Art::linie).at(39).zahlen, (test::Ecken{31, 35, 341, 35}));
    EXPECT_THAT(test::orte(bild_),  // the axis goes from 8 to 22
                IsSupersetOf({"334 179 31", "13 28.5 22", "19 168.5 8", "13 12 °C",
                              "85 20.5 Raumlufttemperatur", "235 20.5 Außenlufttemperatur"}));
    EXPECT_EQ(bild_.texte().size(), 2 + 16 + 8 + 1U);
    EXPECT_EQ(bild_.alle(Art::text).back().schrift.groesse, 8);
    RekorderFlaeche schmal(600, 195);
    RekorderFlaeche breit(601, 195);
    EXPECT_EQ(zeichne(breit).texte().size() - zeichne(schmal).texte().size(), 16U);
}

TEST_F(Temperaturdiagramm, FrostLegtDieNulllinieInsBild) {
    p->Wetter(7, 1, 1).Ta = -3;
    zeichne(bild_);
    // 23 K take the step 5; the axis goes from -10 to 25, and 140 pixels show 35 K.
    EXPECT_EQ(bild_.alle(Art::linie, farben::schwarz).size(), 3U);
    EXPECT_EQ(bild_.lies_punkt(200, 135), farben::schwarz);
}

}  // namespace
}  // namespace velmaris
