#include "charts/traegerbild.h"

#include "charts/chartwerte.h"
#include "charts/diagrammtext.h"
#include "energy/katalog_werte.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>

namespace velmaris {
namespace {

constexpr double mitte = 40;  ///< centre of the pictograms and titles
constexpr double fuss = 48;   ///< foot of the pictograms
constexpr Farbe grau{128, 128, 128};

/// A gas bottle of body, shoulder, neck and valve, each as large as r (0..5) makes it.
void gas(Zeichenflaeche& bild, double v) {
    constexpr Farbe farbe{255, 119, 119};
    const double r = std::sqrt(v) / 2;
    bild.flaeche(mitte - 2 * r, fuss - 5 * r, mitte + 2 * r, fuss, farbe);
    bild.kreis(mitte, fuss - 5 * r, 2 * r, farbe, farbe);
    bild.flaeche(mitte - 0.5 * r, fuss - 8 * r, mitte + 0.5 * r, fuss - 6 * r, farbe);
    bild.kreis(mitte, fuss - 8 * r, 0.8 * r, farbe, farbe);
}

/// A tank with a wall of two pixels, filled from the bottom.
void oel(Zeichenflaeche& bild, double v) {
    bild.flaeche(24, 4, 56, 46, grau);
    bild.flaeche(26, 6, 54, 44, bild.hintergrund());
    if (v > 0) bild.flaeche(26, 44, 54, 44 - v * 0.38, {255, 255, 96});
}

/// A pile of n rows of logs.
void holz(Zeichenflaeche& bild, double v) {
    const double n = ganzzahl(std::sqrt(v * 0.56 + 0.25) - 0.5);
    for (int reihe = 1; reihe <= n; ++reihe) {
        for (int c = 0; c <= n - reihe; ++c)
            bild.kreis(mitte - (n - reihe) * 4 + c * 8, 45 - (reihe - 1) * 7, 4, grau, Farbe{232, 170, 96});
    }
}

/// A house on the heat network: a box with a line from each side and each corner.
void fernwaerme(Zeichenflaeche& bild, double v) {
    constexpr double hoehe = 28;
    const double halb = v / 5;
    const double aussen = halb + v / 10;
    for (int dx = -1; dx <= 1; ++dx) {
        for (int dy = -1; dy <= 1; ++dy)
            bild.linie(mitte + dx * halb, hoehe + dy * halb, mitte + dx * aussen, hoehe + dy * aussen, grau);
    }
    bild.flaeche(mitte - halb, hoehe - halb, mitte + halb, hoehe + halb, {255, 153, 153});
    bild.kasten(mitte - halb, hoehe - halb, mitte + halb, hoehe + halb, grau);
}

/// A lightning flash with the head of an arrow.
void blitz(Zeichenflaeche& bild, double v) {
    struct Strecke {
        int x1, y1, x2, y2;
    };
    static constexpr std::array<Strecke, 5> strecken{
        {{1, -4, -2, 1}, {-2, 1, 2, -1}, {2, -1, -1, 4}, {-1, 4, -1, 2}, {-1, 4, 1, 3}}};
    const double einheit = v * 0.06;
    const int dicke = static_cast<int>(ganzzahl(v * 0.02)) + 1;
    for (const Strecke& s : strecken) {
        bild.linie(mitte + s.x1 * einheit, 25 + s.y1 * einheit, mitte + s.x2 * einheit, 25 + s.y2 * einheit,
                   {255, 128, 0}, dicke);
    }
}

/// How the end energy of a carrier becomes an amount, and its pictogram.
struct Traegerart {
    std::string_view Traegername;
    double heizwert;  ///< kWh per unit
    std::string_view einheit;
    void (*zeichnen)(Zeichenflaeche&, double);
};

constexpr std::array<Traegerart, 5> arten{{{"Erdgas", 10.4, "m³/a", gas},
                                           {"Heizöl", 10.08, "l/a", oel},
                                           {"Holz", 4.6, "kg/a", holz},
                                           {"Nah-/Fernwärme", 1, "kWh/a", fernwaerme},
                                           {strom_name.Traegername, 1, "kWh/a", blitz}}};

/// A line of text in the middle, in smaller letters where it is too long for the surface. Its edge sets it
/// off from the pictogram.
void titelzeile(Zeichenflaeche& bild, double oben, const std::string& text) {
    const double breite =
        schrift_einpassen(bild, {&text, 1}, bild.breite(), {.hof = bild.hintergrund()}).front();
    bild.text(mitte - breite / 2, oben, text);
}

/// What a picture shows of a carrier.
struct Menge {
    std::string name;
    double energie;  ///< kWh/(m2 a)
    double menge;    ///< of the whole building
    std::string_view einheit;
    void (*zeichnen)(Zeichenflaeche&, double);
};

bool ohne_hilfsstrom(const Projekt& p) {
    return kurzname(p.Heizsystem, p.Energietraeger).elektrisch();
}

/// The main carrier; an electric one stands for the auxiliary electricity too.
Menge traegermenge(const Projekt& p) {
    const Kurzname name = kurzname(p.Heizsystem, p.Energietraeger);
    const auto* const art = std::find_if(
        arten.begin(), arten.end(), [&](const Traegerart& a) { return a.Traegername == name.Traegername; });
    const double energie = double{p.q_HE_Energietraeger} + (name.elektrisch() ? p.q_HE_Strom : 0.0F);
    return {std::string(name.in(p.Sprache)), energie, p.f_nutz * energie / art->heizwert, art->einheit,
            art->zeichnen};
}

Menge strommenge(const Projekt& p) {
    const double energie = p.q_HE_Strom;
    return {std::string(strom_name.in(p.Sprache)), energie, energie * p.f_nutz, "kWh/a", blitz};
}

/// The titles come last, so that they can be read on the pictogram.
void titel(Zeichenflaeche& bild, const Menge& menge) {
    titelzeile(bild, 10, menge.name + ":");
    titelzeile(bild, 30, muster(menge.menge, 0) + " " + std::string(menge.einheit));
}

Wertetafel mengentafel(const Projekt& p, const Wort& titel, const Menge& menge) {
    Wertezeile zeile{.namen = {menge.name}, .werte = {menge.menge}, .einheit = std::string(menge.einheit)};
    return groessentafel(p, std::string(titel.in(p.Sprache)), {std::move(zeile)});
}

}  // namespace

void Energietraeger_zeichnen(Zeichenflaeche& bild, const Projekt& p) {
    bild.Cls();
    const Menge menge = traegermenge(p);
    menge.zeichnen(bild, std::min(menge.energie / 2, 100.0));
    titel(bild, menge);
}

Wertetafel Energietraeger_werte(const Projekt& p) {
    return mengentafel(p, {"Energieträger", "Source of energy"}, traegermenge(p));
}

void Hilfsstrom_zeichnen(Zeichenflaeche& bild, const Projekt& p) {
    bild.Cls();
    if (ohne_hilfsstrom(p)) return;
    const Menge menge = strommenge(p);
    menge.zeichnen(bild, std::min(menge.energie * 20, 100.0));
    titel(bild, menge);
}

Wertetafel Hilfsstrom_werte(const Projekt& p) {
    Menge menge = strommenge(p);
    if (ohne_hilfsstrom(p)) menge.menge = 0;
    return mengentafel(p, {"Hilfsenergie (Strom)", "Auxiliary energy (electricity)"}, menge);
}

}  // namespace velmaris
