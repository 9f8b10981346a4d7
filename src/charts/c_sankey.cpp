#include "charts/c_sankey.h"

#include "toolkit/pixel.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>
#include <utility>

namespace velmaris {
namespace {

constexpr double pi = 3.14159265;
constexpr double pi_der_schwuenge = 3.1416;
constexpr double kopfraum = 50;
constexpr double schriftgrad = 7;

/// The pixels of a row or column from one to another, both included.
struct Spanne {
    double anfang;
    double ende;

    Spanne(int von, int bis) : anfang(std::min(von, bis)), ende(std::max(von, bis) + 1) {}
    [[nodiscard]] double mitte() const { return (anfang + ende) / 2; }
};

/// The triangle over the pixels `fuss` of the column or row `reihe`, `hoehe` pixels beyond it in the
/// direction `vor` (1 or -1). It begins one pixel before the column, so that it overlaps its band, or cuts it
/// off whole. Corners are {along, across}.
std::vector<Umriss::Ecke> dreieck(Spanne fuss, int reihe, int hoehe, int vor) {
    const double kante = vor > 0 ? reihe : reihe + 1;
    return {{kante - vor, fuss.anfang},
            {kante + vor, fuss.anfang},
            {kante + vor * (hoehe + 1), fuss.mitte()},
            {kante + vor, fuss.ende},
            {kante - vor, fuss.ende}};
}

Umriss spitze_als_umriss(int a, int b, int c, int d, int hoehe) {
    if (a == c) return {dreieck({b, d}, a, hoehe, 1)};
    Umriss stehend{dreieck({a, c}, b, hoehe, a < c ? 1 : -1)};
    for (Umriss::Ecke& ecke : stehend.ecken)
        std::swap(ecke.x, ecke.y);
    return stehend;
}

void spitze(Zeichenflaeche& bild, int a, int b, int c, int d, Farbe farbe) {
    const int hoehe = std::max(std::abs(c - a), std::abs(d - b)) / 2;
    if (bild.umriss(spitze_als_umriss(a, b, c, d, hoehe), farbe)) return;
    for (int k = 0; k <= hoehe; ++k) {
        if (a == c) {
            Sankey_Linie(bild, a, b - k, a + k, b - k, farbe);
            Sankey_Linie(bild, c, d + k, c + k, d + k, farbe);
        } else {
            const int vor = a < c ? k : -k;
            Sankey_Linie(bild, a + vor, b, a + vor, b + vor, farbe);
            Sankey_Linie(bild, c - vor, d, c - vor, d + vor, farbe);
        }
    }
}

/// The ring with the half pixel by which a run of pixels reaches beyond the centres of its first and last
/// one.
Umriss ring(double cx, double cy, double von, double bis, double innen, double aussen) {
    const auto ecke = [&](double winkel, double r, double weiter, double bogen = 0) {
        return Umriss::Ecke{cx + 0.5 + r * std::cos(winkel) - weiter * std::sin(winkel),
                            cy + 0.5 - r * std::sin(winkel) - weiter * std::cos(winkel), bogen};
    };
    return {{ecke(von, innen, -0.5), ecke(von, aussen, -0.5), ecke(von, aussen, 0),
             ecke(bis, aussen, 0, aussen), ecke(bis, aussen, 0.5), ecke(bis, innen, 0.5), ecke(bis, innen, 0),
             ecke(von, innen, 0, -innen)}};
}

/// The swing in one piece: unrounded, the radii of its arcs add up to the same length for every band.
Umriss schwung_als_umriss(Sankey_Ort links, Sankey_Ort rechts, int breite) {
    constexpr double dx = schwung_laenge;
    constexpr double dy = schwung_versatz;
    constexpr double radien = (dx * dx + dy * dy) / (2 * dy);
    const double innen = (radien - breite - 1) / 2;
    const double aussen = radien - innen;
    const double s = links.y > rechts.y ? 1 : -1;
    const double kante_links = s > 0 ? links.y + 1 : links.y - breite;
    const double kante_rechts = kante_links - s * dy;
    const double quer = s * (breite + 1);
    const double xl = links.x + 0.5;
    const double xr = rechts.x + 0.5;
    const double naht = kante_links - s * (aussen - innen * (1 - dy / radien));
    return {{{xl - 0.5, kante_links},
             {xl, kante_links},
             {xl + aussen * dx / radien, kante_links - s * aussen * dy / radien, s * aussen},
             {xr, kante_rechts, -s * innen},
             {xr + 0.5, kante_rechts},
             {xr + 0.5, kante_rechts - quer},
             {xr, kante_rechts - quer},
             {xl + innen * dx / radien, naht, s * aussen},
             {xl, kante_links - quer, -s * innen},
             {xl - 0.5, kante_links - quer}}};
}

}  // namespace

double Sankey_Massstab(const Zeichenflaeche& bild, double wert, double rand) {
    return wert / (bild.hoehe() - kopfraum - rand);
}

void Sankey_Linie(Zeichenflaeche& bild, double x1, double y1, double x2, double y2, Farbe farbe) {
    if (x1 > x2) {
        std::swap(x1, x2);
        std::swap(y1, y2);
    }
    const double weiter_x = x1 < x2 || y1 == y2 ? 1 : 0;
    const double weiter_y = y1 < y2 ? 1 : y1 > y2 ? -1 : 0;
    bild.linie(x1, y1, x2 + weiter_x, y2 + weiter_y, farbe);
}

void Sankey_Spitze(Zeichenflaeche& bild, double a, double b, double c, double d, Farbe farbe) {
    spitze(bild, pixel(a), pixel(b), pixel(c), pixel(d), farbe);
}

void Sankey_Bogen(const Sankeyblatt& blatt, int cx, int cy, double winkel1, double winkel2, int breite,
                  int radius) {
    double von = f32(pi * winkel1 / 180);
    const double bis = f32(pi * winkel2 / 180);
    if (von > bis) von -= 2 * std::numbers::pi;
    const double innen = radius > 1 ? radius - 0.5 : 0;
    if (blatt.bild.umriss(ring(cx, cy, von, bis, innen, radius + breite + 0.5), blatt.Bandfarbe)) return;
    blatt.bild.sektor(cx, cy, breite + radius, von, bis, blatt.Bandfarbe);
    blatt.bild.kreis(cx, cy, radius - 1, farben::weiss, farben::weiss);
}

void Sankey_Schraegband(const Sankeyblatt& blatt, double x1, double y1, double x2, double y2, int n) {
    const double links = pixel(x1);
    const double rechts = pixel(x2);
    const Spanne vorn(pixel(y1) - n, pixel(y1));
    const Spanne hinten(pixel(y2) - n, pixel(y2));
    const Umriss umriss{{{links, vorn.anfang},
                         {links + 1, vorn.anfang},
                         {rechts, hinten.anfang},
                         {rechts + 1, hinten.anfang},
                         {rechts + 1, hinten.ende},
                         {rechts, hinten.ende},
                         {links + 1, vorn.ende},
                         {links, vorn.ende}}};
    if (blatt.bild.umriss(umriss, blatt.Bandfarbe)) return;
    for (int k = 0; k <= n; ++k)
        Sankey_Linie(blatt.bild, x1, y1 - k, x2, y2 - k, blatt.Bandfarbe);
}

Sankey_Schwung schwung(int breite) {
    constexpr double dx = schwung_laenge;
    constexpr double dy = schwung_versatz;
    const int radius = i16((dx * dx + dy * dy - 2 * dy * breite) / (4 * dy), "r");
    return {radius, 90 - std::atan((2 * radius + breite - dy) / dx) * 180 / pi_der_schwuenge};
}

void Sankey_Schwungband(const Sankeyblatt& blatt, Sankey_Ort erster, Sankey_Ort zweiter, int breite) {
    const auto [radius, winkel] = schwung(breite);
    const auto [links, rechts] = std::minmax(erster, zweiter, [](auto a, auto b) { return a.x < b.x; });
    if (radius <= 0) {
        Sankey_Schraegband(blatt, links.x, links.y, rechts.x, rechts.y, breite);
        return;
    }
    if (blatt.bild.umriss(schwung_als_umriss(links, rechts, breite), blatt.Bandfarbe)) return;
    const bool steigt = links.y > rechts.y;
    for (const bool am_ersten : {true, false}) {
        const Sankey_Ort ort = am_ersten ? erster : zweiter;
        const bool ist_links = am_ersten == (erster.x < zweiter.x);
        const bool mitte_oben = ist_links == steigt;
        const double stelle = mitte_oben ? 270 : 90;
        const int cy = mitte_oben ? ort.y - breite - radius : ort.y + radius;
        Sankey_Bogen(blatt, ort.x, cy, steigt ? stelle : stelle - winkel, steigt ? stelle + winkel : stelle,
                     breite, radius);
    }
}

std::string Sankey_Wert(double wert) {
    return muster(wert, 1) + " kWh/(m² a)";
}

void Sankey_anfangen(Zeichenflaeche& bild) {
    bild.Cls();
    bild.schrift({.name = "Arial", .groesse = schriftgrad});
}

void Sankey_Text(Zeichenflaeche& bild, Buendig buendig, double x, double y,
                 std::initializer_list<std::string> zeilen) {
    const double anteil = buendig == Buendig::links ? 0 : buendig == Buendig::mitte ? 0.5 : 1;
    for (const std::string& zeile : zeilen) {
        bild.text(std::max(0.0, x - anteil * bild.textbreite(zeile)), y, zeile);
        y += sankey_zeile;
    }
}

}  // namespace velmaris
