#include "charts/c_sankey.h"
#include "charts/sankey_heizen.h"
#include "energy/energiebilanz.h"
#include "toolkit/pixel.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace velmaris {
namespace {

constexpr double rand_der_stapel = 20;
constexpr int luft = 10;  ///< between the main band and what joins it
constexpr int beschriftung_unten = 25;

/// What rounding can leave of the balances of a building that needs no heat.
constexpr double kein_rest = 1E-6;

int breite(double wert, double massstab) {
    return i16(ganzzahl(wert / massstab), "Sankey");
}

double eigener_massstab(const Projekt& p, const Zeichenflaeche& bild, const Sankey_Heizmasse& m, double qh) {
    const double qi = p.qis;
    const double qs = p.qsols;
    const double quer = m.SV < 0 ? -m.SV : 2 * m.SV;
    const double groesster =
        std::max({qs + qh + qi, 2 * m.TV + qh + qi, 2 * m.TV + qh + quer, qs + qh + quer});
    const double S = Sankey_Massstab(bild, groesster, rand_der_stapel);
    return S > 0 ? S : 1;
}

void breiten_legen(const Projekt& p, Sankey_Heizmasse& m, double qh) {
    m.bPE = breite(double{p.q_PE_Strom} + p.q_PE_Energietraeger, m.S);
    m.bTV = breite(m.TV, m.S);
    m.bEE = breite(double{p.q_HE_Strom} + p.q_HE_Energietraeger, m.S);
    m.bSV = breite(m.SV, m.S);
    m.bQH = breite(qh, m.S);
    m.bQI = breite(p.qis, m.S);
    m.bQS = breite(p.qsols, m.S);
    m.bQL = breite(p.qinfs, m.S);
    m.bQT = breite(p.qtrs, m.S);
}

/// Height of the main band's lower edge over the bottom of the surface: room for what joins it from below.
int grundhoehe(const Sankey_Heizmasse& m) {
    const int a = std::abs(m.bSV);
    const int i = m.bQI;
    const int fuss = luft + beschriftung_unten;
    if (m.bSV >= 0) return 2 * a >= i ? a + fuss : i - a + fuss;
    return a >= i ? 2 * a + fuss : a + i + fuss;
}

void kanten_legen(Sankey_Heizmasse& m, int H) {
    const int a = std::abs(m.bSV);
    const int Y = grundhoehe(m);
    m.yP = H - Y;
    m.yE = H - (Y + m.bEE);
    m.yA = m.bSV >= 0 ? H - Y : H - (Y - a);
    m.yB = m.bSV >= 0 ? H - (Y + a) : H - (Y - a);
    m.yC = m.yB + m.bQI;
    m.yD = m.yB - m.bQH;
    m.yF = m.yC - m.bQT;
}

/// A door, however small, keeps a band of two pixels.
int tuergrenze(const Projekt& p, int boden, int tuer) {
    return p.qtr_Tuer > 0 && std::abs(tuer - boden) <= 1 ? boden - 2 : tuer;
}

void teilung_legen(const Projekt& p, Sankey_Heizmasse& m) {
    const std::array<double, 5> teile{p.qtr_Boden, p.qtr_Tuer, p.qtr_Waende, p.qtr_Fenster, p.qtr_Dach};
    double summe = 0;
    for (std::size_t i = 0; i < m.grenzen.size(); ++i) {
        summe += teile[i];
        m.grenzen[i] = i16(ganzzahl(m.yC - m.bQT * summe / p.qtr), "Sankey");
    }
    m.grenzen[1] = tuergrenze(p, m.grenzen[0], m.grenzen[1]);
    for (std::size_t i = 0; i < m.bauteile.size(); ++i) {
        const int unten = i == 0 ? m.yC : m.grenzen[i - 1] - 1;
        const int oben = i == m.grenzen.size() ? m.yC - m.bQT : m.grenzen[i] + 1;
        m.bauteile[i] = {teile[i], m.bQT * teile[i] / p.qtr, unten, oben};
    }
}

}  // namespace

Sankey_Heizwerte sankey_heizwerte(const Projekt& p) {
    Sankey_Heizwerte werte;
    const bool ohne_bedarf = ohne_heizbedarf(p);
    const double ende = double{p.q_HE_Strom} + p.q_HE_Energietraeger;
    werte.SV = ende - heizwaermebedarf(p);
    werte.TV = double{p.q_PE_Strom} + p.q_PE_Energietraeger - p.q_HE_Energietraeger - p.q_HE_Strom;
    if (ohne_bedarf && std::abs(werte.SV) < kein_rest) werte.SV = 0;
    if (ohne_bedarf && std::abs(werte.TV) < kein_rest) werte.TV = 0;
    return werte;
}

Sankey_Heizmasse sankey_heizmasse(const Projekt& p, const Zeichenflaeche& bild, double massstab) {
    Sankey_Heizmasse m;
    static_cast<Sankey_Heizwerte&>(m) = sankey_heizwerte(p);
    const double qh = heizwaermebedarf(p);
    m.S = std::max(eigener_massstab(p, bild, m, qh), massstab);
    breiten_legen(p, m, qh);
    kanten_legen(m, pixel(bild.hoehe()));
    if (p.qtr > 0) teilung_legen(p, m);
    return m;
}

}  // namespace velmaris
