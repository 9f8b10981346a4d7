#include "charts/temperaturdiagramm.h"

#include "charts/diagrammtext.h"
#include "toolkit/wort.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string>

namespace velmaris {
namespace {

constexpr double breit = 600;  ///< from this width on each day has its number
constexpr int tage_der_achse = 31;
constexpr double rand_rechts = 10;
constexpr double legendentext = 15;  ///< from the patch of a legend entry to its text
const Schrift schrift{.groesse = 8};
constexpr Farbe farbe_raum = farben::rot;
constexpr Farbe farbe_aussen = farben::blau;

/// The plot area, the axes and the pixels per unit.
struct Plan {
    double links, oben, rechts, unten;
    Temperaturachse achse;
    double x_faktor;
    double y_faktor;

    [[nodiscard]] double x(double tag) const { return X_(tag, links, x_faktor); }

    /// The same between the pixels, for surfaces with finer ones.
    [[nodiscard]] double x_genau(double tag) const { return links + x_faktor * tag; }
    [[nodiscard]] double y_genau(double temperatur) const {
        return unten + achse.unten * y_faktor - y_faktor * temperatur;
    }
    [[nodiscard]] double y(double temperatur) const {
        return Y_(temperatur, unten + achse.unten * y_faktor, y_faktor);
    }
};

Plan plan(const Zeichenflaeche& bild, const Temperaturachse& achse) {
    Plan p{.links = 30,
           .oben = 35,
           .rechts = bild.breite() - rand_rechts,
           .unten = bild.hoehe() - 20,
           .achse = achse,
           .x_faktor = 0,
           .y_faktor = 0};
    p.x_faktor = (p.rechts - p.links) / tage_der_achse;
    if (achse.oben > achse.unten) p.y_faktor = (p.unten - p.oben) / (achse.oben - achse.unten);
    return p;
}

void eintrag(Zeichenflaeche& bild, double abstand, const std::string& text, Farbe farbe) {
    constexpr double mitte = 35 - 8;
    const double x = bild.breite() - abstand;
    bild.flaeche(x, mitte - 3, x + 9, mitte + 3, farbe);
    bild.text(x + legendentext, mitte - bild.texthoehe("T") / 2, text);
}

/// Both entries in one font, in which the second one ends above the right end of the axis.
void legende(Zeichenflaeche& bild, const Projekt& p) {
    constexpr double raum = 280, aussen = 130;
    const std::array<std::string, 2> texte{p.texte.txt_Raumluft, p.texte.txt_Aussenluft};
    schrift_einpassen(bild, texte, aussen - legendentext - rand_rechts, schrift);
    eintrag(bild, raum, texte[0], farbe_raum);
    eintrag(bild, aussen, texte[1], farbe_aussen);
    bild.schrift(schrift);
}

Farbe linienfarbe(bool achse) {
    return achse ? farben::schwarz : farben::grau;
}

void tagesachse(Zeichenflaeche& bild, const Plan& plan) {
    const bool alle = bild.breite() > breit;
    for (int tag = 0; tag <= tage_der_achse; ++tag) {
        const double x = plan.x(tag);
        bild.linie(x, plan.oben, x, plan.unten + 1, linienfarbe(tag == 0));
        if (!alle && tag % 2 == 0) continue;
        const std::string zahl = muster(tag, 0);
        bild.text(x - bild.textbreite(zahl) / 2, plan.unten + 4, zahl);
    }
}

void temperaturachse_zeichnen(Zeichenflaeche& bild, const Plan& plan) {
    constexpr double rand = 5;
    const auto rechtsbuendig_bis_achse = [&](double y, const std::string& text) {
        bild.text(plan.links - rand - bild.textbreite(text), y, text);
    };
    const Temperaturachse& achse = plan.achse;
    const double linien = runden((achse.oben - achse.unten) / achse.schritt);
    for (int i = 0; i <= linien; ++i) {
        const double temperatur = achse.unten + i * achse.schritt;
        const double y = plan.y(temperatur);
        bild.linie(plan.links + 1, y, plan.rechts + 1, y, linienfarbe(i == 0 || temperatur == 0));
        rechtsbuendig_bis_achse(y - bild.texthoehe("T") / 2, muster(temperatur, 0));
    }
    rechtsbuendig_bis_achse(plan.oben - 10 - bild.texthoehe("T"), "°C");
}

/// The curve of the month: each hour is joined to the one before by the filled box between the two points.
void kurve(Zeichenflaeche& bild, const Plan& plan, const Stundenreihe& reihe, int monat, Farbe farbe) {
    double x_vorher = plan.x_genau(1.0 / stunden);
    double y_vorher = plan.y_genau(reihe(monat, 1, 1));
    fuer_jede_stunde_des_monats(monat, 1, [&](int m, int d, int h, int) {
        const double x = plan.x_genau(d - 1 + static_cast<double>(h) / stunden);
        const double y = plan.y_genau(reihe(m, d, h));
        bild.flaeche(x_vorher, y_vorher, x, y, farbe);
        x_vorher = x;
        y_vorher = y;
    });
}

/// Both axes for all curves, and the curves.
void kurven_zeichnen(std::span<const Temperaturkurve> kurven, int monat, Zeichenflaeche& bild) {
    double T_min = std::numeric_limits<double>::infinity();
    double T_max = -T_min;
    for (const Temperaturkurve& eine : kurven) {
        T_min = std::min(T_min, min_suchen(eine.reihe, monat));
        T_max = std::max(T_max, max_suchen(eine.reihe, monat));
    }
    const Plan flaechenplan = plan(bild, temperaturachse(T_min, T_max));
    tagesachse(bild, flaechenplan);
    temperaturachse_zeichnen(bild, flaechenplan);
    for (const Temperaturkurve& eine : kurven)
        kurve(bild, flaechenplan, eine.reihe, monat, eine.farbe);
}

}  // namespace

double max_suchen(const Stundenreihe& reihe, int m) {
    double groesster = -std::numeric_limits<double>::infinity();
    fuer_jede_stunde_des_monats(
        m, 1, [&](int, int d, int h, int) { groesster = std::max(groesster, reihe(m, d, h)); });
    return groesster;
}

double min_suchen(const Stundenreihe& reihe, int m) {
    double kleinster = std::numeric_limits<double>::infinity();
    fuer_jede_stunde_des_monats(
        m, 1, [&](int, int d, int h, int) { kleinster = std::min(kleinster, reihe(m, d, h)); });
    return kleinster;
}

double X_(double tag, double ursprung, double faktor) {
    return runden(ursprung + faktor * tag);
}

double Y_(double temperatur, double ursprung, double faktor) {
    return runden(ursprung - faktor * temperatur);
}

Stundenreihe aussenluft(const Projekt& p) {
    return [&p](int m, int d, int h) { return p.Wetter(m, d, h).Ta; };
}

Stundenreihe raumluft(const Projekt& p) {
    return [&p](int m, int d, int h) { return p.T_frei(m, d, h); };
}

Temperaturachse temperaturachse(double T_min, double T_max) {
    Temperaturachse achse;
    const double spanne = T_max - T_min;
    for (int i = 6; i >= 1; --i) {
        const double dekade = runden(std::pow(10.0, i));
        if (spanne < 5 * dekade) achse.schritt = 5 * dekade / 10;
        if (spanne < 2 * dekade) achse.schritt = 2 * dekade / 10;
        if (spanne < dekade) achse.schritt = dekade / 10;
    }
    if (T_max != 0) achse.oben = runden(T_max / achse.schritt + 1) * achse.schritt;
    if (T_min != 0) achse.unten = runden(T_min / achse.schritt - 1) * achse.schritt;
    return achse;
}

void TemperaturvergleichZeichnen(std::span<const Temperaturkurve> kurven, int monat, Zeichenflaeche& bild) {
    bild.Cls();
    bild.schrift(schrift);
    kurven_zeichnen(kurven, monat, bild);
}

void TemperaturDiagrammZeichnen(const Projekt& p, Zeichenflaeche& bild) {
    const std::array<Temperaturkurve, 2> kurven{{{aussenluft(p), farbe_aussen}, {raumluft(p), farbe_raum}}};
    bild.Cls();
    legende(bild, p);
    kurven_zeichnen(kurven, p.Monat_Uebersicht, bild);
}

Wertetafel TemperaturDiagrammWerte(const Projekt& p) {
    const int monat = p.Monat_Uebersicht;
    const auto wort = [&p](const Wort& w) { return std::string(w.in(p.Sprache)); };
    Wertetafel tafel{.titel = wort({"Temperaturen im ", "Temperatures in "}) + p.Monat(monat).Name,
                     .zeilenkopf = {wort({"Tag", "day"}), wort({"Stunde", "hour"})},
                     .spalten = {{p.texte.txt_Aussenluft, "°C"}, {p.texte.txt_Raumluft, "°C"}},
                     .zeilen = {},
                     .sprache = p.Sprache};
    fuer_jede_stunde_des_monats(monat, 1, [&](int m, int d, int h, int) {
        tafel.zeilen.push_back({.namen = {std::to_string(d), std::to_string(h)},
                                .werte = {aussenluft(p)(m, d, h), raumluft(p)(m, d, h)}});
    });
    return tafel;
}

}  // namespace velmaris
