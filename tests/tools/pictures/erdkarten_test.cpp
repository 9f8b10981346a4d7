#include "tests/tools/pictures/kartenprobe.h"
#include "tools/pictures/projektion.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace velmaris {
namespace {

using bilder::Punkt;
using test::Bitmap;

constexpr auto ist_wasser = [](Farbe f) { return f.b > f.r + 40; };
constexpr auto ist_land = [](Farbe f) { return f.g > f.b && f.r > 120; };
/// A line of the graticule on the open sea.
constexpr auto ist_netz = [](Farbe f) { return ist_wasser(f) && f.r > 76; };
/// Lighter than the land by a border line.
constexpr auto ist_grenze = [](Farbe f) { return f.r > 151 && f.g > 169; };

/// The distance in pixels from a place to the nearest pixel of a kind; 99 if there is none within 12.
double abstand(const Bitmap& karte, Punkt p, bool (*art)(Farbe)) {
    double kleinster = 99;
    for (int y = static_cast<int>(p.y) - 12; y <= p.y + 12; ++y) {
        for (int x = static_cast<int>(p.x) - 12; x <= p.x + 12; ++x) {
            if (x < 0 || y < 0 || x >= karte.breite || y >= karte.hoehe || !art(karte.bei(x, y))) continue;
            kleinster = std::min(kleinster, std::hypot(x - p.x, y - p.y));
        }
    }
    return kleinster;
}

/// A map of the earth with the way from degrees east and north to its pixels.
struct Karte {
    std::string datei;
    double breite, hoehe;
    Punkt (*pixel)(Punkt ort);
    double nah, weit;  ///< how far the coast may be from a town on it, must be from one inland, pixels
};

/// 604 and 302 pixels for the globe's 360 and 180 degrees.
Punkt welt(Punkt ort) {
    return {325 + ort.x / 180 * 302, 123 - ort.y / 90 * 151};
}

/// What a place must be: open sea (w), there on a line of the graticule (n), land (l), water and land close
/// by but no border (k), no water around it (b); on a border (g) or away from it (i).
bool ist(char art, const Karte& karte, const Bitmap& bild, Punkt p) {
    const double wasser = abstand(bild, p, ist_wasser), land = abstand(bild, p, ist_land);
    const double grenze = abstand(bild, p, ist_grenze);
    if (art == 'w') return wasser < 1 && land > 1;
    if (art == 'n') return abstand(bild, p, ist_netz) < 1 && land > 1;
    if (art == 'l') return land < 1 && wasser > 1;
    if (art == 'k') return wasser <= karte.nah && land <= karte.nah && grenze > 1;
    if (art == 'b') return land <= karte.nah && wasser >= karte.weit;
    return (grenze <= 2) == (art == 'g');
}

/// Places of the maps: what they are, degrees east and north, name.
const char* const orte_europas =
    "w -6 46 Biscay  n -10 48 10_west  w -5 53.8 Irish_Sea  g -7.3 39.6 Spain-Portugal  g 14.6 52.5 "
    "Germany-Poland "
    "i -4.5 41.5 Castile  i 32 49.5 Ukraine  k -9.13 38.72 Lisbon  k 30.73 46.48 Odessa  b -3.7 40.4 Madrid";
const char* const orte_der_welt =
    "w -86 59 Hudson_Bay  w 51 41 Caspian_Sea  w 190 0 Kiribati  n -135 0 equator  n -135 -30 30_south "
    "n -150 10 150_west  l 10 23 Sahara  l 90 -72 Antarctica  l 180 67.5 Chukotka  l -188 67 Chukotka "
    "g -107 49 USA-Canada  g 29 22 Egypt-Sudan  i 133 -24 Australia  k -77.05 -12.05 Lima "
    "k 18.4 -33.95 Cape_Town  b -105 39.7 Denver";

void pruefen(const Karte& karte, const char* orte) {
    const Bitmap bild = test::grafik(karte.datei);
    ASSERT_EQ(bild.breite, karte.breite);
    ASSERT_EQ(bild.hoehe, karte.hoehe);
    std::istringstream strom(orte);
    char art = 0;
    std::string name;
    for (Punkt grad; strom >> art >> grad.x >> grad.y >> name;)
        EXPECT_TRUE(ist(art, karte, bild, karte.pixel(grad))) << karte.datei << ", " << name;
}

TEST(Erdkarten, JederOrtIstWasErIst) {
    pruefen({"europa.bmp", 234, 201, bilder::europakarte, 2.5, 5}, orte_europas);
    pruefen({"welt.bmp", 650, 246, welt, 2.5, 3}, orte_der_welt);
    pruefen({"welt_gross.bmp", 975, 369,
             [](Punkt ort) {
                 return Punkt{1.5 * welt(ort).x, 1.5 * welt(ort).y};
             },
             3, 3},
            orte_der_welt);
}

TEST(Erdkarten, GedeckteFarbenLassenDiePunkteDerStationenStehen) {
    const auto abstand_zu = [](Farbe a, Farbe b) {
        return std::hypot(std::hypot(a.r - b.r, a.g - b.g), a.b - b.b);
    };
    const auto dunkler = [](Farbe a, Farbe b) { return a.r + a.g + a.b < b.r + b.g + b.b; };
    for (const std::string name : {"europa.bmp", "welt.bmp", "welt_gross.bmp"}) {
        const auto pixel = test::grafik(name).pixel;
        for (const Farbe farbe : pixel) {
            ASSERT_GT(abstand_zu(farbe, farben::gelb), 150) << name;
            ASSERT_GT(abstand_zu(farbe, farben::rot), 150) << name;
        }
        EXPECT_EQ(test::farbton(*std::ranges::min_element(pixel, dunkler)), "bgr") << "coasts";
        EXPECT_EQ(test::farbton(*std::ranges::max_element(pixel, dunkler)), "grb") << "borders";
    }
}

}  // namespace
}  // namespace velmaris
