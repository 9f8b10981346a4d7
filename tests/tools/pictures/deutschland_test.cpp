#include "climate/karten.h"
#include "tests/tools/pictures/kartenprobe.h"

#include <array>
#include <gtest/gtest.h>
#include <string>

namespace velmaris {
namespace {

using test::Bitmap;

constexpr std::size_t regionen = 12;
constexpr int breite = 230;
constexpr int hoehe = 308;

struct Ort {
    double lon = 0;
    double lat = 0;
};

/// The rings of the regions 1..12 at 0..11, in degrees.
std::array<std::vector<std::vector<Ort>>, regionen> ringe_lesen() {
    std::array<std::vector<std::vector<Ort>>, regionen> ergebnis;
    for (const Csvzeile& zeile : test::fakten("regionen_polygone.csv", {"region", "punkt", "lon", "lat"})) {
        auto& ringe = ergebnis.at(static_cast<std::size_t>(zeile.ganzzahl("region", {1, 12})) - 1);
        if (zeile.text("punkt") == "1") ringe.emplace_back();
        ringe.back().push_back({zeile.zahl("lon", {5, 16}), zeile.zahl("lat", {47, 56})});
    }
    return ergebnis;
}

/// Point in polygon: how often the rings cross the parallel west of the place.
bool liegt_in(const std::vector<std::vector<Ort>>& ringe, const Ort& ort) {
    bool innen = false;
    for (const auto& ring : ringe) {
        for (std::size_t i = 1; i < ring.size(); ++i) {
            const Ort &a = ring[i - 1], &b = ring[i];
            if ((a.lat > ort.lat) == (b.lat > ort.lat)) continue;
            innen ^= ort.lon > a.lon + (b.lon - a.lon) * (ort.lat - a.lat) / (b.lat - a.lat);
        }
    }
    return innen;
}

/// The place on earth under the centre of a pixel: the map's projection solved for the place.
Ort ort_unter(int x, int y) {
    const double lat = (2149 - (y + 0.5)) / 39;
    return {(x + 0.5 + 284 - 3 * lat) / 23.5, lat};
}

Farbe am_bezugspixel(const Bitmap& karte, std::size_t region, int dx = 0, int dy = 0) {
    const Kartenpunkt bezug = bezugspunkte.at(region);
    return karte.bei(static_cast<int>(bezug.x) + dx, static_cast<int>(bezug.y) + dy);
}

/// For the plain map and those with one region picked out.
class Deutschlandkarte : public ::testing::TestWithParam<std::size_t> {
  protected:
    Bitmap karte_ = test::grafik("klima" + std::to_string(GetParam()) + ".bmp");
};

TEST_P(Deutschlandkarte, DieFarbeEinesPixelsSagtSeineRegion) {
    ASSERT_EQ(karte_.breite, breite);
    ASSERT_EQ(karte_.hoehe, hoehe);
    const auto ringe = ringe_lesen();
    for (std::size_t region = 0; region < regionen; ++region) {
        int gefaerbt = 0, innen = 0;
        for (int y = 0; y < hoehe; ++y) {
            for (int x = 0; x < breite; ++x) {
                const bool in_ihr = liegt_in(ringe.at(region), ort_unter(x, y));
                const bool farbe = karte_.bei(x, y) == am_bezugspixel(karte_, region);
                EXPECT_TRUE(in_ihr || !farbe) << x << ", " << y << " is no part of region " << region + 1;
                innen += in_ihr;
                gefaerbt += farbe;
            }
        }
        EXPECT_GT(gefaerbt, 0.4 * innen) << "region " << region + 1;
        for (int i = 0; i < 9; ++i)
            EXPECT_EQ(am_bezugspixel(karte_, region, i % 3 - 1, i / 3 - 1), am_bezugspixel(karte_, region))
                << "beside the reference pixel of region " << region + 1;
    }
}

TEST_P(Deutschlandkarte, NurDieGewaehlteRegionBehaeltIhreFarbe) {
    const Bitmap schlicht = test::grafik("klima0.bmp");
    for (std::size_t region = 0; region < regionen; ++region) {
        const Farbe vorher = am_bezugspixel(schlicht, region), jetzt = am_bezugspixel(karte_, region);
        if (GetParam() == 0 || GetParam() == region + 1)
            EXPECT_EQ(jetzt, vorher) << "region " << region + 1;
        else
            EXPECT_GT(jetzt.r + jetzt.g + jetzt.b, vorher.r + vorher.g + vorher.b + 50) << region + 1;
    }
}

INSTANTIATE_TEST_SUITE_P(Alle, Deutschlandkarte, ::testing::Range(std::size_t{0}, regionen + 1));

}  // namespace
}  // namespace velmaris
