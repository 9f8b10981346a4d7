#include "tests/tools/pictures/kartenprobe.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace velmaris {
namespace {

using test::Bitmap;
using test::farbton;

/// What a pixel of a house shows: the plane's ground, a flat roof and a shadow (cool, light and darker), an
/// edge or the red front edge of a roof (dark), a slope (reddish), the south or the duller west wall.
char flaeche(Farbe f) {
    const std::string ton = farbton(f);
    if (f == Farbe{240, 240, 240}) return '.';
    if (ton == "bgr") return f.r > 220 ? 'f' : 'x';
    if (ton != "rgb" || f.r == f.g || f.g == f.b) return '?';
    if (f.r < 180) return f.r - f.b > 50 ? 'o' : 'k';
    if (f.r - f.b > 50) return 'd';
    return f.r > 245 ? 's' : 'w';
}

/// What a pixel of a flag or of the program's own picture shows: the first letter of white, grey, schwarz,
/// yellow, red, brown, blue or meadow green.
char farbname(Farbe f) {
    const std::string ton = farbton(f);
    if (f.r == f.g && f.g == f.b) return f.r < 50 ? 's' : f.r == 255 ? 'w' : 'g';
    if (ton[0] == 'r') return f.b > 230 ? 'w' : f.g > 180 ? 'y' : f.r > 170 ? 'r' : 'b';
    return ton == "bgr" ? 'B' : ton == "grb" ? 'm' : '?';
}

/// The edges of the houses follow from the picture's axes: from the corner at 60.5, 169.5 a metre is 10.8
/// pixels to the east, 5.5 to the left and 3 upward to the north, and 12 upward. The walls of 10 m by 10 m
/// are 5.25 m high, under a flat roof 6.75 m; the ridges lie 6 and 4.5 m above them, the eaves 0.28 m out.
/// Where captions stand all faces are light.
TEST(Bilder, ZeigenAnJedemOrtWasDaHingehoert) {
    const struct {
        const char *bild, *orte;  ///< x, y and what is there
        char (*name)(Farbe);
    } faelle[] = {
        {"haus0.bmp",
         "0 0 .  189 175 .  60 50 .  172 153 .  110 160 s  30 130 w  87 73 f  172 162 x  60 130 k  168 130 k "
         "110 169 k  110 88 k  5 100 k  60 58 k  33 154 k  141 73 k",
         flaeche},
        {"haus1.bmp",
         "0 0 .  110 160 s  30 130 w  60 50 d  115 95 s  110 106 k  87 19 k  30 95 k  29 41 k  144 73 k "
         "90 72 k  87 75 o",
         flaeche},
        {"haus2.bmp", "0 0 .  110 160 s  30 130 w  115 95 d  25 75 w  100 110 k  100 37 k  158 73 k  44 76 k",
         flaeche},
        // Three bands of 21 1/3 rows; a red cross with white edges over diagonals on blue.
        {"sprache_d.bmp", "0 30 g  48 1 s  48 20 s  48 22 r  48 41 r  48 43 y  48 62 y  94 30 r  95 30 g",
         farbname},
        {"sprache_e.bmp", "0 32 g  48 5 r  10 32 r  56 8 w  30 6 B  21 14 r  21 49 r  21 10 w", farbname},
        // Sky, sun and ray, roof, wall, window, door, meadow.
        {"velmaris.bmp",
         "10 10 B  60 60 y  102 77 y  144 70 r  144 142 r  80 200 w  114 182 B  176 200 b  128 250 m",
         farbname},
    };
    for (const auto& [bildname, orte, name] : faelle) {
        const Bitmap bild = test::grafik(bildname);
        std::istringstream strom(orte);
        char zeichen = 0;
        for (int x = 0, y = 0; strom >> x >> y >> zeichen;)
            EXPECT_EQ(name(bild.bei(x, y)), zeichen) << bildname << ", " << x << ", " << y;
    }
}

TEST(Bilder, SindEbenmaessig) {
    const Bitmap dach = test::grafik("haus1.bmp");
    for (int y = 16; y <= 100; y += 12) {  // faint rows of tiles, nine from the ridge to the eaves
        EXPECT_LT(dach.bei(60, y).r, dach.bei(60, y + 6).r) << y;
        EXPECT_GT(dach.bei(60, y).r, dach.bei(60, y + 6).r - 10) << y;
    }
    const Bitmap flagge = test::grafik("sprache_e.bmp"), haus = test::grafik("velmaris.bmp");
    for (int x = 0; x < 96; ++x) {
        for (int y = 0; y < 64; ++y) {
            EXPECT_EQ(flagge.bei(x, y), flagge.bei(95 - x, y)) << x << ", " << y;
            EXPECT_EQ(flagge.bei(x, y), flagge.bei(x, 63 - y)) << x << ", " << y;
            EXPECT_EQ(haus.bei(144 + x, 112 + y / 2), haus.bei(143 - x, 112 + y / 2)) << "roof and wall";
            EXPECT_EQ(haus.bei(60 + x / 2, 60 - y / 2), haus.bei(59 + y / 2, 60 + x / 2))
                << "a quarter of the sun";
        }
    }
}

}  // namespace
}  // namespace velmaris
