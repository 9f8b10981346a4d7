#include "tests/tools/pictures/kartenprobe.h"
#include "tools/pictures/projektion.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <set>
#include <string>

namespace velmaris {
namespace {

using bilder::Punkt;
using test::Bitmap;

bool ist_wasser(Farbe f) {
    return f.b > f.r + 40;
}

bool ist_land(Farbe f) {
    return f.g > f.b && f.r > 120;
}

/// A line of the graticule on the open sea.
bool ist_netz(Farbe f) {
    return ist_wasser(f) && f.r > 76;
}

/// Lighter than the land by a border line.
bool ist_grenze(Farbe f) {
    return f.r > 151 && f.g > 169;
}

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

Punkt welt_gross(Punkt ort) {
    return {1.5 * welt(ort).x, 1.5 * welt(ort).y};
}

/// What a place must be: open sea, on a line of the graticule there, land, water and land close by but no
/// border, no water around it; on a border or away from it.
enum class Art { wasser, netz, land, kueste, binnen, grenze, inneres };

bool ist(Art art, const Karte& karte, const Bitmap& bild, Punkt p) {
    const double wasser = abstand(bild, p, ist_wasser), land = abstand(bild, p, ist_land);
    const double grenze = abstand(bild, p, ist_grenze);
    switch (art) {
        case Art::wasser:
            return wasser < 1 && land > 1;
        case Art::netz:
            return abstand(bild, p, ist_netz) < 1 && land > 1;
        case Art::land:
            return land < 1 && wasser > 1;
        case Art::kueste:
            return wasser <= karte.nah && land <= karte.nah && grenze > 1;
        case Art::binnen:
            return land <= karte.nah && wasser >= karte.weit;
        case Art::grenze:
            return grenze <= 2;
        case Art::inneres:
            return grenze > 2;
    }
    return false;
}

struct Ort {
    const char* name;
    Art art;
    Punkt grad;
};

const std::vector<Ort> orte_europas{
    {"Biscay", Art::wasser, {-6, 46}},
    {"Adriatic", Art::wasser, {15.5, 43}},
    {"Irish Sea", Art::wasser, {-5, 53.8}},
    {"Spain - Portugal", Art::grenze, {-7.3, 39.6}},
    {"Norway - Sweden", Art::grenze, {12.2, 61.7}},
    {"Germany - Poland", Art::grenze, {14.6, 52.5}},
    {"Castile", Art::inneres, {-4.5, 41.5}},
    {"Auvergne", Art::inneres, {3, 45.5}},
    {"Ukraine", Art::inneres, {32, 49.5}},
};

const std::vector<Ort> orte_der_welt{
    {"Atlantic", Art::wasser, {-35, 25}},
    {"Hudson Bay", Art::wasser, {-86, 59}},
    {"Caspian Sea", Art::wasser, {51, 41}},
    {"beyond 180 E", Art::wasser, {190, 0}},
    {"equator", Art::netz, {-135, 0}},
    {"30 degrees south", Art::netz, {-135, -30}},
    {"150 degrees west", Art::netz, {-150, 10}},
    {"Sahara", Art::land, {10, 23}},
    {"Siberia", Art::land, {100, 60}},
    {"Antarctica", Art::land, {90, -72}},
    {"beyond 180 W", Art::land, {-188, 67}},
    {"USA - Canada", Art::grenze, {-107, 49}},
    {"Alaska - Canada", Art::grenze, {-141, 65}},
    {"Egypt - Sudan", Art::grenze, {29, 22}},
    {"Sudan", Art::inneres, {29, 17}},
    {"Australia", Art::inneres, {133, -24}},
};

/// Stations on the coast and inland.
struct Staedte {
    std::set<std::string> kueste, binnen;
};

const Staedte staedte_europas{{"Lissabon", "Marseille", "Kopenhagen", "Istanbul", "Odessa", "Dublin",
                               "Bergen", "Heraklion", "Reykjavik"},
                              {"Madrid", "München", "Moskau", "Budapest", "Ankara", "Lyon"}};
const Staedte staedte_der_welt{{"Lima", "Kapstadt", "Tokio", "Mumbai", "San Francisco", "Perth"},
                               {"Alice Springs", "Neu-Delhi", "Denver", "Nairobi"}};

void pruefen(const Karte& karte, const std::vector<Ort>& orte, const Staedte& staedte) {
    const Bitmap bild = test::grafik(karte.datei);
    ASSERT_EQ(bild.breite, karte.breite);
    ASSERT_EQ(bild.hoehe, karte.hoehe);
    for (const auto& [name, art, grad] : orte)
        EXPECT_TRUE(ist(art, karte, bild, karte.pixel(grad))) << karte.datei << ", " << name;
    std::size_t gefunden = 0;
    for (const Csvzeile& zeile : test::fakten("stationen.csv", {"name", "laenge_o", "breite_n"})) {
        const std::string& name = zeile.text("name");
        if (!staedte.kueste.contains(name) && !staedte.binnen.contains(name)) continue;
        const Art art = staedte.kueste.contains(name) ? Art::kueste : Art::binnen;
        const Punkt grad{zeile.zahl("laenge_o", {-180, 180}), zeile.zahl("breite_n", {-90, 90})};
        EXPECT_TRUE(ist(art, karte, bild, karte.pixel(grad))) << karte.datei << ", " << name;
        ++gefunden;
    }
    EXPECT_EQ(gefunden, staedte.kueste.size() + staedte.binnen.size());
}

TEST(Erdkarten, JederOrtIstWasErIst) {
    pruefen({"europa.bmp", 234, 201, bilder::europakarte, 2.5, 5}, orte_europas, staedte_europas);
    pruefen({"welt.bmp", 650, 246, welt, 2.5, 3}, orte_der_welt, staedte_der_welt);
    pruefen({"welt_gross.bmp", 975, 369, welt_gross, 3, 3}, orte_der_welt, staedte_der_welt);
}

TEST(Erdkarten, KeineFarbeGleichtDenPunktenDerStationen) {
    const auto abstand_zu = [](Farbe a, Farbe b) {
        return std::hypot(std::hypot(a.r - b.r, a.g - b.g), a.b - b.b);
    };
    for (const std::string name : {"europa.bmp", "welt.bmp", "welt_gross.bmp"}) {
        double naechster = 999;
        for (const Farbe farbe : test::grafik(name).pixel)
            naechster =
                std::min({naechster, abstand_zu(farbe, farben::gelb), abstand_zu(farbe, farben::rot)});
        EXPECT_GT(naechster, 150) << name;
    }
}

}  // namespace
}  // namespace velmaris
