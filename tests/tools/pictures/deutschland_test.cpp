#include "climate/karten.h"
#include "tests/tools/pictures/kartenprobe.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace velmaris {
namespace {

using test::Bitmap;

constexpr int regionen = klimaregionen;

Farbe bei_bezug(const Bitmap& karte, std::size_t i, int dx = 0, int dy = 0) {
    const Kartenpunkt bezug = bezugspunkte.at(i);
    return karte.bei(static_cast<int>(bezug.x) + dx, static_cast<int>(bezug.y) + dy);
}

struct Ort {
    double lon = 0;
    double lat = 0;
};

using Linie = std::vector<Ort>;

/// The rings of the regions 1..12 at 0..11, in degrees.
std::array<std::vector<Linie>, regionen> ringe_lesen() {
    std::array<std::vector<Linie>, regionen> ergebnis;
    for (auto& zeile : test::fakten("regionen_polygone.csv")) {
        auto& ringe = ergebnis.at(static_cast<std::size_t>(zahl_lesen(zeile["region"])) - 1);
        if (zeile["punkt"] == "1") ringe.emplace_back();
        ringe.back().push_back({zahl_lesen(zeile["lon"]), zahl_lesen(zeile["lat"])});
    }
    return ergebnis;
}

/// The place on earth under the centre of a pixel: the map's projection solved for the place.
Ort ort_unter(int x, int y) {
    const double lat = (2149 - (y + 0.5)) / 39;
    return {(x + 0.5 + 284 - 3 * lat) / 23.5, lat};
}

/// Point in polygon by the sum of the angles under which the rings' pieces are seen.
bool liegt_in(const std::vector<Linie>& ringe, const Ort& ort) {
    double winkel = 0;
    for (const Linie& ring : ringe) {
        double umlauf = 0;
        for (std::size_t i = 1; i < ring.size(); ++i) {
            const double ax = ring[i - 1].lon - ort.lon, ay = ring[i - 1].lat - ort.lat;
            const double bx = ring[i].lon - ort.lon, by = ring[i].lat - ort.lat;
            umlauf += std::atan2(ax * by - ay * bx, ax * bx + ay * by);
        }
        winkel += std::abs(umlauf);
    }
    return std::lround(winkel / 6.283185307179586) % 2 == 1;
}

/// Area and length of the outline of a region in pixels: a degree square covers 23.5 x 39 of them.
struct Mass {
    double inhalt = 0;
    double umfang = 0;
};

Mass mass(const std::vector<Linie>& ringe) {
    Mass ergebnis;
    for (std::size_t r = 0; r < ringe.size(); ++r) {
        double doppelt = 0;
        const Linie& ring = ringe[r];
        for (std::size_t i = 1; i < ring.size(); ++i) {
            const double dlat = ring[i].lat - ring[i - 1].lat, dlon = ring[i].lon - ring[i - 1].lon;
            doppelt += ring[i - 1].lon * dlat - ring[i - 1].lat * dlon;
            ergebnis.umfang += std::hypot(23.5 * dlon + 3 * dlat, 39 * dlat);
        }
        const Ort& erster = ring.front();
        std::vector<Linie> andere = ringe;
        andere.erase(andere.begin() + static_cast<std::ptrdiff_t>(r));
        const bool loch = liegt_in(andere, erster);
        ergebnis.inhalt += (loch ? -1 : 1) * std::abs(doppelt) / 2 * 23.5 * 39;
    }
    return ergebnis;
}

class Deutschlandkarte : public ::testing::TestWithParam<int> {
  protected:
    Bitmap karte_ = test::grafik("klima" + std::to_string(GetParam()) + ".bmp");

    [[nodiscard]] Farbe regionsfarbe(std::size_t i) const { return bei_bezug(karte_, i); }

    [[nodiscard]] std::optional<std::size_t> region_der_farbe(Farbe farbe) const {
        for (std::size_t i = 0; i < regionen; ++i) {
            if (farbe == regionsfarbe(i)) return i;
        }
        return std::nullopt;
    }
};

TEST_P(Deutschlandkarte, BezugspixelTrennenDieRegionen) {
    ASSERT_EQ(karte_.breite, 230);
    ASSERT_EQ(karte_.hoehe, 308);
    for (std::size_t i = 0; i < regionen; ++i) {
        EXPECT_EQ(region_der_farbe(regionsfarbe(i)), i) << "colour of region " << i + 1 << " is not its own";
        for (int dy = -1; dy <= 1; ++dy) {
            for (int dx = -1; dx <= 1; ++dx) {
                EXPECT_EQ(bei_bezug(karte_, i, dx, dy), regionsfarbe(i))
                    << "beside the reference pixel of region " << i + 1;
            }
        }
    }
}

TEST_P(Deutschlandkarte, JederPixelEinerRegionsfarbeLiegtInDerRegion) {
    const auto ringe = ringe_lesen();
    std::array<int, regionen> anzahl{};
    for (int y = 0; y < karte_.hoehe; ++y) {
        for (int x = 0; x < karte_.breite; ++x) {
            const auto region = region_der_farbe(karte_.bei(x, y));
            if (!region) continue;
            ++anzahl.at(*region);
            EXPECT_TRUE(liegt_in(ringe.at(*region), ort_unter(x, y)))
                << "pixel " << x << ", " << y << " is no part of region " << *region + 1;
        }
    }
    for (std::size_t i = 0; i < regionen; ++i) {
        const auto [inhalt, umfang] = mass(ringe.at(i));
        EXPECT_LT(anzahl.at(i), inhalt) << "region " << i + 1;
        EXPECT_GT(anzahl.at(i), inhalt - 0.85 * umfang) << "region " << i + 1;
        EXPECT_GT(anzahl.at(i), 0.4 * inhalt) << "region " << i + 1;
    }
}

TEST_P(Deutschlandkarte, NurDieGewaehlteRegionBehaeltIhreFarbe) {
    const Bitmap schlicht = test::grafik("klima0.bmp");
    const auto helligkeit = [](Farbe f) { return f.r + f.g + f.b; };
    for (std::size_t i = 0; i < regionen; ++i) {
        const Farbe vorher = bei_bezug(schlicht, i);
        const bool voll = GetParam() == 0 || GetParam() == static_cast<int>(i) + 1;
        if (voll)
            EXPECT_EQ(regionsfarbe(i), vorher) << "region " << i + 1;
        else
            EXPECT_GT(helligkeit(regionsfarbe(i)), helligkeit(vorher) + 50) << "region " << i + 1;
    }
}

INSTANTIATE_TEST_SUITE_P(Alle, Deutschlandkarte, ::testing::Range(0, regionen + 1));

}  // namespace
}  // namespace velmaris
