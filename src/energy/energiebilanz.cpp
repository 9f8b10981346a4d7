#include "energy/energiebilanz.h"

#include "toolkit/zahlen.h"

namespace velmaris {
namespace {

void ohne_verluste(Kennwerte& k) {
    k.q_ce = k.q_s = k.q_d = 0;
    k.q_s_he = k.q_d_he = k.q_g_he = 0;
}

}  // namespace

Kennwerte energ_refresh(Projekt& p) {
    Kennwerte k = katalog_werte(p.Heizsystem, p.Uebergabe, p.Energietraeger, p.f_nutz);
    if (p.qhs_sum < 0.1) ohne_verluste(k);
    p.q_HE_Energietraeger = f32((double{p.qhs_sum} + k.q_ce + k.q_s + k.q_d) * k.e_g);
    p.q_HE_Strom = f32(double{k.q_d_he} + k.q_s_he + k.q_g_he);
    p.q_PE_Energietraeger = f32(double{p.q_HE_Energietraeger} * k.f_p);
    p.q_PE_Strom = f32(p.q_HE_Strom * f_p_Strom);
    if (p.qhs_sum < 1E-10) p.qhs_sum = kein_heizbedarf;
    return k;
}

bool ohne_heizbedarf(const Projekt& p) {
    return p.qhs_sum <= kein_heizbedarf;
}

double heizwaermebedarf(const Projekt& p) {
    return ohne_heizbedarf(p) ? 0 : p.qhs_sum;
}

double heizanteil(const Projekt& p, int m) {
    return ohne_heizbedarf(p) ? 0 : double{p.Monat(m).Qh} / p.f_nutz / p.qhs_sum;
}

Monatsenergie monatswerte(const Projekt& p) {
    Monatsenergie werte;
    const bool elektrisch = kurzname(p.Heizsystem, p.Energietraeger).elektrisch();
    for (int m = 1; m <= monate; ++m) {
        const double anteil = heizanteil(p, m);
        if (elektrisch) {
            werte.E(m) = f32(anteil * (double{p.q_HE_Strom} + p.q_HE_Energietraeger));
            werte.P(m) = f32(anteil * (double{p.q_PE_Strom} + p.q_PE_Energietraeger));
        } else {
            werte.E(m) = f32(anteil * p.q_HE_Energietraeger);
            werte.H(m) = f32(anteil * p.q_HE_Strom);
            werte.P(m) = f32(anteil * p.q_PE_Energietraeger);
            werte.Q(m) = f32(anteil * p.q_PE_Strom);
        }
    }
    return werte;
}

}  // namespace velmaris
