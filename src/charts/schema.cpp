#include "charts/schema.h"

#include "charts/diagrammtext.h"
#include "language/c_Sprache.h"
#include "toolkit/zahlen.h"

#include <vector>

namespace velmaris {
namespace {

constexpr double links = 30;  ///< vertical axis
constexpr double strichanfang = 27;
constexpr double jahresrand = 88;

}  // namespace

void achsen_zeichnen(const Balkendiagramm& diagramm, double rechts) {
    Zeichenflaeche& bild = diagramm.bild;
    const Achsenrahmen& rahmen = diagramm.rahmen;
    bild.Cls();
    bild.schrift({});
    bild.linie(links, rahmen.achse, links, rahmen.oben, farben::schwarz);
    bild.linie(links, rahmen.achse, rechts, rahmen.achse, farben::schwarz);
    std::vector<Achsenzahl> zahlen;
    for (int i = 0; i <= diagramm.teile; ++i) {
        const double y = diagramm.strich(i);
        bild.linie(strichanfang, y, links, y, farben::schwarz);
        zahlen.push_back({i * diagramm.schritt, y});
    }
    achsenzahlen_zeichnen(bild, zahlen);
}

void balken_zeichnen(const Balkendiagramm& diagramm, double x1, double x2, double wert, Farbe farbe) {
    diagramm.bild.flaeche(x1, diagramm.rahmen.fuss, x2, diagramm.y(wert), farbe);
}

void stapel_zeichnen(const Balkendiagramm& diagramm, double x1, double x2,
                     std::initializer_list<Abschnitt> abschnitte) {
    double unten = 0;
    for (const Abschnitt& abschnitt : abschnitte) {
        const double oben = unten + abschnitt.wert;
        diagramm.bild.flaeche(x1, diagramm.y(unten), x2, diagramm.y(oben), abschnitt.farbe);
        unten = oben;
    }
}

double monatsspalte(int m) {
    return 35 + spaltenbreite * (m - 1);
}

std::optional<int> spaltenmonat(double x) {
    const double m = runden((x - links - 3) / spaltenbreite + 0.5);
    if (!(m >= 1 && m <= monate)) return std::nullopt;
    return static_cast<int>(m);
}

void monatsnamen_zeichnen(Zeichenflaeche& bild, const Projekt& p, double y) {
    spaltennamen_zeichnen(bild, monatskuerzel(p), y);
}

void jahresname_zeichnen(Zeichenflaeche& bild, const std::string& name) {
    bild.text(jahresrand - bild.textbreite(name) - 5, 124, name);
}

std::string beschriftung(const Projekt& p, const Wort& text) {
    return bekannte_sprache(p.Sprache) ? std::string(text.in(p.Sprache)) : std::string();
}

std::string einheit_je_monat(const Projekt& p) {
    return beschriftung(p, {"kWh/(m² Monat)", "kWh/(m² month)"});
}

std::string einheit_je_jahr(const Projekt& p) {
    return beschriftung(p, {"kWh/(m²a)", "kWh/(m²a)"});
}

}  // namespace velmaris
