#include "charts/c_sankey.h"
#include "tests/charts/probe.h"
#include "toolkit/svg_flaeche.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace velmaris {
namespace {

constexpr Farbe bandfarbe{255, 180, 180};

TEST(Sankey, LinieReichtBisZumLetztenPixel) {
    using Ecken = std::vector<double>;
    const std::pair<Ecken, Ecken> faelle[] = {
        {{1, 1, 4, 1}, {1, 1, 5, 1}}, {{4, 1, 1, 1}, {1, 1, 5, 1}}, {{2, 2, 2, 2}, {2, 2, 3, 2}},
        {{2, 1, 2, 4}, {2, 1, 2, 5}}, {{2, 4, 2, 1}, {2, 4, 2, 0}}, {{1, 1, 4, 6}, {1, 1, 5, 7}},
        {{1, 6, 4, 1}, {1, 6, 5, 0}}, {{4, 1, 1, 6}, {1, 6, 5, 0}},
    };
    for (const auto& [ecken, gezogen] : faelle) {
        RekorderFlaeche bild(9, 9);
        Sankey_Linie(bild, ecken[0], ecken[1], ecken[2], ecken[3], bandfarbe);
        EXPECT_EQ(bild.alle(Zeichnung::Art::linie, bandfarbe).at(0).zahlen, gezogen);
        EXPECT_EQ(bild.lies_punkt(ecken[2], ecken[3]), bandfarbe);
    }
}

TEST(Sankey, SchwungbandVerbindetBeideEnden) {
    for (const int versatz : {10, -10}) {
        RekorderFlaeche bild(60, 120, farben::weiss);
        Sankey_Schwungband({bild, bandfarbe}, {40, 80}, {10, 80 + versatz}, 20);
        EXPECT_EQ(test::hoch(bild, 10, 80 + versatz), 21);
        EXPECT_EQ(test::hoch(bild, 40, 80), 21);
        EXPECT_EQ(bild.lies_punkt(25, 70 + versatz / 2), bandfarbe) << "half way";
    }
    RekorderFlaeche breit(60, 120, farben::weiss);
    Sankey_Schwungband({breit, bandfarbe}, {40, 80}, {10, 90}, 49);
    EXPECT_EQ(test::hoch(breit, 10, 90), 50) << "too wide to bend";
}

/// The path that was drawn last.
std::string letzter_verlauf(const SvgFlaeche& bild) {
    const std::string text = bild.svg();
    const std::size_t anfang = text.rfind(" d=\"") + 4;
    return text.substr(anfang, text.find('"', anfang) - anfang);
}

TEST(Sankey, SvgBekommtUmrisse) {
    SvgFlaeche bild(100, 100);
    const Sankeyblatt blatt{bild, bandfarbe};
    Sankey_Spitze(bild, 10, 24, 10, 20, bandfarbe);
    EXPECT_EQ(letzter_verlauf(bild), "M 9 20L 11 20L 13 22.5L 11 25L 9 25Z");
    Sankey_Spitze(bild, 24, 50, 20, 50, bandfarbe);
    EXPECT_EQ(letzter_verlauf(bild), "M 20 52L 20 50L 22.5 48L 25 50L 25 52Z");
    Sankey_Schraegband(blatt, 10, 50, 40, 40, 4);
    EXPECT_EQ(letzter_verlauf(bild), "M 10 46L 11 46L 40 36L 41 36L 41 41L 40 41L 11 51L 10 51Z");
    // A quarter ring from 9.5 to 15.5 about the centre of pixel (20, 20), flush with the pixels' edges.
    Sankey_Bogen(blatt, 20, 20, 270, 360, 5, 10);
    EXPECT_EQ(
        letzter_verlauf(bild),
        "M 20 30L 20 36L 20.5 36A 15.5 15.5 0 0 0 36 20.5L 36 20L 30 20L 30 20.5A 9.5 9.5 0 0 1 20.5 30Z");
    // Two arcs of 10.5 and 39.5 pixels, 50 together, that meet 3/5 of the way.
    Sankey_Schwungband(blatt, {10, 60}, {40, 50}, 28);
    EXPECT_EQ(letzter_verlauf(bild),
              "M 10 61L 10.5 61A 39.5 39.5 0 0 0 34.2 53.1A 10.5 10.5 0 0 1 40.5 51L 41 51L 41 22L 40.5 22"
              "A 39.5 39.5 0 0 0 16.8 29.9A 10.5 10.5 0 0 1 10.5 32L 10 32Z");
}

}  // namespace
}  // namespace velmaris
