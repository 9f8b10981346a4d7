#include "tests/wie_geschrieben.h"

#include "calc/zeitkonstante.h"
#include "climate/sonne.h"

#include <cmath>
#include <cstdint>

namespace velmaris::test {
namespace {

/// A stored field in the precision of the formulas.
double z(float feld) {
    return feld;
}

/// Radiation on the planes of the house, W/m2; a plane without area keeps its old value.
struct Strahlung {
    float N = 0, S = 0, O = 0, W = 0;
    float DN = 0, DS = 0, DO = 0, DW = 0, DF = 0;
};

class Simulation {
  public:
    explicit Simulation(Projekt& projekt) : p(projekt) {}

    void laufen() {
        T_frei = T_regel = p.Troom;
        p.Heizlast_max = p.Kuehllast_max = 0;
        zeitkonstante_berechnen(p);
        i = p.Check_Dachgeschoss != 0 ? 0 : p.Dachraum_typ;
        n = 334;
        monat(12);
        for (int m = 1; m <= 12; ++m)
            monat(m);
    }

  private:
    void monat(int m) {
        Monatswerte& w = p.Monat(m);
        w.Kuehlbedarf = w.Kuehlgradstunden = 0;
        w.Stunden_kalt = w.Stunden_heiss = w.Stunden_komfort = 0;
        w.Kuehl_solar = w.Kuehl_intern = w.Kuehl_trans = w.Kuehl_lueft = 0;
        for (int d = 1; d <= w.Tage; ++d) {
            n = n % 365 + 1;
            for (int h = 1; h <= 24; ++h)
                stunde(m, d, h);
        }
    }

    void stunde(int m, int d, int h) {
        strahlung(p.Wetter(m, d, h), h);
        const double Ta = p.Wetter(m, d, h).Ta;
        const double P =
            aussenbauteile(Ta) + sonnengewinne() + Hv() * Ta + innere_gewinne() + tuer_fenster_boden(Ta);
        T_frei =
            (z(p.tau) * P / p.Cwirk) * (1 - std::exp(-3600 / z(p.tau))) + std::exp(-3600 / z(p.tau)) * T_frei;
        T_regel = (z(p.tau) * P / p.Cwirk) * (1 - std::exp(-3600 / z(p.tau))) +
                  std::exp(-3600 / z(p.tau)) * T_regel;
        heizen(m, d, h);
        kuehlen(m, d, h, Ta);
        Monatswerte& w = p.Monat(m);
        if (static_cast<float>(T_frei) > p.Tueber)
            w.Kuehlgradstunden = static_cast<float>(w.Kuehlgradstunden + (T_frei - p.Tueber));
        p.T_frei(m, d, h) = static_cast<float>(T_frei);
        p.T_regel(m, d, h) = static_cast<float>(T_regel);
        if (static_cast<float>(T_frei) > p.Tueber) {
            ++w.Stunden_heiss;
        } else if (static_cast<float>(T_frei) >= p.Troom) {
            ++w.Stunden_komfort;
        } else {
            ++w.Stunden_kalt;
        }
    }

    double faktor(int h, double azimut, double neigung) const {
        return einfallsfaktor_ebene({p.Breite, p.Laengenkorrektur}, n, h, p.orient, azimut, neigung);
    }

    void strahlung(const Wetterstunde& w, int h) {
        const double Dir = w.Direkt;
        const double Dif = w.Diffus;
        const double Dh = Dif * 0.5;
        const double Rh = (Dif + Dir) * 0.125;
        I.N = static_cast<float>((Dh + Rh) * 0.7 + faktor(h, 180, 90) * Dir);
        I.S = static_cast<float>((Dh + Rh) * 0.7 + faktor(h, 0, 90) * Dir);
        I.O = static_cast<float>((Dh + Rh) * 0.7 + faktor(h, -90, 90) * Dir);
        I.W = static_cast<float>((Dh + Rh) * 0.7 + faktor(h, 90, 90) * Dir);
        const double neigung = p.Dachneigung;
        const double k = std::cos(neigung) / 2 + 1;
        const auto dach = [&](double azimut) {
            return static_cast<float>(Dif * (k * 0.75 + 0.25) + faktor(h, azimut, neigung) * Dir);
        };
        if (p.f_dach_n > 0) I.DN = dach(180);
        if (p.f_dach_s > 0) I.DS = dach(0);
        if (p.f_dach_o > 0) I.DO = dach(-90);
        if (p.f_dach_w > 0) I.DW = dach(90);
        if (p.f_dach_flach > 0) I.DF = static_cast<float>(faktor(h, 0, 0) * Dir + Dif);
    }

    /// Roof and walls with the sun on them, against the temperature difference `T`; W.
    double aussenbauteile(double T) const {
        const double s = p.absfaktor / 20.0;
        const double c = p.cbk_hDach;
        const double Wd = p.Waermebruecken;
        const double Ur = p.kd + Wd;
        return Ur * p.f_dach_flach * p.Dachraum(i).Faktor * (s * c * I.DF + T) +
               Ur * p.f_dach_n * (s * c * I.DN + T) + Ur * p.f_dach_s * (s * c * I.DS + T) +
               Ur * p.f_dach_o * (s * c * I.DO + T) + Ur * p.f_dach_w * (s * c * I.DW + T) +
               (p.kwn + Wd) * (z(p.f_giebel_n) + p.f_nw) * (s * I.N + T) +
               (p.kws + Wd) * (z(p.f_giebel_s) + p.f_sw) * (s * I.S + T) +
               (p.kwo + Wd) * (z(p.f_giebel_o) + p.f_ow) * (s * I.O + T) +
               (p.kww + Wd) * (z(p.f_giebel_w) + p.f_ww) * (T - s * I.W);
    }

    double tuer_fenster_boden(double T) const {
        return z(p.kt) * p.ft * T + (z(p.kfs) * p.f_sf + z(p.kfn) * p.f_nf + z(p.kfo) * p.f_of +
                                     z(p.kfw) * p.f_wf + (z(p.kk) + p.Waermebruecken) * p.f_gd * p.Fx_ugd) *
                                        T;
    }

    double sonnengewinne() const {
        return z(p.f_sf) * I.S * (1 - z(p.verschs)) * (1 - z(p.ras)) * p.gfs +
               z(p.f_nf) * I.N * (1 - z(p.verschn)) * (1 - z(p.ran)) * p.gfn +
               z(p.f_of) * I.O * (1 - z(p.verscho)) * (1 - z(p.rao)) * p.gfo +
               z(p.f_wf) * I.W * (1 - z(p.verschw)) * (1 - z(p.raw)) * p.gfw;
    }

    double Hv() const { return ((1 - z(p.WRG)) * p.lw + p.infiltration) / 3600 * 1000 * 1.29 * p.v_luft; }
    double innere_gewinne() const { return z(p.f_nutz) * p.intg * 1000 / 8760; }

    void heizen(int m, int d, int h) {
        p.Q_heiz(m, d, h) = 0;
        if (!(static_cast<float>(T_regel) < p.Troom)) return;
        const double q = (p.Troom - T_regel) * p.Cwirk / 3600000;
        p.Q_heiz(m, d, h) = static_cast<float>(q);
        if (q > p.Heizlast_max) p.Heizlast_max = static_cast<float>(q);
        T_regel = p.Troom;
    }

    void kuehlen(int m, int d, int h, double Ta) {
        p.Q_kuehl(m, d, h) = 0;
        if (!(static_cast<float>(T_regel) > p.Tueber)) return;
        const double Qk = (T_regel - p.Tueber) * p.Cwirk / 3600000;
        p.Q_kuehl(m, d, h) = static_cast<float>(Qk);
        const double D = Ta - T_regel;
        const double Gs = sonnengewinne();
        const double Gi = innere_gewinne();
        double Gt = aussenbauteile(D) + tuer_fenster_boden(D);
        if (Gt < 0) Gt = 0;
        double Gv = Hv() * D;
        if (Gv < 0) Gv = 0;
        const double S = Gs + Gi + Gt + Gv;
        Monatswerte& w = p.Monat(m);
        w.Kuehl_intern = static_cast<float>(w.Kuehl_intern + Qk * Gi / S);
        w.Kuehl_solar = static_cast<float>(w.Kuehl_solar + Qk * Gs / S);
        w.Kuehl_trans = static_cast<float>(w.Kuehl_trans + Qk * Gt / S);
        w.Kuehl_lueft = static_cast<float>(w.Kuehl_lueft + Qk * Gv / S);
        w.Kuehlbedarf = static_cast<float>(w.Kuehlbedarf + Qk);
        if (Qk > p.Kuehllast_max) p.Kuehllast_max = static_cast<float>(Qk);
        T_regel = p.Tueber;
    }

    Projekt& p;
    Strahlung I;
    double T_frei = 0;
    double T_regel = 0;
    int i = 0;
    int n = 0;
};

}  // namespace

void stundensimulation_wie_geschrieben(Projekt& p) {
    Simulation(p).laufen();
}

void monatsstrahlung_wie_geschrieben(Projekt& p) {
    int n = 0;
    for (int m = 1; m <= 12; ++m) {
        float temperatur = 0;
        double N = 0, S = 0, O = 0, W = 0;
        Monatswerte& monat = p.Monat(m);
        for (int d = 1; d <= monat.Tage; ++d) {
            ++n;
            for (int h = 1; h <= 24; ++h) {
                const Wetterstunde& w = p.Wetter(m, d, h);
                temperatur = static_cast<float>(temperatur + z(w.Ta) / monat.Tage / 24);
                const double Dh = w.Diffus * 0.5;
                const double Rh = (z(w.Diffus) + w.Direkt) * 0.125;
                const auto dazu = [&](double& summe, double azimut) {
                    const double I =
                        z(einfallsfaktor_ebene({p.Breite, p.Laengenkorrektur}, n, h, p.orient, azimut, 90)) *
                            w.Direkt +
                        Dh + Rh;
                    if (0 < I && I < 1370) summe += I;
                };
                dazu(N, 180);
                dazu(S, 0);
                dazu(O, -90);
                dazu(W, 90);
            }
        }
        monat.Tmittel = temperatur;
        monat.Strahlung_N = static_cast<std::int16_t>(std::floor(N * 3.6 / 1000));
        monat.Strahlung_S = static_cast<std::int16_t>(std::floor(S * 3.6 / 1000));
        monat.Strahlung_O = static_cast<std::int16_t>(std::floor(O * 3.6 / 1000));
        monat.Strahlung_W = static_cast<std::int16_t>(std::floor(W * 3.6 / 1000));
    }
}

}  // namespace velmaris::test
