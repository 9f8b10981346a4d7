#include "charts/energiediagramm.h"

#include "tests/charts/probe.h"

#include <gtest/gtest.h>
#include <utility>

namespace velmaris {
namespace {

using Art = Zeichnung::Art;

/// Months that are all unlike. The largest column, 27 in December, takes the step 10: 10 kWh are 30 pixels.
Monatsenergie zwoelf_monate() {
    Monatsenergie w;
    for (int m = 1; m <= monate; ++m) {
        w.E(m) = static_cast<float>(m);
        w.H(m) = static_cast<float>(m) / 2;
        w.P(m) = static_cast<float>(m) * 2;
        w.Q(m) = static_cast<float>(m) / 4;
    }
    return w;
}

TEST(Saeulen, JederMonatHatSeineVierTeile) {
    const std::vector<Saeule> teile = saeulen(zwoelf_monate());
    ASSERT_EQ(teile.size(), 48U);
    for (std::size_t i = 0; i < teile.size(); ++i) {
        const double m = static_cast<double>(i / 4) + 1;
        const double x = 11 + 24 * m;
        const Saeule erwartet[]{{x, 95, x + 8, 95 - 3 * m, {255, 0, 0}},
                                {x, 95 - 3 * m, x + 8, 95 - 4.5 * m, {255, 128, 0}},
                                {x + 10, 95, x + 18, 95 - 6 * m, {128, 0, 0}},
                                {x + 10, 95 - 6 * m, x + 18, 95 - 6.75 * m, {192, 64, 0}}};
        const Saeule& e = erwartet[i % 4];
        const Saeule& s = teile[i];
        EXPECT_TRUE(s.x1 == e.x1 && s.x2 == e.x2 && s.farbe == e.farbe) << i;
        EXPECT_NEAR(s.unten, e.unten, 1e-9);
        EXPECT_NEAR(s.oben, e.oben, 1e-9);
    }
    EXPECT_TRUE(saeulen({}).empty());
}

TEST(Saeulen, TrefferNurAufDemGefuelltenPixel) {
    // February: end energy up to 86, primary energy up to 81.5; December up to 41 and 14.
    using Pixel = std::vector<std::pair<int, int>>;
    for (const auto& [x, y] : Pixel{{59, 95}, {67, 86}, {69, 82}, {77, 95}, {317, 14}})
        EXPECT_TRUE(auf_saeule(zwoelf_monate(), x, y)) << x << "," << y;
    for (const auto& [x, y] : Pixel{{58, 95}, {67, 85}, {68, 95}, {69, 81}, {77, 96}, {78, 95}, {317, 13}})
        EXPECT_FALSE(auf_saeule(zwoelf_monate(), x, y)) << x << "," << y;
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
