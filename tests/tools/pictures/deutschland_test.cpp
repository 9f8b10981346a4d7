#include "climate/karten.h"
#include "tests/tools/pictures/kartenprobe.h"
#include "tools/pictures/umrisse.h"

#include <gtest/gtest.h>
#include <string>

namespace velmaris {
namespace {

using bilder::Punkt;
using test::Bitmap;

constexpr int breite = 230;
constexpr int hoehe = 308;

/// Point in polygon: how often the rings cross the parallel west of the place.
bool liegt_in(const bilder::Flaeche& ringe, const Punkt& ort) {
    bool innen = false;
    for (const auto& [a, b] : bilder::strecken(ringe)) {
        if ((a.y > ort.y) != (b.y > ort.y)) innen ^= ort.x > a.x + (b.x - a.x) * (ort.y - a.y) / (b.y - a.y);
    }
    return innen;
}

/// The place on earth under the centre of a pixel: the map's projection solved for the place.
Punkt ort_unter(int x, int y) {
    const double nord = (2149 - (y + 0.5)) / 39;
    return {(x + 0.5 + 284 - 3 * nord) / 23.5, nord};
}

Farbe am_bezugspixel(const Bitmap& karte, std::size_t region, int dx = 0, int dy = 0) {
    const Kartenpunkt bezug = bezugspunkte.at(region);
    return karte.bei(static_cast<int>(bezug.x) + dx, static_cast<int>(bezug.y) + dy);
}

/// For the regions 1..12 at 0..11.
class Deutschlandkarte : public ::testing::TestWithParam<std::size_t> {};

TEST_P(Deutschlandkarte, DieFarbeEinesPixelsSagtSeineRegion) {
    const std::size_t region = GetParam();
    const auto ringe = bilder::regionen_lesen(test::datenordner() / "regionen_polygone.csv").at(region);
    for (const std::size_t gewaehlte : {std::size_t{0}, region + 1, region == 0 ? 2 : region}) {
        const Bitmap karte = test::grafik("klima" + std::to_string(gewaehlte) + ".bmp");
        ASSERT_TRUE(karte.breite == breite && karte.hoehe == hoehe);
        const Farbe eigene = am_bezugspixel(karte, region);
        int gefaerbt = 0, innen = 0;
        for (int y = 0; y < hoehe; ++y) {
            for (int x = 0; x < breite; ++x) {
                const bool in_ihr = liegt_in(ringe, ort_unter(x, y));
                const bool farbe = karte.bei(x, y) == eigene;
                EXPECT_TRUE(in_ihr || !farbe) << x << ", " << y << " is no part of the region";
                innen += in_ihr;
                gefaerbt += farbe;
            }
        }
        EXPECT_GT(gefaerbt, 0.4 * innen);
        for (int i = 0; i < 9; ++i)
            EXPECT_EQ(am_bezugspixel(karte, region, i % 3 - 1, i / 3 - 1), eigene) << "beside the pixel";
    }
}

TEST_P(Deutschlandkarte, NurDieGewaehlteRegionBehaeltIhreFarbe) {
    const Bitmap schlicht = test::grafik("klima0.bmp");
    const Bitmap karte = test::grafik("klima" + std::to_string(GetParam() + 1) + ".bmp");
    for (std::size_t region = 0; region < 12; ++region) {
        const Farbe vorher = am_bezugspixel(schlicht, region), jetzt = am_bezugspixel(karte, region);
        if (GetParam() == region)
            EXPECT_EQ(jetzt, vorher) << "region " << region + 1;
        else
            EXPECT_GT(jetzt.r + jetzt.g + jetzt.b, vorher.r + vorher.g + vorher.b + 50) << region + 1;
    }
}

INSTANTIATE_TEST_SUITE_P(Alle, Deutschlandkarte, ::testing::Range(std::size_t{0}, std::size_t{12}));

TEST(Deutschland, KuesteUndSeeSindBlauUndDasLandHatEinenWeichenRand) {
    const Bitmap karte = test::grafik("klima0.bmp");
    std::string toene;
    for (std::size_t region = 0; region < 12; ++region)
        toene += test::farbton(am_bezugspixel(karte, region)) + " ";
    // Blue; lowland, foreland and forest green; high ground violet; the others yellow to red.
    EXPECT_EQ(toene, "bgr grb rbg rgb rgb rgb rbg gbr gbr grb brg bgr ");
    int x = 0;
    for (; karte.bei(x + 1, 150).r <= karte.bei(x, 150).r; ++x)
        EXPECT_GE(karte.bei(x, 150).b, karte.bei(x, 150).r) << x;
    EXPECT_TRUE(
        liegt_in(bilder::umriss_lesen(test::datenordner() / "germany_umriss.csv"), ort_unter(x + 1, 150)));
    EXPECT_EQ(karte.bei(x - 6, 150), (Farbe{240, 240, 240})) << "the plane's ground";
    EXPECT_LT(karte.bei(x - 2, 150).r, 235) << "the rim";
    EXPECT_EQ(test::farbton(karte.bei(x, 150)), "bgr") << "the border";
}

}  // namespace
}  // namespace velmaris
