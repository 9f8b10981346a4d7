#include "calc/jahressummen.h"
#include "charts/sankey_kuehlen.h"
#include "toolkit/pixel.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace velmaris {
namespace {

constexpr double raender = 50 + 40;  ///< above and below the stack, and between the inlets
constexpr int breitester_verlust = 80;
constexpr int abstand = 10;       ///< between neighbouring inlets
constexpr int unter_stapel = 60;  ///< from the top of the stack and its widths to the surface's bottom
constexpr int beschriftung_unten = 26;

// Columns: the labels keep clear of the rising loss and of the label of the primary energy.
constexpr int xVerlust = 70;
constexpr int kleinster_text = 108;
constexpr int textbreite = 116;
constexpr int xSpitze = 410;

template <class Zahlen>
auto summe(const Zahlen& zahlen) {
    return std::accumulate(zahlen.begin(), zahlen.end(), typename Zahlen::value_type{});
}

/// Widths of parts in any unit, by pixels per unit.
template <class Teile>
void breiten_legen(Sankey_Kuehlmasse& m, const Teile& teile, double effizienz, double faktor) {
    std::transform(teile.begin(), teile.end(), m.teile.begin(),
                   [&](auto teil) { return i16(ganzzahl(teil * faktor), "Sankey_Kühlen"); });
    m.C = summe(m.teile);
    m.E = i16(ganzzahl(m.C / effizienz), "Sankey_Kühlen");
    m.P = i16(ganzzahl(f_p_Kuehlstrom * m.C / effizienz), "Sankey_Kühlen");
    m.L = m.P - m.E;
}

void zeilen_legen(Sankey_Kuehlmasse& m, int H) {
    int oben = H - m.C - m.E - unter_stapel;
    m.yP = H - beschriftung_unten;
    m.yE = m.yP - m.E;
    int gesammelt = m.yE - m.C;
    for (std::size_t i = 0; i < ueberschuesse; ++i) {
        m.einlass[i] = oben + m.teile[i] - 1;
        m.sammlung[i] = gesammelt += m.teile[i];
        oben += m.teile[i] + abstand;
    }
}

void spalten_legen(Sankey_Kuehlmasse& m) {
    m.xText = std::max(xVerlust + m.L + 4, kleinster_text);
    m.xEinlass = m.xText + textbreite;
    m.xSchraeg = m.xEinlass + std::max(*std::max_element(m.teile.begin(), m.teile.end()) / 2 + 3, 16);
    m.xSammlung = xSpitze - std::max(m.C, m.E) / 2 - 6;
}

}  // namespace

Sankey_Kuehlwerte sankey_kuehlwerte(const Projekt& p) {
    constexpr std::array<float Monatswerte::*, ueberschuesse> felder{
        &Monatswerte::Kuehl_trans, &Monatswerte::Kuehl_lueft, &Monatswerte::Kuehl_solar,
        &Monatswerte::Kuehl_intern};
    Sankey_Kuehlwerte w;
    for (std::size_t i = 0; i < ueberschuesse; ++i)
        w.teile[i] = summe_der_monate(p, felder[i]) / p.f_nutz;
    w.effizienz = p.Klimaeffizienz;
    w.C = summe(w.teile);
    w.E = w.C / w.effizienz;
    w.P = f_p_Kuehlstrom * w.E;
    w.L = w.P - w.E;
    return w;
}

double sankey_kuehlmassstab(const Projekt& p, const Zeichenflaeche& bild) {
    const Sankey_Kuehlwerte w = sankey_kuehlwerte(p);
    if (w.C == 0) return 0;
    const Sankey_Kuehlmasse m = sankey_kuehlmasse(w, bild);
    return m.C > 0 ? w.C / m.C : 0;
}

Sankey_Kuehlmasse sankey_kuehlmasse(const Sankey_Kuehlwerte& werte, const Zeichenflaeche& bild,
                                    double massstab) {
    Sankey_Kuehlmasse m;
    const double eigener = (bild.hoehe() - raender) / (werte.C + werte.E);
    breiten_legen(m, werte.teile, werte.effizienz, massstab > 0 ? std::min(eigener, 1 / massstab) : eigener);
    if (m.L > breitester_verlust) {
        const auto teile = m.teile;
        breiten_legen(m, teile, werte.effizienz, static_cast<double>(breitester_verlust) / m.L);
    }
    zeilen_legen(m, pixel(bild.hoehe()));
    spalten_legen(m);
    return m;
}

}  // namespace velmaris
