#include "tools/pictures/haus.h"

#include "tools/pictures/raster.h"

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
constexpr Farbe ortgang{186, 116, 92};
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
constexpr double wandhoehe = 5.25;
constexpr double wandhoehe_flach = 6.75;
constexpr double ueberstand = 0.28;
constexpr double dachdicke = 0.25;

/// Heights of the roofs. The gable of the first has to hold two lines of text below its edges.
constexpr double dachhoehe_nord_sued = 6;
constexpr double dachhoehe_ost_west = 4.5;

/// How far the eaves lie below the top of the walls.
constexpr double traufe_unter_wand(double dachhoehe, double spannweite) {
    return ueberstand * dachhoehe / (spannweite / 2);
}

/// Oblique axonometry: the south facade keeps its shape, depth runs to the upper left.
Punkt projektion(const Ecke& e) {
    constexpr double suedwest_x = 60.5, suedwest_y = 169.5;
    return {suedwest_x + 10.8 * e.ost - 5.5 * e.nord, suedwest_y - 3 * e.nord - 12 * e.hoch};
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
    auftragen(bild, fuellung(bild.gitter(), vieleck(umriss)), farbe);
}

void umranden(Bild& bild, const Umriss& umriss, double deckkraft = 0.85) {
    auftragen(bild, linien(bild.gitter(), strecken(vieleck(umriss)), 1), kante, deckkraft);
}

/// An edge from a to b.
void strich(Bild& bild, const Ecke& a, const Ecke& b, double deckkraft) {
    auftragen(bild, linien(bild.gitter(), {{projektion(a), projektion(b)}}, 1), kante, deckkraft);
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
    auftragen(bild, linien(bild.gitter(), fugen, 0.6), ziegelfuge, 0.16);
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
    umranden(bild,
             {{innen, innen, h},
              {laenge - innen, innen, h},
              {laenge - innen, tiefe - innen, h},
              {innen, tiefe - innen, h}},
             0.35);
}

/// The front edge of a pitched roof, seen as a band below the line eaves - ridge - eaves.
void ortgang_malen(Bild& bild, const Ecke& traufe_a, const Ecke& first, const Ecke& traufe_b) {
    const auto tiefer = [](Ecke e) { return Ecke{e.ost, e.nord, e.hoch - dachdicke}; };
    wand(bild, {traufe_a, first, traufe_b, tiefer(traufe_b), tiefer(first), tiefer(traufe_a)}, ortgang);
}

void first_nord_sued_malen(Bild& bild) {
    constexpr double h = wandhoehe, first = h + dachhoehe_nord_sued;
    constexpr double traufe = h - traufe_unter_wand(dachhoehe_nord_sued, laenge);
    constexpr double mitte = laenge / 2, vorn = -ueberstand, hinten = tiefe + ueberstand;
    waende(bild, h);
    wand(bild, {{0, 0, h}, {laenge, 0, h}, {mitte, 0, first}}, suedwand);
    const Ecke traufe_west{-ueberstand, vorn, traufe}, first_vorn{mitte, vorn, first};
    ortgang_malen(bild, traufe_west, first_vorn, {laenge + ueberstand, vorn, traufe});
    dachflaeche(bild, {traufe_west, {-ueberstand, hinten, traufe}, {mitte, hinten, first}, first_vorn},
                west_dach);
}

/// The gable over the west facade. Its captions lie over its lower edge and its far slope, so the one is not
/// drawn and the other only faintly.
void westgiebel_malen(Bild& bild, double h, const Ecke& first) {
    const Ecke suedlich{0, 0, h}, noerdlich{0, tiefe, h};
    fuellen(bild, {{0, 0, h - 1}, suedlich, first, noerdlich, {0, tiefe, h - 1}}, westwand);
    strich(bild, {0, tiefe, h - 1}, noerdlich, 0.85);
    strich(bild, {0, 0, h - 1}, suedlich, 0.85);
    strich(bild, noerdlich, first, 0.35);
}

void first_ost_west_malen(Bild& bild) {
    constexpr double h = wandhoehe, first = h + dachhoehe_ost_west;
    constexpr double traufe = h - traufe_unter_wand(dachhoehe_ost_west, tiefe);
    constexpr double mitte = tiefe / 2, west = -ueberstand, ost = laenge + ueberstand;
    const Ecke traufe_sued{west, -ueberstand, traufe}, first_west{west, mitte, first};
    waende(bild, h);
    westgiebel_malen(bild, h, first_west);
    ortgang_malen(bild, traufe_sued, first_west, first_west);
    dachflaeche(bild, {traufe_sued, {ost, -ueberstand, traufe}, {ost, mitte, first}, first_west}, sued_dach);
}

}  // namespace

Bild haus_bild(Dachform dach, int feinheit) {
    Bild bild({bildbreite, bildhoehe, feinheit}, grund);
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
