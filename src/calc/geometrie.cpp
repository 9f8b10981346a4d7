#include "calc/geometrie.h"

#include "toolkit/zahlen.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace velmaris {
namespace {

/// The digits of pi by which the pitch becomes degrees; the model has no finer one.
constexpr double pi_der_neigung = 3.14159;

/// The measures of the box in double, m.
struct Masse {
    double l, b, h, hd;
};

Masse masse(const Projekt& p) {
    return {p.l, p.b, p.h, p.hd};
}

void bruttofassaden(Projekt& p) {
    const Masse m = masse(p);
    p.f_nfa = f32(p.awn * m.l * m.h);
    p.f_sfa = f32(p.aws * m.l * m.h);
    p.f_wfa = f32(p.aww * m.b * m.h);
    p.f_ofa = f32(p.awo * m.b * m.h);
}

/// One saddle roof: the area of each of its two planes, of each of its two gables, and its pitch.
struct Satteldach {
    float flaeche;  ///< m2
    float giebel;   ///< m2
    float neigung;  ///< degrees
};

Satteldach satteldach(double spannweite, double firstlaenge, double hd) {
    return {f32(firstlaenge * std::sqrt(spannweite * spannweite / 4 + hd * hd)), f32(hd * spannweite / 2),
            f32(std::atan((hd + hd) / spannweite) * 180 / pi_der_neigung)};
}

void dach(Projekt& p) {
    p.f_dach_n = p.f_dach_s = p.f_dach_o = p.f_dach_w = 0;
    p.f_giebel_n = p.f_giebel_s = p.f_giebel_o = p.f_giebel_w = 0;
    p.f_dach_flach = 0;
    const Masse m = masse(p);
    if (p.Check_Dachgeschoss == 0) {
        p.Dachneigung = 0;
        p.f_dach_flach = p.f_gd;
    } else if (p.Option_Dachfirst == 1) {
        const Satteldach d = satteldach(m.l, m.b, m.hd);
        p.f_dach_o = p.f_dach_w = d.flaeche;
        p.f_giebel_s = p.f_giebel_n = d.giebel;
        p.Dachneigung = d.neigung;
    } else {
        const Satteldach d = satteldach(m.b, m.l, m.hd);
        p.f_dach_n = p.f_dach_s = d.flaeche;
        p.f_giebel_w = p.f_giebel_o = d.giebel;
        p.Dachneigung = d.neigung;
    }
}

double huellflaeche(const Projekt& p) {
    double summe = 0;
    for (const float f : {p.f_sfa, p.f_nfa, p.f_wfa, p.f_ofa, p.f_gd, p.f_dach_n, p.f_dach_s, p.f_dach_o,
                          p.f_dach_w, p.f_giebel_n, p.f_giebel_s, p.f_giebel_o, p.f_giebel_w, p.f_dach_flach})
        summe += f;
    return summe;
}

/// The attic counts as usable floor by the height of the roof space: nothing up to 1 m.
void dachgeschoss_dazu(Projekt& p) {
    const Masse m = masse(p);
    if (m.hd > 2) p.f_nutz = f32(p.f_nutz + (m.hd - 2) * m.b * m.l * 0.8 / m.hd);
    if (m.hd > 1 && m.hd <= 2) p.f_nutz = f32(p.f_nutz + (m.hd - 1) * m.b * m.l * 0.4 / m.hd);
    if (m.hd > 2) p.f_nutz = f32(p.f_nutz + m.b * m.l * 0.4 / m.hd);
    p.v_geb = f32(p.v_geb + m.b * m.l * m.hd / 2);
}

void nutzflaeche_und_volumen(Projekt& p) {
    p.v_geb = f32(static_cast<double>(p.f_gd) * p.h);
    p.f_nutz = f32(p.f_gd * 0.8 * p.ag);
    if (p.Check_Dachgeschoss != 0) dachgeschoss_dazu(p);
    if (p.v_geb == 0) p.v_geb = 1;
    p.v_luft = f32(p.v_geb * 0.8);
}

/// Temperature corrections of one kind of lower floor by the characteristic dimension B.
struct Bodenfaktoren {
    float unter_5, bis_10, ueber_10;
};

constexpr std::array<Bodenfaktoren, 5> bodenfaktoren{{
    {0.55F, 0.5F, 0.45F},  // unheated cellar, insulated at its perimeter
    {0.7F, 0.65F, 0.55F},  // unheated cellar, not insulated at its perimeter
    {0.3F, 0.25F, 0.2F},   // on the ground, insulated edge
    {0.45F, 0.4F, 0.25F},  // on the ground, edge not insulated
    {0.9F, 0.9F, 0.9F},    // outside air below the floor
}};

void bodenfaktor(Projekt& p) {
    if (p.ugd_typ < 0 || static_cast<std::size_t>(p.ugd_typ) >= bodenfaktoren.size()) return;
    const Bodenfaktoren& zeile = bodenfaktoren[static_cast<std::size_t>(p.ugd_typ)];
    const double bodenmass = p.f_gd / (static_cast<double>(p.b) + p.l);
    p.Fx_ugd = zeile.bis_10;
    if (bodenmass < 5) p.Fx_ugd = zeile.unter_5;
    if (bodenmass > 10) p.Fx_ugd = zeile.ueber_10;
}

}  // namespace

void gebaeudegeometrie_berechnen(Projekt& p) {
    bruttofassaden(p);
    p.f_gd = f32(static_cast<double>(p.b) * p.l);
    dach(p);
    nutzflaeche_und_volumen(p);
    p.AV = f32(huellflaeche(p) / p.v_geb);
    bodenfaktor(p);
}

void fensterflaechen_berechnen(Projekt& p) {
    const auto fenster = [](int prozent, double fassade) { return f32(prozent * fassade / 100); };
    p.f_sf = fenster(p.fs, p.f_sfa);
    p.f_nf = fenster(p.fn, p.f_nfa);
    p.f_wf = fenster(p.fw, p.f_wfa);
    p.f_of = fenster(p.fo, p.f_ofa);
    p.f_gf = f32(static_cast<double>(p.f_nf) + p.f_sf + p.f_wf + p.f_of);

    p.f_sw = f32(static_cast<double>(p.f_sfa) - p.f_sf);
    p.f_nw = f32(static_cast<double>(p.f_nfa) - p.f_nf - p.ft);
    p.f_ww = f32(static_cast<double>(p.f_wfa) - p.f_wf);
    p.f_ow = f32(static_cast<double>(p.f_ofa) - p.f_of);
    p.f_wand = f32(static_cast<double>(p.f_nw) + p.f_sw + p.f_ww + p.f_ow);
}

void geometrie_berechnen(Projekt& p) {
    gebaeudegeometrie_berechnen(p);
    fensterflaechen_berechnen(p);
}

}  // namespace velmaris
