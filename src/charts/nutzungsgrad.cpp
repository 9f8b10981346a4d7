#include "charts/nutzungsgrad.h"

#include "calc/jahressummen.h"
#include "charts/balkenfarben.h"
#include "charts/chartwerte.h"
#include "charts/schema.h"
#include "charts/stufen.h"

#include <algorithm>

namespace velmaris {
namespace {

constexpr int teile = 5;

/// A bar of the usable part and, from it up to the whole, the rest.
void teil_und_ganzes(const Balkendiagramm& diagramm, double x1, double x2, const Abschnitt& teil,
                     const Abschnitt& ganzes) {
    balken_zeichnen(diagramm, x1, x2, teil.wert, teil.farbe);
    diagramm.bild.flaeche(x1, diagramm.y(teil.wert), x2, diagramm.y(ganzes.wert), ganzes.farbe);
}

void gewinne_zeichnen(const Balkendiagramm& diagramm, double x, double breite, double abstand,
                      const Gewinne& g) {
    teil_und_ganzes(diagramm, x, x + breite, {g.solar_genutzt, balkenfarben::solar},
                    {g.solar, balkenfarben::solar_ungenutzt});
    teil_und_ganzes(diagramm, x + abstand, x + abstand + breite, {g.intern_genutzt, balkenfarben::intern},
                    {g.intern, balkenfarben::intern_ungenutzt});
}

constexpr Wort nutzung{"Nutzung der Gewinne", "Use of the gains"};

std::vector<Wertespalte> gewinnspalten(const Projekt& p, const std::string& einheit) {
    return chartspalten(p, "A_Heizen", {"Label13", "Label11", "Label12", "Label10"}, einheit);
}

std::vector<double> gewinnwerte(const Gewinne& g) {
    return {g.solar_genutzt, g.solar - g.solar_genutzt, g.intern_genutzt, g.intern - g.intern_genutzt};
}

}  // namespace

void NutzungsgradMonatZeichnen(const Projekt& p, Zeichenflaeche& bild) {
    double M = 1;
    for (int m = 1; m <= monate; ++m)
        M = std::max({M, gewinne(p, m).solar, gewinne(p, m).intern});
    const Balkendiagramm diagramm{bild, bilanzrahmen, stufen_heizmonat.schritt(M), teile};
    achsen_zeichnen(diagramm, monatsachse);
    monatsnamen_zeichnen(bild, p);
    bild.text(3, 0, einheit_je_monat(p));
    for (int m = 1; m <= monate; ++m)
        gewinne_zeichnen(diagramm, monatsspalte(m), 8, 10, gewinne(p, m));
}

Wertetafel NutzungsgradMonatWerte(const Projekt& p) {
    return monatstafel(p, nutzung, gewinnspalten(p, einheit_je_monat(p)),
                       [&p](int m) { return gewinnwerte(gewinne(p, m)); });
}

void NutzungsgradJahrZeichnen(const Projekt& p, Zeichenflaeche& bild) {
    const Gewinne g = gewinne_im_jahr(p);
    const Balkendiagramm diagramm{bild, bilanzrahmen, stufen_bedarfsjahr.schritt(std::max(g.solar, g.intern)),
                                  teile};
    achsen_zeichnen(diagramm, jahresachse);
    jahresname_zeichnen(bild, p.texte.txt_Jahresbilanz);
    bild.text(5, 0, einheit_je_jahr(p));
    gewinne_zeichnen(diagramm, 35, 20, 25, g);
}

Wertetafel NutzungsgradJahrWerte(const Projekt& p) {
    return jahrestafel(p, nutzung, gewinnspalten(p, einheit_je_jahr(p)), gewinnwerte(gewinne_im_jahr(p)));
}

}  // namespace velmaris
