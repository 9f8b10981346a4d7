#include "tests/tools/pictures/kartenprobe.h"

#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace velmaris {
namespace {

using test::Bitmap;

/// Contrast of black text on a colour, 1 to 21. Source: W3C, Web Content Accessibility Guidelines 2.1,
/// contrast ratio and relative luminance.
double kontrast_zu_schwarz(Farbe f) {
    const auto linear = [](double kanal) {
        kanal /= 255;
        return kanal <= 0.03928 ? kanal / 12.92 : std::pow((kanal + 0.055) / 1.055, 2.4);
    };
    const double helligkeit = 0.2126 * linear(f.r) + 0.7152 * linear(f.g) + 0.0722 * linear(f.b);
    return (helligkeit + 0.05) / 0.05;
}

TEST(Hausbilder, BeschriftungIstLesbar) {
    const struct {
        std::string bild, feld;
        int links, oben, breite, hoehe;
    } faelle[] = {
        {"haus0.bmp", "south facade", 72, 105, 80, 26},
        {"haus0.bmp", "west facade", 10, 102, 44, 39},
        {"haus1.bmp", "west slope", 26, 48, 56, 26},
        {"haus1.bmp", "area of the west slope", 24, 76, 44, 13},
        {"haus1.bmp", "south gable", 88, 72, 34, 13},
        {"haus1.bmp", "area of the south gable", 72, 88, 64, 13},
        {"haus1.bmp", "south facade", 72, 120, 80, 26},
        {"haus2.bmp", "west gable", 4, 56, 36, 13},
        {"haus2.bmp", "area of the west gable", 0, 70, 54, 13},
        {"haus2.bmp", "south slope", 48, 68, 96, 13},
        {"haus2.bmp", "area of the south slope", 80, 84, 50, 13},
    };
    for (const auto& fall : faelle) {
        const Bitmap bild = test::grafik(fall.bild);
        int lesbar = 0;
        for (int y = fall.oben; y < fall.oben + fall.hoehe; ++y) {
            for (int x = fall.links; x < fall.links + fall.breite; ++x)
                lesbar += kontrast_zu_schwarz(bild.bei(x, y)) >= 7;
        }
        EXPECT_GE(lesbar, 0.85 * fall.breite * fall.hoehe) << fall.bild << ", " << fall.feld;
    }
}

TEST(Hausbilder, ZeigenIhreDachform) {
    constexpr Farbe grund{240, 240, 240};
    const Bitmap flach = test::grafik("haus0.bmp");
    const Bitmap nord_sued = test::grafik("haus1.bmp");
    const Bitmap ost_west = test::grafik("haus2.bmp");
    const auto waermer_als_wand = [](Farbe f) { return f.r > f.b + 50; };
    for (const Bitmap* bild : {&flach, &nord_sued, &ost_west}) {
        for (const int x : {0, 189}) {
            for (const int y : {0, 175})
                EXPECT_EQ(bild->bei(x, y), grund);
        }
        EXPECT_EQ(bild->bei(110, 160), flach.bei(110, 160)) << "south facade";
        EXPECT_EQ(bild->bei(30, 130), flach.bei(30, 130)) << "west facade";
        EXPECT_NE(bild->bei(110, 160), bild->bei(30, 130));
    }
    EXPECT_EQ(flach.bei(60, 50), grund);
    // The edges are dark: the facade is 10 m long at 10.8 pixels and 6.75 m high at 12, and the depth of 10 m
    // goes 5.5 pixels to the left and 3 upward.
    for (const auto& [x, y] :
         {std::pair{60, 130}, {168, 130}, {110, 169}, {110, 88}, {5, 100}, {60, 58}, {33, 154}, {141, 73}})
        EXPECT_LT(flach.bei(x, y).r, 200) << x << ", " << y;
    for (const Farbe anders : {grund, flach.bei(110, 160), flach.bei(30, 130)})
        EXPECT_NE(flach.bei(87, 73), anders) << "the roof above the facades";
    EXPECT_TRUE(waermer_als_wand(nord_sued.bei(60, 50))) << "west slope";
    EXPECT_EQ(nord_sued.bei(115, 95), nord_sued.bei(110, 160)) << "gable over the south facade";
    EXPECT_TRUE(waermer_als_wand(ost_west.bei(115, 95))) << "south slope";
    EXPECT_EQ(ost_west.bei(25, 75), ost_west.bei(30, 130)) << "gable over the west facade";
}

/// What a place of a flag or of the program's own picture shows: a letter for its colour.
char farbname(Farbe f) {
    if (f.r > 240 && f.g > 240) return 'w';
    if (f.r > 240) return 'y';
    if (f.r > 170) return 'r';
    if (f.b > 100) return 'b';
    return f.g > 120 ? 'g' : 's';
}

TEST(Sinnbilder, ZeigenFlaggenUndHaus) {
    const struct {
        const char* bild;
        std::vector<std::pair<int, int>> orte;
        std::string farben;
    } faelle[] = {
        // Three bands; a red cross with white edges over diagonals on blue; sky, sun, roof, wall, window,
        // meadow.
        {"sprache_d.bmp", {{48, 10}, {48, 32}, {48, 55}}, "sry"},
        {"sprache_e.bmp", {{48, 5}, {10, 32}, {56, 8}, {30, 6}, {21, 14}, {21, 49}}, "rrwbrr"},
        {"velmaris.bmp", {{10, 10}, {60, 60}, {144, 100}, {80, 200}, {110, 180}, {128, 250}}, "byrwbg"},
    };
    for (const auto& [name, orte, farben] : faelle) {
        const Bitmap bild = test::grafik(name);
        std::string gefunden;
        for (const auto& [x, y] : orte)
            gefunden += farbname(bild.bei(x, y));
        EXPECT_EQ(gefunden, farben) << name;
    }
}

}  // namespace
}  // namespace velmaris
