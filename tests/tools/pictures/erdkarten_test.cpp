#include "tests/tools/pictures/kartenprobe.h"
#include "toolkit/zahlen.h"
#include "tools/pictures/projektion.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <ostream>
#include <string>

namespace velmaris {
namespace {

using bilder::Punkt;
using test::Bitmap;

enum class Lage { kueste, binnen };

struct Stadt {
    std::string name;
    Lage lage;
};

bool ist_wasser(Farbe f) {
    return f.b > f.r + 40;
}

bool ist_land(Farbe f) {
    return f.g > f.b && f.r > 120;
}

/// The colour of the pixel on whose centre a place falls.
Farbe farbe_bei(const Bitmap& karte, Punkt p) {
    return karte.bei(static_cast<int>(std::lround(p.x)), static_cast<int>(std::lround(p.y)));
}

/// The distance in pixels from a place to the nearest pixel of a kind; 99 if there is none within 12.
double abstand(const Bitmap& karte, Punkt p, bool (*kind)(Farbe)) {
    double kleinster = 99;
    for (int y = static_cast<int>(p.y) - 12; y <= p.y + 12; ++y) {
        for (int x = static_cast<int>(p.x) - 12; x <= p.x + 12; ++x) {
            if (x < 0 || y < 0 || x >= karte.breite || y >= karte.hoehe || !kind(karte.bei(x, y))) continue;
            kleinster = std::min(kleinster, std::hypot(x - p.x, y - p.y));
        }
    }
    return kleinster;
}

/// A town on the coast has water and land close by, one inland has no water around it.
void pruefen(const Bitmap& karte, Punkt p, const Stadt& stadt, double nah, double weit) {
    EXPECT_LE(abstand(karte, p, ist_land), nah) << stadt.name;
    if (stadt.lage == Lage::kueste)
        EXPECT_LE(abstand(karte, p, ist_wasser), nah) << stadt.name;
    else
        EXPECT_GE(abstand(karte, p, ist_wasser), weit) << stadt.name;
}

std::map<std::string, std::map<std::string, std::string>> stationen() {
    std::map<std::string, std::map<std::string, std::string>> ergebnis;
    for (const auto& zeile : test::fakten("stationen.csv"))
        ergebnis[zeile.at("name")] = zeile;
    return ergebnis;
}

Punkt ort(const std::map<std::string, std::string>& zeile) {
    return {zahl_lesen(zeile.at("laenge_o")), zahl_lesen(zeile.at("breite_n"))};
}

TEST(Europakarte, StaedteLiegenRichtigZurKueste) {
    const Bitmap karte = test::grafik("europa.bmp");
    ASSERT_EQ(karte.breite, 234);
    ASSERT_EQ(karte.hoehe, 201);
    const auto liste = stationen();
    const Stadt staedte[] = {
        {"Lissabon", Lage::kueste},  {"Marseille", Lage::kueste}, {"Kopenhagen", Lage::kueste},
        {"Istanbul", Lage::kueste},  {"Barcelona", Lage::kueste}, {"Odessa", Lage::kueste},
        {"Dublin", Lage::kueste},    {"Bergen", Lage::kueste},    {"Heraklion", Lage::kueste},
        {"Reykjavik", Lage::kueste}, {"Madrid", Lage::binnen},    {"München", Lage::binnen},
        {"Moskau", Lage::binnen},    {"Prag", Lage::binnen},      {"Budapest", Lage::binnen},
        {"Minsk", Lage::binnen},     {"Ankara", Lage::binnen},    {"Lyon", Lage::binnen},
    };
    for (const Stadt& stadt : staedte) {
        const auto& zeile = liste.at(stadt.name);
        pruefen(karte, {zahl_lesen(zeile.at("eu_x")), zahl_lesen(zeile.at("eu_y"))}, stadt, 2.5, 5);
    }
}

TEST(Europakarte, ProjektionTrifftDieStationen) {
    int anzahl = 0;
    for (const auto& zeile : test::fakten("stationen.csv")) {
        if (zeile.at("europakarte") != "1") continue;
        ++anzahl;
        const Punkt p = bilder::europakarte(ort(zeile));
        EXPECT_NEAR(p.x, zahl_lesen(zeile.at("eu_x")), 0.051) << zeile.at("name");
        EXPECT_NEAR(p.y, zahl_lesen(zeile.at("eu_y")), 0.051) << zeile.at("name");
    }
    EXPECT_GT(anzahl, 90);
}

/// True if a light line passes a place on land within two pixels.
bool grenze_bei(const Bitmap& karte, Punkt p) {
    constexpr Farbe land{136, 154, 128};
    constexpr int heller = 15;
    bool gefunden = false;
    for (int y = static_cast<int>(p.y) - 1; y <= p.y + 2; ++y) {
        for (int x = static_cast<int>(p.x) - 1; x <= p.x + 2; ++x) {
            const Farbe farbe = karte.bei(x, y);
            gefunden |= farbe.r > land.r + heller && farbe.g > land.g + heller;
        }
    }
    return gefunden;
}

TEST(Europakarte, ZeigtDieGrenzenDerLaender) {
    const Bitmap karte = test::grafik("europa.bmp");
    const struct {
        std::string name;
        Punkt ort;
        bool grenze;
    } orte[] = {
        {"Spain - Portugal", {-7.3, 39.6}, true},
        {"Spain - France", {0.7, 42.7}, true},
        {"Norway - Sweden", {12.2, 61.7}, true},
        {"Germany - Poland", {14.6, 52.5}, true},
        {"Castile", {-4.5, 41.5}, false},
        {"Auvergne", {3, 45.5}, false},
        {"Poland", {19, 52.2}, false},
        {"Ukraine", {32, 49.5}, false},
    };
    for (const auto& fall : orte)
        EXPECT_EQ(grenze_bei(karte, bilder::europakarte(fall.ort)), fall.grenze) << fall.name;
}

TEST(Europakarte, OffeneSeeIstWasser) {
    const Bitmap karte = test::grafik("europa.bmp");
    const struct {
        std::string name;
        Punkt ort;
    } meere[] = {
        {"Biscay", {-6, 46}},       {"North Sea", {3, 56}},   {"Baltic", {19.5, 56.5}},
        {"Black Sea", {34, 43}},    {"Ionian Sea", {19, 36}}, {"Tyrrhenian Sea", {12, 40}},
        {"Norwegian Sea", {0, 66}}, {"Adriatic", {15.5, 43}}, {"Irish Sea", {-5, 53.8}},
    };
    for (const auto& meer : meere) {
        const Punkt p = bilder::europakarte(meer.ort);
        EXPECT_TRUE(ist_wasser(farbe_bei(karte, p))) << meer.name;
    }
}

struct Weltbild {
    std::string datei;
    double massstab;
    double nah;  ///< how far the coast may be from a town on it, pixels

    friend void PrintTo(const Weltbild& bild, std::ostream* strom) { *strom << bild.datei; }
};

class Weltkarte : public ::testing::TestWithParam<Weltbild> {
  protected:
    Bitmap karte_ = test::grafik(GetParam().datei);

    /// Pixel of a place, from the width of 604 and 302 pixels for the globe's 360 and 180 degrees.
    [[nodiscard]] Punkt pixel(Punkt ort) const {
        return {GetParam().massstab * (325 + ort.x / 180 * 302),
                GetParam().massstab * (123 - ort.y / 90 * 151)};
    }

    [[nodiscard]] Farbe farbe(Punkt ort) const { return farbe_bei(karte_, pixel(ort)); }
};

TEST_P(Weltkarte, StaedteLiegenRichtigZurKueste) {
    ASSERT_EQ(karte_.breite, GetParam().massstab * 650);
    ASSERT_EQ(karte_.hoehe, GetParam().massstab * 246);
    const auto liste = stationen();
    const Stadt staedte[] = {
        {"Lima", Lage::kueste},   {"Kapstadt", Lage::kueste},      {"Tokio", Lage::kueste},
        {"Mumbai", Lage::kueste}, {"San Francisco", Lage::kueste}, {"Dakar", Lage::kueste},
        {"Perth", Lage::kueste},  {"Alice Springs", Lage::binnen}, {"Neu-Delhi", Lage::binnen},
        {"Denver", Lage::binnen}, {"Nairobi", Lage::binnen},       {"Ouagadougou", Lage::binnen},
    };
    for (const Stadt& stadt : staedte)
        pruefen(karte_, pixel(ort(liste.at(stadt.name))), stadt, GetParam().nah, 3);
}

TEST_P(Weltkarte, MeereUndKontinenteStimmen) {
    const struct {
        std::string name;
        Punkt ort;
        bool wasser;
    } orte[] = {
        {"Atlantic", {-35, 25}, true},       {"Pacific", {-140, 0}, true},
        {"Indian Ocean", {80, -20}, true},   {"Hudson Bay", {-86, 59}, true},
        {"Caspian Sea", {51, 41}, true},     {"Black Sea", {34, 43}, true},
        {"Gulf of Mexico", {-90, 25}, true}, {"Sahara", {10, 23}, false},
        {"Amazon", {-60, -5}, false},        {"Siberia", {100, 60}, false},
        {"Greenland", {-45, 70}, false},     {"Antarctica", {90, -72}, false},
        {"Arabia", {45, 24}, false},         {"beyond 180 W", {-188, 67}, false},
        {"beyond 180 E", {190, 0}, true},
    };
    for (const auto& fall : orte) {
        EXPECT_EQ(ist_wasser(farbe(fall.ort)), fall.wasser) << fall.name;
        EXPECT_EQ(ist_land(farbe(fall.ort)), !fall.wasser) << fall.name;
    }
}

TEST_P(Weltkarte, ZeigtDieGrenzenDerLaender) {
    const struct {
        std::string name;
        Punkt ort;
        bool grenze;
    } orte[] = {
        {"USA - Canada", {-107, 49}, true},     {"Alaska - Canada", {-141, 65}, true},
        {"Egypt - Libya", {25, 26.5}, true},    {"Egypt - Sudan", {29, 22}, true},
        {"Brazil - Bolivia", {-60, -16}, true}, {"Namibia - Botswana", {20, -24}, true},
        {"Kansas", {-98, 39}, false},           {"Sudan", {29, 17}, false},
        {"Amazon", {-57, -7}, false},           {"Australia", {133, -24}, false},
    };
    for (const auto& fall : orte)
        EXPECT_EQ(grenze_bei(karte_, pixel(fall.ort)), fall.grenze) << fall.name;
}

INSTANTIATE_TEST_SUITE_P(Beide, Weltkarte,
                         ::testing::Values(Weltbild{"welt.bmp", 1, 2.5}, Weltbild{"welt_gross.bmp", 1.5, 3}),
                         [](const auto& fall) { return fall.param.massstab > 1 ? "gross" : "klein"; });

TEST(Erdkarten, KeineFarbeGleichtDenPunktenDerStationen) {
    const auto abstand_zu = [](Farbe a, Farbe b) {
        return std::hypot(std::hypot(a.r - b.r, a.g - b.g), a.b - b.b);
    };
    for (const std::string name : {"europa.bmp", "welt.bmp", "welt_gross.bmp"}) {
        double naechster = 999;
        for (const Farbe farbe : test::grafik(name).pixel) {
            naechster =
                std::min({naechster, abstand_zu(farbe, farben::gelb), abstand_zu(farbe, farben::rot)});
        }
        EXPECT_GT(naechster, 150) << name;
    }
}

}  // namespace
}  // namespace velmaris
