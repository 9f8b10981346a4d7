#include "tools/pictures/sinnbilder.h"

#include "tools/pictures/raster.h"

#include <cmath>
#include <numbers>

namespace velmaris::bilder {
namespace {

constexpr int fahnenbreite = 96;
constexpr int fahnenhoehe = 64;
constexpr Farbe weiss{255, 255, 255};
constexpr Farbe himmel{58, 124, 176};
constexpr Farbe wiese{110, 158, 92};

Flaeche rechteck(double links, double oben, double rechts, double unten) {
    return {{{links, oben}, {rechts, oben}, {rechts, unten}, {links, unten}, {links, oben}}};
}

void fuellen(Bild& bild, const Flaeche& flaeche, Farbe farbe) {
    auftragen(bild, fuellung(bild.gitter(), flaeche), farbe);
}

void strich(Bild& bild, const std::vector<Strecke>& strecken, double dicke, Farbe farbe) {
    auftragen(bild, linien(bild.gitter(), strecken, dicke), farbe);
}

void rahmen(Bild& bild) {
    constexpr Farbe rand{110, 110, 110};
    const Flaeche aussen = rechteck(0.5, 0.5, bild.gitter().breite - 0.5, bild.gitter().hoehe - 0.5);
    strich(bild, strecken(aussen), 1, rand);
}

void sonne_zeichnen(Bild& bild, Punkt mitte) {
    constexpr Farbe sonne{255, 210, 84};
    std::vector<Strecke> strahlen;
    for (int i = 0; i < 8; ++i) {
        const double winkel = i * std::numbers::pi / 4 + std::numbers::pi / 8;
        const Punkt richtung{std::cos(winkel), std::sin(winkel)};
        strahlen.push_back({{mitte.x + 38 * richtung.x, mitte.y + 38 * richtung.y},
                            {mitte.x + 48 * richtung.x, mitte.y + 48 * richtung.y}});
    }
    strich(bild, strahlen, 8, sonne);
    strich(bild, {{mitte, mitte}}, 52, sonne);
}

/// The house, from (48, 64) to (240, 232), times a factor and then moved.
void haus_zeichnen(Bild& bild, Punkt um, double mal) {
    constexpr Farbe mauer{250, 246, 236}, dach{196, 92, 68}, tuer{120, 84, 62}, fenster{150, 196, 224};
    const auto fuelle = [&](Flaeche flaeche, Farbe farbe) {
        for (auto& ring : flaeche) {
            for (Punkt& p : ring)
                p = {um.x + mal * p.x, um.y + mal * p.y};
        }
        fuellen(bild, flaeche, farbe);
    };
    fuelle(rechteck(72, 136, 216, 232), mauer);
    fuelle({{{144, 64}, {240, 144}, {48, 144}, {144, 64}}}, dach);
    fuelle(rechteck(96, 164, 132, 200), fenster);
    fuelle(rechteck(160, 168, 192, 232), tuer);
}

}  // namespace

Bild sprachbild_deutsch(int feinheit) {
    constexpr Farbe schwarz{26, 26, 26}, rot{206, 30, 38}, gold{250, 200, 50};
    Bild bild({fahnenbreite, fahnenhoehe, feinheit}, schwarz);
    constexpr double band = fahnenhoehe / 3.0;
    fuellen(bild, rechteck(0, band, fahnenbreite, fahnenhoehe), rot);
    fuellen(bild, rechteck(0, 2 * band, fahnenbreite, fahnenhoehe), gold);
    rahmen(bild);
    return bild;
}

Bild sprachbild_englisch(int feinheit) {
    constexpr Farbe blau{24, 48, 110}, rot{204, 24, 46};
    constexpr double b = fahnenbreite, h = fahnenhoehe;
    const std::vector<Strecke> diagonalen{{{0, 0}, {b, h}}, {{0, h}, {b, 0}}};
    const std::vector<Strecke> kreuz{{{b / 2, 0}, {b / 2, h}}, {{0, h / 2}, {b, h / 2}}};
    Bild bild({fahnenbreite, fahnenhoehe, feinheit}, blau);
    strich(bild, diagonalen, 12, weiss);
    strich(bild, diagonalen, 4, rot);
    strich(bild, kreuz, 20, weiss);
    strich(bild, kreuz, 12, rot);
    rahmen(bild);
    return bild;
}

Bild programmbild(int feinheit) {
    Bild bild({256, 256, feinheit}, himmel);
    sonne_zeichnen(bild, {60, 60});
    fuellen(bild, rechteck(0, 216, 256, 256), wiese);
    haus_zeichnen(bild, {0, 0}, 1);
    return bild;
}

Bild einrichterbild() {
    constexpr int breite = 164, hoehe = 314;  // of NSIS
    Bild bild({breite, hoehe, 1}, himmel);
    sonne_zeichnen(bild, {54, 54});
    fuellen(bild, rechteck(0, 250, breite, hoehe), wiese);
    haus_zeichnen(bild, {-26, 88}, 0.75);
    return bild;
}

}  // namespace velmaris::bilder
