#include "charts/konturlinien.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>

namespace velmaris {
namespace {

Wertegitter gitter(std::vector<double> x, std::vector<double> y,
                   const std::function<double(double, double)>& wert) {
    Wertegitter g{std::move(x), std::move(y), {}};
    for (const double b : g.y) {
        for (const double a : g.x)
            g.werte.push_back(wert(a, b));
    }
    return g;
}

std::vector<double> schritte(double von, double bis, int zahl) {
    std::vector<double> alle;
    for (int i = 0; i <= zahl; ++i)
        alle.push_back(von + (bis - von) * i / zahl);
    return alle;
}

/// The lines of a plane are straight and exact also between points of unequal distance; here x + 2 y = 4.
TEST(Konturlinien, EbeneHatGeradeLinienVonRandZuRand) {
    const auto linien = konturlinien(
        gitter({0, 1, 1.5, 4}, {0, 0.25, 2, 3}, [](double x, double y) { return x + 2 * y; }), 4);
    ASSERT_EQ(linien.size(), 1U);
    for (const Ort& ort : linien[0])
        EXPECT_NEAR(ort.x + 2 * ort.y, 4, 1e-12);
    const auto [links, rechts] = std::ranges::minmax(linien[0], {}, &Ort::x);
    EXPECT_EQ(links, (Ort{0, 2}));
    EXPECT_EQ(rechts, (Ort{4, 0}));
    EXPECT_EQ(linien[0].size(), 5U) << "x = 1, x = 1.5 and y = 0.25 between both ends";
}

/// A cone over the origin: a ring around it, within the sag of the chords, and none beyond the corners.
TEST(Konturlinien, KegelHatGeschlosseneRinge) {
    const Wertegitter kegel =
        gitter(schritte(-2, 2, 40), schritte(-2, 2, 40), [](double x, double y) { return std::hypot(x, y); });
    const auto ringe = konturlinien(kegel, 1.5);
    ASSERT_EQ(ringe.size(), 1U);
    EXPECT_EQ(ringe[0].front(), ringe[0].back());
    double umfang = 0;
    for (std::size_t i = 0; i < ringe[0].size(); ++i) {
        EXPECT_NEAR(std::hypot(ringe[0][i].x, ringe[0][i].y), 1.5, 0.002);
        if (i > 0) umfang += std::hypot(ringe[0][i].x - ringe[0][i - 1].x, ringe[0][i].y - ringe[0][i - 1].y);
    }
    EXPECT_NEAR(umfang, 2 * 3.14159265 * 1.5, 0.02);
    EXPECT_EQ(konturlinien(kegel, 2.5).size(), 4U) << "an arc in each corner";
    EXPECT_TRUE(konturlinien(kegel, 3).empty());
}

/// One cell with the corners a, b below and c, d above; the value 1 crosses each side between 0 and 2, and
/// the mean decides which corners the two pieces cut off.
TEST(Konturlinien, MittelEntscheidetImSattel) {
    struct Fall {
        std::vector<double> ecken;  // (0,0), (1,0), (0,1), (1,1)
        std::vector<std::vector<Ort>> linien;
    };
    const Ort unten{0.5, 0}, oben{0.5, 1}, links{0, 0.5}, rechts{1, 0.5};
    for (const Fall& fall : {Fall{{2, 0, 0, 2}, {{unten, rechts}, {oben, links}}},
                             Fall{{0, 2, 2, 0}, {{unten, links}, {oben, rechts}}},
                             Fall{{2, 0, 0, 1.9}, {{unten, links}, {{1 - 0.9 / 1.9, 1}, {1, 1 - 0.9 / 1.9}}}},
                             Fall{{2, 0, 0, 0}, {{unten, links}}}, Fall{{1, 1, 1, 1}, {}}}) {
        const auto linien = konturlinien({{0, 1}, {0, 1}, fall.ecken}, 1);
        ASSERT_EQ(linien.size(), fall.linien.size());
        for (std::size_t i = 0; i < linien.size(); ++i) {
            ASSERT_EQ(linien[i].size(), 2U);
            for (std::size_t k = 0; k < 2; ++k) {
                EXPECT_NEAR(linien[i][k].x, fall.linien[i][k].x, 1e-12) << i << k;
                EXPECT_NEAR(linien[i][k].y, fall.linien[i][k].y, 1e-12) << i << k;
            }
        }
    }
}

TEST(Konturlinien, LueckenUnterbrechenUndRingeLiegenIneinander) {
    const auto schale = [](double x, double y) { return std::max(std::fabs(x), std::fabs(y)); };
    Wertegitter g = gitter(schritte(-5, 5, 10), schritte(-5, 5, 10), schale);
    EXPECT_EQ(konturlinien(g, 2.5).size(), 1U);
    g.werte[5 * 11 + 8] = std::numeric_limits<double>::quiet_NaN();  // (3, 0), beside the ring
    const auto linien = konturlinien(g, 2.5);
    ASSERT_EQ(linien.size(), 1U);
    EXPECT_EQ(linien[0].front().x, 2.5);
    EXPECT_EQ(std::fabs(linien[0].front().y), 1) << "where the cells with the gap begin";
    EXPECT_EQ(linien[0].back().y, -linien[0].front().y);
    EXPECT_TRUE(konturlinien({{0, 1, 2}, {0}, {1, 2, 3}}, 2).empty()) << "one row has no cells";
}

}  // namespace
}  // namespace velmaris
