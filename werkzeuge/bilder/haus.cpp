#include "werkzeuge/bilder/haus.h"

#include "werkzeuge/bilder/raster.h"

#include <vector>

namespace velmaris::bilder {
namespace {

constexpr int bildbreite = 190;
constexpr int bildhoehe = 176;

constexpr Farbe grund{240, 240, 240};
constexpr Farbe bodenschatten{206, 209, 212};
constexpr Farbe kante{96, 92, 88};
constexpr Farbe suedwand{253, 247, 230};
constexpr Farbe westwand{230, 221, 201};
constexpr Farbe sued_dach{240, 200, 180};
constexpr Farbe west_dach{229, 186, 166};
constexpr Farbe ziegelfuge{190, 130, 108};
constexpr Farbe flachdach{228, 232, 235};

/// A corner in metres from the south-west corner of the ground: to the east, to the north, upward.
struct Ecke {
    double ost;
    double nord;
    double hoch;
};

using Umriss = std::vector<Ecke>;

constexpr double laenge = 10;
constexpr double tiefe = 10;
constexpr double wandhoehe = 5.2;
constexpr double wandhoehe_flach = 6.6;
constexpr double dachhoehe = 4.5;
constexpr double ueberstand = 0.35;
constexpr double neigung = dachhoehe / (laenge / 2);

/// Oblique axonometry: the south facade keeps its shape, depth runs to the upper left.
Punkt projektion(const Ecke& e) {
    constexpr double suedwest_x = 59.5, suedwest_y = 167.5;
    return {suedwest_x + 10.8 * e.ost - 5.5 * e.nord, suedwest_y - 3.1 * e.nord - 11.6 * e.hoch};
}

Flaeche vieleck(const Umriss& umriss) {
    Ring ring;
    for (const Ecke& e : umriss)
        ring.push_back(projektion(e));
    ring.push_back(ring.front());
    return {ring};
}

/// The point at `t` between a (0) and b (1).
Ecke zwischen(const Ecke& a, const Ecke& b, double t) {
    return {a.ost + t * (b.ost - a.ost), a.nord + t * (b.nord - a.nord), a.hoch + t * (b.hoch - a.hoch)};
}

void fuellen(Bild& bild, const Umriss& umriss, Farbe farbe) {
    auftragen(bild, fuellung(bildbreite, bildhoehe, vieleck(umriss)), farbe);
}

void umranden(Bild& bild, const Umriss& umriss) {
    auftragen(bild, linien(bildbreite, bildhoehe, strecken(vieleck(umriss)), 1), kante, 0.85);
}

void wand(Bild& bild, const Umriss& umriss, Farbe farbe) {
    fuellen(bild, umriss, farbe);
    umranden(bild, umriss);
}

/// A roof slope with faint rows of tiles; its corners: two along the eaves, two back along the ridge.
void dachflaeche(Bild& bild, const Umriss& umriss, Farbe farbe) {
    fuellen(bild, umriss, farbe);
    constexpr int reihen = 9;
    std::vector<Strecke> fugen;
    for (int i = 1; i < reihen; ++i) {
        const double t = static_cast<double>(i) / reihen;
        fugen.push_back(
            {projektion(zwischen(umriss[0], umriss[3], t)), projektion(zwischen(umriss[1], umriss[2], t))});
    }
    auftragen(bild, linien(bildbreite, bildhoehe, fugen, 0.6), ziegelfuge, 0.16);
    umranden(bild, umriss);
}

void waende(Bild& bild, double h) {
    fuellen(bild, {{laenge, 0, 0}, {laenge + 2.6, 2.2, 0}, {laenge + 2.6, tiefe, 0}, {laenge, tiefe, 0}},
            bodenschatten);
    wand(bild, {{0, tiefe, 0}, {0, 0, 0}, {0, 0, h}, {0, tiefe, h}}, westwand);
    wand(bild, {{0, 0, 0}, {laenge, 0, 0}, {laenge, 0, h}, {0, 0, h}}, suedwand);
}

void flachdach_malen(Bild& bild) {
    constexpr double h = wandhoehe_flach, innen = 0.6;
    waende(bild, h);
    wand(bild, {{0, 0, h}, {laenge, 0, h}, {laenge, tiefe, h}, {0, tiefe, h}}, flachdach);
    umranden(bild, {{innen, innen, h},
                    {laenge - innen, innen, h},
                    {laenge - innen, tiefe - innen, h},
                    {innen, tiefe - innen, h}});
}

void first_nord_sued_malen(Bild& bild) {
    constexpr double h = wandhoehe, first = h + dachhoehe, traufe = h - ueberstand * neigung;
    waende(bild, h);
    wand(bild, {{0, 0, h}, {laenge, 0, h}, {laenge / 2, 0, first}}, suedwand);
    dachflaeche(bild,
                {{-ueberstand, -ueberstand, traufe},
                 {-ueberstand, tiefe + ueberstand, traufe},
                 {laenge / 2, tiefe + ueberstand, first},
                 {laenge / 2, -ueberstand, first}},
                west_dach);
}

void first_ost_west_malen(Bild& bild) {
    constexpr double h = wandhoehe, first = h + dachhoehe, traufe = h - ueberstand * neigung;
    waende(bild, h);
    wand(bild, {{0, 0, h}, {0, tiefe, h}, {0, tiefe / 2, first}}, westwand);
    dachflaeche(bild,
                {{-ueberstand, -ueberstand, traufe},
                 {laenge + ueberstand, -ueberstand, traufe},
                 {laenge + ueberstand, tiefe / 2, first},
                 {-ueberstand, tiefe / 2, first}},
                sued_dach);
}

}  // namespace

Bild haus_bild(Dachform dach) {
    Bild bild(bildbreite, bildhoehe, grund);
    switch (dach) {
        case Dachform::flach:
            flachdach_malen(bild);
            break;
        case Dachform::first_nord_sued:
            first_nord_sued_malen(bild);
            break;
        case Dachform::first_ost_west:
            first_ost_west_malen(bild);
            break;
    }
    return bild;
}

}  // namespace velmaris::bilder
