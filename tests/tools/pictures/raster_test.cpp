#include "tools/pictures/raster.h"

#include <cmath>
#include <gtest/gtest.h>

namespace velmaris::bilder {
namespace {

double summe(const Deckung& deckung) {
    double ergebnis = 0;
    for (int y = 0; y < deckung.hoehe(); ++y) {
        for (int x = 0; x < deckung.breite(); ++x)
            ergebnis += deckung.anteil(x, y);
    }
    return ergebnis;
}

Ring quadrat(double von, double bis) {
    return {{von, von}, {bis, von}, {bis, bis}, {von, bis}, {von, von}};
}

TEST(Fuellung, DecktDenFlaecheninhalt) {
    const struct {
        const char* name;
        Flaeche flaeche;
        double inhalt;
    } faelle[] = {
        {"rectangle between pixels", {{{2.25, 3.5}, {7.75, 3.5}, {7.75, 6}, {2.25, 6}, {2.25, 3.5}}}, 13.75},
        {"sliver", {{{1, 1}, {9, 9}, {9, 9.5}, {1, 1}}}, 2},
        {"island in a hole", {quadrat(1, 9), quadrat(3, 7), quadrat(4, 5)}, 49},
        {"beyond the picture", {quadrat(-5, 5)}, 25},
    };
    for (const auto& fall : faelle)
        EXPECT_NEAR(summe(fuellung({10, 10}, fall.flaeche)), fall.inhalt, 0.01) << fall.name;
    const Deckung rechteck = fuellung({10, 10}, faelle[0].flaeche);
    EXPECT_NEAR(rechteck.anteil(2, 3), 0.375, 1e-12);
    EXPECT_NEAR(rechteck.anteil(2, 4), 0.75, 1e-12);
    EXPECT_NEAR(rechteck.anteil(5, 5), 1, 1e-12);
    EXPECT_EQ(rechteck.anteil(5, 6), 0);
}

TEST(Linien, SindSoDickWieVerlangt) {
    for (const double dicke : {0.7, 1.0, 3.0, 4.5}) {
        const Deckung waagrecht = linien({40, 20}, {{{-5, 9.5}, {50, 9.5}}}, dicke);
        EXPECT_NEAR(summe(waagrecht), 40 * dicke, 40 * 0.16) << dicke;
        const Deckung schraeg = linien({40, 20}, {{{5, 3}, {33, 16}}}, dicke);
        EXPECT_NEAR(summe(schraeg), std::hypot(28, 13) * dicke, dicke * dicke + 2) << dicke;
    }
    const Deckung linie = linien({10, 10}, {{{2.5, 5.5}, {8.5, 5.5}}}, 1);
    EXPECT_EQ(linie.anteil(5, 5), 1);
    EXPECT_EQ(linie.anteil(5, 4), 0);
    EXPECT_EQ(linie.anteil(1, 5), 0);
}

}  // namespace
}  // namespace velmaris::bilder
