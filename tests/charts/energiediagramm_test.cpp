#include "charts/energiediagramm.h"

#include "tests/charts/probe.h"

#include <gtest/gtest.h>
#include <utility>

namespace velmaris {
namespace {

using Art = Zeichnung::Art;

TEST(Saeulen, TrefferNurAufDemGefuelltenPixel) {
    // The largest column, 27, takes the step 10: 10 kWh are 30 pixels. In February end energy reaches up to
    // 86 and primary energy to 81.5, in December to 14.
    Monatsenergie w;
    w.E(2) = 2, w.H(2) = 1, w.P(2) = 4, w.Q(2) = 0.5F, w.P(12) = 24, w.Q(12) = 3;
    using Pixel = std::vector<std::pair<int, int>>;
    for (const auto& [x, y] : Pixel{{59, 95}, {67, 86}, {69, 82}, {77, 95}, {317, 14}})
        EXPECT_TRUE(auf_saeule(w, x, y)) << x << "," << y;
    for (const auto& [x, y] : Pixel{{58, 95}, {67, 85}, {68, 95}, {69, 81}, {77, 96}, {78, 95}, {317, 13}})
        EXPECT_FALSE(auf_saeule(w, x, y)) << x << "," << y;
    EXPECT_EQ(saeulen(w).size(), 6U);
}

/// 100 m2 whose only heat, in January, needs 20 kWh/(m2 month) of primary energy.
TEST(Monatsverbrauch, ZeichnetSeineSaeulenUeberMonateUndSkala) {
    const auto p = test::leeres_projekt();
    p->qhs_sum = 10;
    p->Monat(1).Qh = 1000;
    p->q_PE_Energietraeger = 20;
    RekorderFlaeche bild(330, 115);
    Monatsverbrauch_zeichnen(bild, *p);
    EXPECT_TRUE(test::steht(bild, "Jan.", 35, 98));
    EXPECT_TRUE(test::steht(bild, "Mai", 134, 98));
    EXPECT_TRUE(test::steht(bild, "Dez.", 299, 98));
    const auto flaechen = bild.alle(Art::flaeche);
    ASSERT_EQ(flaechen.size(), 2U);
    EXPECT_EQ(flaechen[0].zahlen, (test::Ecken{0, 0, 25, 100})) << "the strip of the scale";
    EXPECT_EQ(flaechen[0].farbe, bild.hintergrund());
    EXPECT_EQ(flaechen[1].zahlen, (test::Ecken{45, 95, 53, 35}));
}

}  // namespace
}  // namespace velmaris
