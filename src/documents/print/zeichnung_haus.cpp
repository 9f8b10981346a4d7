#include "documents/print/zeichnung_haus.h"

#include "charts/grundriss.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace velmaris {
namespace {

void zeichne(Blatt& blatt, Punkt ursprung, Strecke s, Farbe farbe = farben::schwarz) {
    const Punkt von = ursprung + s.von;
    const Punkt bis = ursprung + s.bis;
    blatt.linie(von.x, von.y, bis.x, bis.y, farbe);
}

/// Width of the sketch, which ends at the right of the frame.
constexpr double hausbreite = 31.2;
constexpr double haus_oben = 57;

constexpr Punkt vorn_links{12, 23.8};
constexpr Punkt vorn_rechts{31.2, 35};
constexpr Punkt hinten_links{0.8, 17.4};

constexpr std::array<Strecke, 3> westwand{{
    {hinten_links, {0.8, 28.6}},
    {{0.8, 28.6}, {12, 35}},
    {hinten_links, vorn_links},
}};

constexpr std::array<Strecke, 4> first_nord_sued{{
    {{10.4, 7.8}, {21.6, 14.2}},
    {hinten_links, {10.4, 7.8}},
    {vorn_links, {21.6, 14.2}},
    {{31.2, 23.8}, {21.6, 14.2}},
}};

constexpr std::array<Strecke, 4> first_ost_west{{
    {hinten_links, {6.6, 11.4}},
    {vorn_links, {6.6, 11.4}},
    {{6.6, 11.4}, {25.8, 11.4}},
    {{31.2, 23.8}, {25.8, 11.4}},
}};

constexpr std::array<Strecke, 2> flachdach{{
    {hinten_links, {20, 17.4}},
    {{20, 17.4}, {31.2, 23.8}},
}};

std::span<const Strecke> dach(const Projekt& p) {
    if (p.Check_Dachgeschoss != 1 || p.hd <= 0) return flachdach;
    if (p.Option_Dachfirst == 1) return first_nord_sued;
    return first_ost_west;
}

std::string mit_einheit(double wert, const char* einheit) {
    return muster(wert, 1) + einheit;
}

constexpr double schriftgrad = 7;
constexpr double wandrand = 0.4;  ///< between a text and the edge of its wall

/// The area of a wall from `ort` on, further left or in smaller letters where it would not end before
/// `rechts`; it begins at `links` at the least.
void flaeche_schreiben(Blatt& blatt, Punkt ort, double links, double rechts, double quadratmeter) {
    const std::string text = mit_einheit(quadratmeter, " m²");
    blatt.schrift_einpassen(text, rechts - links);
    blatt.text(std::min(ort.x, rechts - blatt.drucker().textbreite(text)), ort.y, text);
    blatt.schrift({.groesse = schriftgrad});
}

void hausbeschriftung(Blatt& blatt, const Projekt& p, Punkt o) {
    const auto schreibe = [&](double x, double y, std::string_view text) {
        blatt.text(o.x + x, o.y + y, text);
    };
    const auto wort = [&](double x, double y, const Wort& w) { schreibe(x, y, w.in(blatt.sprache())); };
    blatt.schrift({.groesse = schriftgrad});
    wort(14.4, 26.4, {"Süd-Fassade", "south facade"});
    const Punkt flaeche_sued = o + Punkt{20, 29.1};
    flaeche_schreiben(blatt, flaeche_sued, o.x + vorn_links.x + wandrand, o.x + vorn_rechts.x - wandrand,
                      double{p.l} * p.h);
    wort(1.6, 21.3, {"West-", "west"});
    wort(1.6, 24, {"Fassade", "facade"});
    const Punkt flaeche_west = o + Punkt{1.6, 26.7};
    flaeche_schreiben(blatt, flaeche_west, flaeche_west.x, o.x + vorn_links.x - wandrand, double{p.b} * p.h);

    schreibe(12.8, 31.9, mit_einheit(p.h, " m"));
    blatt.mitte(o.x + (vorn_links.x + vorn_rechts.x) / 2, o.y + vorn_rechts.y + 0.5, mit_einheit(p.l, " m"));
    blatt.DruckeText(mit_einheit(p.b, " m"), o.x + 5.4, o.y + 32.6);
    if (p.Check_Dachgeschoss == 1 && p.hd > 0)
        blatt.DruckeText(mit_einheit(p.hd, " m"), o.x + 2.6, o.y + 11.6);

    blatt.mitte(o.x + 15, o.y + 3.6, "N");
    blatt.mitte(o.x + 29.8, o.y + 13, Wort{"O", "E"}.in(blatt.sprache()));
    blatt.mitte(o.x + 21.6, o.y + 38.6, "S");
    blatt.mitte(o.x - 1.6, o.y + 21.6, "W");
}

}  // namespace

void Zeichnung_Haus(Blatt& blatt, const Projekt& p) {
    const Punkt o{rahmen::rechts - hausbreite, haus_oben};
    blatt.schrift({.groesse = 12, .unterstrichen = true});
    blatt.text(o.x, 50, Wort{"Skizze:", "Sketch:"});
    blatt.drucker().kasten(o.x + vorn_links.x, o.y + vorn_links.y, o.x + vorn_rechts.x, o.y + vorn_rechts.y,
                           farben::schwarz);
    for (const Strecke& strecke : westwand)
        zeichne(blatt, o, strecke);
    for (const Strecke& strecke : dach(p))
        zeichne(blatt, o, strecke);
    hausbeschriftung(blatt, p, o);
    blatt.schrift({});
}

void Diagramm_Orientierung(Blatt& blatt, const Projekt& p) {
    constexpr Punkt mitte{rahmen::breite / 2 + 15, 75};
    constexpr double halbe_seite = 9;
    constexpr double pfeil = 0.7 * halbe_seite;
    constexpr double buchstaben = 14.5;
    const double winkel = p.orient * grad_in_bogen;
    // A and B are the corners at the north of the west and the east facade, H is towards the south facade.
    const Punkt sued{-std::sin(winkel), std::cos(winkel)};
    const Punkt ost{sued.y, -sued.x};
    const Punkt A = halbe_seite * (-sued - ost);
    const Punkt B = halbe_seite * (ost - sued);
    for (const Strecke& s : haus_von_oben(A, B))
        zeichne(blatt, mitte, s);

    const Punkt H = pfeil * sued;
    const double drittel = pfeil / 2;
    zeichne(blatt, mitte, {-H, H}, farben::rot);
    zeichne(blatt, mitte, {H, H + drittel * (-sued - ost)}, farben::rot);
    zeichne(blatt, mitte, {H, H + drittel * (ost - sued)}, farben::rot);

    struct Buchstabe {
        Punkt richtung;
        std::string_view text;
    };
    blatt.schrift({});
    for (const Buchstabe& b :
         {Buchstabe{-sued, "N"}, {sued, "S"}, {-ost, "W"}, {ost, Wort{"O", "E"}.in(blatt.sprache())}}) {
        const Punkt ort = mitte + buchstaben * b.richtung;
        blatt.mitte(ort.x, ort.y - blatt.drucker().texthoehe(b.text) / 2, b.text);
    }
}

}  // namespace velmaris
