#include "calc/monatsbilanz.h"

#include "calc/fassaden.h"
#include "calc/summe.h"
#include "calc/waermestroeme.h"
#include "calc/zeitkonstante.h"
#include "toolkit/fehler.h"
#include "toolkit/zahlen.h"

#include <cmath>

namespace velmaris {
namespace {

using enum Wandseite;

constexpr double kwh_je_wattkelvintag = 0.024;
constexpr double kwh_je_kubikmeterkelvintag = 0.0086;
constexpr double mj_je_kwh = 3.6;
constexpr double bezugszeit = 16;  // h

/// What the inputs say of a month, whatever its climate. Losses in W/K.
struct Koeffizienten {
    JeWandseite<Fassade> fassade;
    double waende, fenster, tuer;
    double dach, boden;  ///< with their temperature corrections
    double luft;         ///< exchanged air, m3/h
};

Koeffizienten koeffizienten(const Projekt& p) {
    return {.fassade = fassaden(p),
            .waende = wandverlust(p),
            .fenster = fensterverlust(p),
            .tuer = tuerverlust(p),
            .dach = k_dach(p) * dachflaeche(p) * dachraumfaktor(p),
            .boden = k_boden(p) * p.f_gd * p.Fx_ugd,
            .luft = luftwechsel(p) * p.v_luft};
}

void jahressummen_leeren(Projekt& p) {
    p.Fensterverlust_N = p.Fensterverlust_W = p.Fensterverlust_S = p.Fensterverlust_O = 0;
    p.Fenstergewinn_N = p.Fenstergewinn_W = p.Fenstergewinn_S = p.Fenstergewinn_O = 0;
    p.qh = p.qsol = p.qi = p.qtr = p.qinf = 0;
    p.qtr_Waende = p.qtr_Dach = p.qtr_Boden = p.qtr_Fenster = p.qtr_Tuer = 0;
}

/// Losses of the month from its degree days (Kd), with their share in the year sums.
void verluste(Projekt& p, Monatswerte& monat, const Koeffizienten& k, float gradtage) {
    const auto kwh = [&](double verlust) { return verlust * gradtage * kwh_je_wattkelvintag; };
    monat.Qt = f32(kwh(k.dach + k.boden + k.tuer + k.fenster + k.waende));
    monat.Qv = f32(k.luft * gradtage * kwh_je_kubikmeterkelvintag);

    const auto fenster = [&](Wandseite f) { return kwh(k.fassade[f].k_fenster * k.fassade[f].f_fenster); };
    dazu(p.Fensterverlust_N, fenster(nord));
    dazu(p.Fensterverlust_W, fenster(west));
    dazu(p.Fensterverlust_S, fenster(sued));
    dazu(p.Fensterverlust_O, fenster(ost));
    dazu(p.qtr_Waende, kwh(k.waende));
    dazu(p.qtr_Tuer, kwh(k.tuer));
    dazu(p.qtr_Dach, kwh(k.dach));
    dazu(p.qtr_Boden, kwh(k.boden));
    dazu(p.qtr_Fenster, kwh(k.fenster));
}

/// Solar gains of the facades, kWh.
JeWandseite<float> sonnengewinne(const Monatswerte& monat, const Koeffizienten& k) {
    const auto gewinn = [&](Wandseite f, int strahlung) {
        return f32(k.fassade[f].sonnenflaeche() * strahlung / mj_je_kwh);
    };
    return {{{gewinn(nord, monat.Strahlung_N), gewinn(sued, monat.Strahlung_S),
              gewinn(ost, monat.Strahlung_O), gewinn(west, monat.Strahlung_W)}}};
}

float nutzungsgrad_des_monats(const Projekt& p, const Monatswerte& monat) {
    const double verlust = static_cast<double>(monat.Qv) + monat.Qt;
    if (verlust <= 0) return 0;
    return nutzungsgrad(p.tau, f32((static_cast<double>(monat.Qs_brutto) + monat.Qi_brutto) / verlust));
}

void monat_berechnen(Projekt& p, Monatswerte& monat, const Koeffizienten& k) {
    monat.Qi_brutto = f32(static_cast<double>(p.intg) * p.f_nutz * monat.Tage / tage_im_jahr);
    const float gradtage = f32((static_cast<double>(p.Troom) - monat.Tmittel) * monat.Tage);
    verluste(p, monat, k, gradtage < 0 ? 0 : gradtage);

    const JeWandseite<float> sonne = sonnengewinne(monat, k);
    monat.Qs_brutto = f32(static_cast<double>(sonne[nord]) + sonne[west] + sonne[ost] + sonne[sued]);
    monat.Nutzgrad = nutzungsgrad_des_monats(p, monat);
    const double genutzt = monat.Nutzgrad;
    monat.Qs_genutzt = f32(monat.Qs_brutto * genutzt);
    monat.Qi_genutzt = f32(monat.Qi_brutto * genutzt);
    dazu(p.Fenstergewinn_N, sonne[nord] * genutzt);
    dazu(p.Fenstergewinn_W, sonne[west] * genutzt);
    dazu(p.Fenstergewinn_S, sonne[sued] * genutzt);
    dazu(p.Fenstergewinn_O, sonne[ost] * genutzt);

    monat.Qh = f32(static_cast<double>(monat.Qv) + monat.Qt - monat.Qs_genutzt - monat.Qi_genutzt);
    dazu(p.qh, monat.Qh);
    dazu(p.qsol, monat.Qs_genutzt);
    dazu(p.qi, monat.Qi_genutzt);
    dazu(p.qtr, monat.Qt);
    dazu(p.qinf, monat.Qv);
}

void je_nutzflaeche(Projekt& p) {
    const double flaeche = p.f_nutz;
    p.qhs_sum = f32(p.qh / flaeche);
    p.qsols = f32(p.qsol / flaeche);
    p.qis = f32(p.qi / flaeche);
    p.qtrs = f32(p.qtr / flaeche);
    p.qinfs = f32(p.qinf / flaeche);
    p.qverl_s = f32(static_cast<double>(p.qinfs) + p.qtrs);
}

}  // namespace

float nutzungsgrad(float tau, float gamma) {
    const double a = f32(static_cast<double>(tau) / 3600 / bezugszeit + 1);
    if (gamma == 1) return f32(a / (a + 1));
    const double zaehler = 1 - std::pow(static_cast<double>(gamma), a);
    const double nenner = 1 - std::pow(static_cast<double>(gamma), a + 1);
    if (!std::isfinite(zaehler) || !std::isfinite(nenner)) {
        throw Laufzeitfehler(
            {"Der Ausnutzungsgrad der Wärmegewinne lässt sich nicht berechnen: Die Gewinne sind" +
                 zahltext(gamma) +
                 "-mal so groß wie die Verluste. Bitte Dämmung, Fenster und Bauweise prüfen.",
             "The utilisation factor of the heat gains cannot be calculated: the gains are" +
                 zahltext(gamma) + " times the losses. Please check insulation, windows and construction."});
    }
    return f32(zaehler / nenner);
}

void monatsbilanz(Projekt& p) {
    jahressummen_leeren(p);
    // Once is enough for all calls of `nutzungsgrad`: no input changes on the way.
    zeitkonstante_berechnen(p);
    const Koeffizienten k = koeffizienten(p);
    for (Monatswerte& monat : p.Monat)
        monat_berechnen(p, monat, k);
    je_nutzflaeche(p);
}

}  // namespace velmaris
