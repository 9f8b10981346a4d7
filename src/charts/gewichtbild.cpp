#include "charts/gewichtbild.h"

#include "calc/zeitkonstante.h"

#include <cmath>

namespace velmaris {
namespace {

constexpr double twips = 15;
constexpr double grundlinie = 1500;
constexpr double ueberlappung = 10;
constexpr double halbe_breite_unten = 30;
constexpr double halbe_breite_oben = 14;
constexpr Farbe eisen{112, 118, 126};

}  // namespace

Gewichte gewichte(const Projekt& p) {
    const double wurzel = std::sqrt(kapazitaet_je_volumen(p));
    const double unten = wurzel * 100;
    const double darauf = wurzel * 400 / 9;
    return {{unten, grundlinie - unten}, {darauf, grundlinie - unten - darauf + ueberlappung}};
}

void gewicht_zeichnen(const Projekt& p, Zeichenflaeche& flaeche) {
    const double boden = flaeche.hoehe() - 3;
    const double mitte = flaeche.breite() / 2;
    const auto stueck = [&](const Gewicht& gewicht, double halbe_breite) {
        const double oben = boden - (grundlinie - gewicht.oben) / twips;
        const double unten = oben + gewicht.hoehe / twips;
        flaeche.flaeche(mitte - halbe_breite, oben, mitte + halbe_breite, unten, eisen);
        flaeche.kasten(mitte - halbe_breite, oben, mitte + halbe_breite, unten, farben::schwarz);
    };
    flaeche.Cls();
    const Gewichte g = gewichte(p);
    stueck(g.Gewicht2, halbe_breite_oben);
    stueck(g.Gewicht1, halbe_breite_unten);
    flaeche.linie(0, boden, flaeche.breite(), boden, farben::schwarz);
}

}  // namespace velmaris
