#include "charts/energiediagramm.h"

#include "charts/balkenfarben.h"
#include "charts/chartwerte.h"
#include "charts/diagrammtext.h"
#include "charts/schema.h"
#include "charts/stufen.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace velmaris {
namespace {

constexpr double links = 30;  ///< vertical axis
constexpr double boden = 95;  ///< horizontal axis
constexpr int schritte = 3;   ///< scale steps on the axis
constexpr double saeulenhoehe = 90;

constexpr Wort verbrauch{"End- und Primärenergiebedarf", "End and primary energy demand"};
constexpr Wort endenergie{"Endenergie", "end energy"};
constexpr Wort primaerenergie{"Primärenergie", "primary energy"};

double groesster(const Monatsenergie& werte) {
    double M = 0;
    for (int m = 1; m <= monate; ++m) {
        M = std::max(M, double{werte.E(m)} + werte.H(m));
        M = std::max(M, double{werte.P(m)} + werte.Q(m));
    }
    return M;
}

/// Height of tick i; the ticks share 89 pixels where the columns share 90.
double teilung(int i) {
    return boden - i * 89.0 / schritte;
}

void achsen(Zeichenflaeche& bild) {
    bild.linie(links, boden, links, 5, farben::schwarz);
    bild.linie(links, boden, 325, boden, farben::schwarz);
}

void skala(Zeichenflaeche& bild, double schritt) {
    for (int i = 0; i <= schritte; ++i)
        bild.linie(27, teilung(i), links, teilung(i), farben::schwarz);
    bild.flaeche(0, 0, 25, 100, bild.hintergrund());
    std::array<Achsenzahl, schritte + 1> zahlen{};
    for (int i = 0; i <= schritte; ++i)
        zahlen[static_cast<std::size_t>(i)] = {i * schritt, teilung(i)};
    const bool lang = schritte * schritt >= 10000;
    achsenzahlen_zeichnen(bild, zahlen, lang ? Schrift{.name = "Arial", .groesse = 6.75} : Schrift{});
}

}  // namespace

std::vector<Saeule> saeulen(const Monatsenergie& werte) {
    const double schritt = stufen_energiemonat.schritt(groesster(werte));
    const auto y = [&](double wert) { return boden - wert / schritt * saeulenhoehe / schritte; };
    std::vector<Saeule> ergebnis;
    const auto stapel = [&](double x, double traeger, double hilfe, Farbe farbe, Farbe farbe_hilfe) {
        if (traeger > 0) ergebnis.push_back({x, boden, x + 8, y(traeger), farbe});
        if (hilfe > 0) ergebnis.push_back({x, y(traeger), x + 8, y(traeger + hilfe), farbe_hilfe});
    };
    for (int m = 1; m <= monate; ++m) {
        const double x = monatsspalte(m);
        stapel(x, werte.E(m), werte.H(m), balkenfarben::endenergie, balkenfarben::endenergie_strom);
        stapel(x + 10, werte.P(m), werte.Q(m), balkenfarben::primaerenergie,
               balkenfarben::primaerenergie_strom);
    }
    return ergebnis;
}

bool auf_saeule(const Monatsenergie& werte, double x, double y) {
    const double px = runden(x);
    const double py = runden(y);
    const std::vector<Saeule> alle = saeulen(werte);
    return std::any_of(alle.begin(), alle.end(), [&](const Saeule& s) {
        return px >= s.x1 && px <= s.x2 && py >= runden(s.oben) && py <= runden(s.unten);
    });
}

void Monatsverbrauch_zeichnen(Zeichenflaeche& bild, const Projekt& p) {
    const Monatsenergie werte = monatswerte(p);
    bild.Cls();
    bild.schrift({});
    achsen(bild);
    monatsnamen_zeichnen(bild, p, 98);
    skala(bild, stufen_energiemonat.schritt(groesster(werte)));
    for (const Saeule& s : saeulen(werte))
        bild.flaeche(s.x1, s.unten, s.x2, s.oben, s.farbe);
}

Wertetafel Monatsverbrauch_werte(const Projekt& p) {
    const Monatsenergie werte = monatswerte(p);
    const Kurzname name = kurzname(p.Heizsystem, p.Energietraeger);
    const std::string traeger = " (" + std::string(name.in(p.Sprache)) + ")";
    const auto spalte = [&](const Wort& groesse, const std::string& quelle) -> Wertespalte {
        return {std::string(groesse.in(p.Sprache)) + quelle, einheit_je_monat(p)};
    };
    std::vector<Wertespalte> spalten{spalte(endenergie, traeger), spalte(primaerenergie, traeger)};
    if (!name.elektrisch()) {
        const std::string strom = " (" + std::string(strom_name.in(p.Sprache)) + ")";
        spalten.insert(spalten.end(), {spalte(endenergie, strom), spalte(primaerenergie, strom)});
    }
    return monatstafel(p, verbrauch, std::move(spalten), [&, elektrisch = name.elektrisch()](int m) {
        std::vector<double> zeile{werte.E(m), werte.P(m)};
        if (!elektrisch) zeile.insert(zeile.end(), {werte.H(m), werte.Q(m)});
        return zeile;
    });
}

}  // namespace velmaris
