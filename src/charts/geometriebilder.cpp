#include "charts/geometriebilder.h"

#include "charts/chartwerte.h"
#include "charts/grundriss.h"
#include "language/beschriftungen.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>
#include <vector>

namespace velmaris {
namespace {

constexpr double balken_unten = 123;
constexpr double balken_oben = 7;
constexpr double balken_links = 44;
constexpr double balken_rechts = 50;

/// Lowest place of the number beside the bar, so that it stays on the surface when no bar is left.
constexpr double av_tiefste = 110;

constexpr Wort av_titel{"A/V-Verhältnis, Vergleich mit Körpern gleichen Volumens",
                        "S/V-ratio, compared with shapes of the same volume"};
constexpr Wort gebaeude{"Gebäude", "building"};

double kantenlaenge(const Projekt& p) {
    return std::cbrt(static_cast<double>(p.v_geb));
}

/// Top of the bar for the building's A/V times its edge length, which no size of the building changes.
double balkenhoehe(const Projekt& p) {
    const double y = av_hoehe(p.AV * kantenlaenge(p));
    return std::max<double>(i16(std::clamp(y, -32768.0, 32767.0), "AV"), balken_oben);
}

/// Lines relative to the centre of a surface.
class Plan {
  public:
    explicit Plan(Zeichenflaeche& flaeche)
        : flaeche_(flaeche), mitte_{flaeche.breite() / 2, flaeche.hoehe() / 2} {}

    void linie(const Punkt& von, const Punkt& bis, Farbe farbe) const {
        const Punkt a = mitte_ + von;
        const Punkt b = mitte_ + bis;
        flaeche_.linie(a.x, a.y, b.x, b.y, farbe);
    }

  private:
    Zeichenflaeche& flaeche_;
    Punkt mitte_;
};

Punkt auf_kreis(double grad, double radius) {
    return {std::cos(grad * grad_in_bogen) * radius, std::sin(grad * grad_in_bogen) * radius};
}

void dach_von_oben(const Plan& plan, double orient) {
    const Punkt a = -auf_kreis(orient + 45, 28);
    const Punkt b = auf_kreis(orient - 45, 28);
    for (const auto& [von, bis] : haus_von_oben(a, b))
        plan.linie(von, bis, farben::grau);
}

void suedpfeil(const Plan& plan, double orient) {
    const auto sinus = [](double grad) { return std::sin(grad * grad_in_bogen) * 14; };
    const auto kosinus = [](double grad) { return std::cos(grad * grad_in_bogen) * 14; };
    const Punkt spitze{-sinus(orient), kosinus(orient)};
    plan.linie(spitze, -spitze, farben::rot);
    plan.linie(spitze, spitze + Punkt{-sinus(45 - orient), -kosinus(45 - orient)}, farben::rot);
    plan.linie(spitze, spitze + Punkt{sinus(orient + 45), -kosinus(orient + 45)}, farben::rot);
}

}  // namespace

AVTexte av_texte(const Projekt& p) {
    AVTexte texte;
    texte.av_anz = muster(p.AV, 2) + " ";
    texte.av_oben = std::clamp(balkenhoehe(p) - 8, 5.0, av_tiefste);
    const double c = kantenlaenge(p);
    if (c > 0) {
        texte.AV_Kugel = muster(av_kugel / c, 2);
        texte.AV_Wuerfel = muster(av_wuerfel / c, 2);
        texte.AV_Tetraeder = muster(av_tetraeder / c, 2);
    }
    return texte;
}

void av_diagramm_zeichnen(const Projekt& p, Zeichenflaeche& flaeche) {
    const double y = balkenhoehe(p);
    flaeche.flaeche(balken_links, balken_unten, balken_rechts, y, farben::rot);
    if (y > balken_oben) flaeche.flaeche(balken_links, balken_oben, balken_rechts, y - 1, farben::weiss);
}

void av_diagramm_beschriften(const Projekt& p, Zeichenflaeche& flaeche) {
    constexpr double links = 42, rechts = 58, halbe_zeile = 6;
    struct Koerper {
        const char* wort;
        const std::string& wert;
        double av;
    };
    const AVTexte texte = av_texte(p);
    flaeche.schrift({});
    flaeche.text(links - flaeche.textbreite(texte.av_anz), texte.av_oben, texte.av_anz);
    for (const Koerper& k : {Koerper{"Label11", texte.AV_Tetraeder, av_tetraeder},
                             {"Label34", texte.AV_Wuerfel, av_wuerfel},
                             {"Label35", texte.AV_Kugel, av_kugel}}) {
        flaeche.text(rechts, av_hoehe(k.av) - halbe_zeile,
                     k.wert + " " + beschriftung("E_Geometrie", k.wort, p.Sprache));
    }
}

Wertetafel av_diagramm_werte(const Projekt& p) {
    const auto wort = [&p](std::string_view feld) {
        return blosser_name(beschriftung("E_Geometrie", feld, p.Sprache));
    };
    std::vector<Wertezeile> zeilen{{.namen = {std::string(gebaeude.in(p.Sprache))}, .werte = {p.AV}}};
    if (const double c = kantenlaenge(p); c > 0) {
        zeilen.insert(zeilen.end(), {{.namen = {wort("Label11")}, .werte = {av_tetraeder / c}},
                                     {.namen = {wort("Label34")}, .werte = {av_wuerfel / c}},
                                     {.namen = {wort("Label35")}, .werte = {av_kugel / c}}});
    }
    return groessentafel(p, std::string(av_titel.in(p.Sprache)), std::move(zeilen), "1/m");
}

void lageplan_zeichnen(const Projekt& p, Zeichenflaeche& flaeche) {
    flaeche.Cls();
    const Plan plan(flaeche);
    dach_von_oben(plan, p.orient);
    suedpfeil(plan, p.orient);
}

}  // namespace velmaris
