#include "planes/geometrietexte.h"

#include "calc/fassaden.h"
#include "calc/waermestroeme.h"
#include "toolkit/wort.h"
#include "toolkit/zahlen.h"

namespace velmaris {
namespace {

std::string mit_blank(double wert, int stellen) {
    return " " + muster(wert, stellen);
}

std::string meter(double wert) {
    return muster(wert, 1) + " m";
}

std::string quadratmeter(double wert) {
    return mit_blank(wert, 1) + " m²";
}

}  // namespace

GeometrieTexte geometrie_texte(const Projekt& p) {
    const Zweisprachig laenge{"Länge: ", "length: "};
    const Zweisprachig breite{"Breite: ", "width: "};
    return {
        .l_anz = laenge.in(p.Sprache) + meter(p.l),
        .b_anz = breite.in(p.Sprache) + meter(p.b),
        .h_anz = meter(p.h),
        .hd_anz = meter(p.hd),
        .ag_anz = zahltext(p.ag),
        .f_nfa_anz = mit_blank(static_cast<double>(p.h) * p.l, 1),
        .f_wfa_anz = mit_blank(static_cast<double>(p.b) * p.h, 1),
        .Giebel_anz = quadratmeter(static_cast<double>(p.f_giebel_w) + p.f_giebel_n),
        .dachfläche_anz = quadratmeter(static_cast<double>(p.f_dach_w) + p.f_dach_n),
        .f_nutz_anz = mit_blank(p.f_nutz, 1),
        .f_gd_anz = mit_blank(p.f_gd, 1),
        .v_luft_anz = mit_blank(p.v_luft, 1),
        .v_geb_anz = mit_blank(p.v_geb, 1),
    };
}

FensterTexte fenster_texte(const Projekt& p) {
    double flaeche = 0;
    double glas = 0;
    double g_mal_glas = 0;
    for (const Fassade& f : fassaden(p)) {
        flaeche += f.f_fenster;
        glas += f.f_glas();
        g_mal_glas += f.f_glas() * f.g;
    }
    return {
        .f_nf_anz = mit_blank(p.f_nf, 1),
        .f_wf_anz = mit_blank(p.f_wf, 1),
        .f_sf_anz = mit_blank(p.f_sf, 1),
        .f_of_anz = mit_blank(p.f_of, 1),
        .f_gf_anz = muster(flaeche, 1),
        .f_vf_anz = muster(glas, 1),
        .kf_anz = flaeche > 0 ? mit_blank(fensterverlust(p) / flaeche, 2) : "",
        .gfm_anz = flaeche > 0 && glas != 0 ? mit_blank(g_mal_glas / glas, 2) : "",
    };
}

}  // namespace velmaris
