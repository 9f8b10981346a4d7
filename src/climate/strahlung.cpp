#include "climate/strahlung.h"

#include "climate/sonne.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr float senkrecht = 90;

/// cos theta of a plane over one day as a + b cos(omega) + c sin(omega).
struct Einfall {
    double a;
    double b;
    double c;
};

/// A plane against the horizon and the axis of the earth: the parts of the incidence angle that neither day
/// nor hour change.
class Ebene {
  public:
    Ebene(double breite, double azimut, double neigung) {
        const double gamma = azimut * grad_in_bogen;
        const double beta = neigung * grad_in_bogen;
        zur_achse_ = std::sin(breite) * std::cos(beta) - std::cos(breite) * std::sin(beta) * std::cos(gamma);
        zum_mittag_ = std::cos(breite) * std::cos(beta) + std::sin(breite) * std::sin(beta) * std::cos(gamma);
        zum_abend_ = std::sin(beta) * std::sin(gamma);
    }

    [[nodiscard]] Einfall am_tag(double sin_delta, double cos_delta) const {
        return {sin_delta * zur_achse_, cos_delta * zum_mittag_, cos_delta * zum_abend_};
    }

  private:
    double zur_achse_;
    double zum_mittag_;
    double zum_abend_;
};

/// The share of direct light that counts at the incidence angle theta.
float einfallsfaktor(double cos_theta) {
    if (!(cos_theta > 0)) return 0;
    const double rest = std::max(0.0, 1 - cos_theta);
    return f32((1 - rest * rest * std::sqrt(rest)) * cos_theta);
}

void tabelle_rechnen(Ebenentabelle& tabelle, const Sonnentabelle& sonne, const Ebene& ebene) {
    fuer_jeden_tag([&](int m, int d, int n) {
        const Einfall e = ebene.am_tag(sonne.sin_delta(n), sonne.cos_delta(n));
        for (int h = 1; h <= stunden; ++h)
            tabelle.faktor(m, d, h) =
                einfallsfaktor(e.a + e.b * sonne.cos_omega(m, d, h) + e.c * sonne.sin_omega(m, d, h));
    });
}

void bereitstellen(const Projekt& p, Ebenentabelle& tabelle, int azimut, float neigung) {
    const Strahlungstabellen& s = p.Strahlung;
    if (tabelle.station == s.station && tabelle.orient == p.orient && tabelle.neigung == neigung) return;
    tabelle_rechnen(tabelle, s.sonne, {p.Breite, static_cast<double>(p.orient) + azimut, neigung});
    tabelle.station = s.station;
    tabelle.orient = p.orient;
    tabelle.neigung = neigung;
}

void waende_bereitstellen(Projekt& p) {
    bereitstellen(p, p.Strahlung.wand_n, 180, senkrecht);
    bereitstellen(p, p.Strahlung.wand_s, 0, senkrecht);
    bereitstellen(p, p.Strahlung.wand_o, -90, senkrecht);
    bereitstellen(p, p.Strahlung.wand_w, 90, senkrecht);
}

void sonne_rechnen(Sonnentabelle& sonne, float Laengenkorrektur) {
    fuer_jeden_tag([&](int m, int d, int n) {
        const double delta = f32(deklination(n));
        sonne.sin_delta(n) = std::sin(delta);
        sonne.cos_delta(n) = std::cos(delta);
        const Sonnenuhr uhr(n, Laengenkorrektur);
        for (int h = 1; h <= stunden; ++h) {
            const double omega = f32(uhr.stundenwinkel(h));
            sonne.sin_omega(m, d, h) = std::sin(omega);
            sonne.cos_omega(m, d, h) = std::cos(omega);
        }
    });
}

Stationswerte stationswerte(const Stundentabelle<Wetterstunde>& wetter) {
    Stationswerte werte;
    werte.Ta_max = -1000;
    werte.Ta_min = 1000;
    fuer_jede_stunde([&](int m, int d, int h, int n) {
        const float ta = wetter(m, d, h).Ta;
        werte.Tagesmittel(n) += static_cast<double>(ta) / stunden;
        werte.Ta_max = std::max(werte.Ta_max, ta);
        werte.Ta_min = std::min(werte.Ta_min, ta);
    });
    return werte;
}

/// The sum of the radiation on one vertical plane over a month; hours out of the plausible range stay out.
class Monatssumme {
  public:
    void add(double strahlung) {
        if (strahlung > 0 && strahlung < 1370) wattstunden_ += strahlung;
    }

    /// Whole MJ/m2.
    [[nodiscard]] std::int16_t megajoule(const char* feld) const {
        return i16(ganzzahl(wattstunden_ * 3.6 / 1000), feld);
    }

  private:
    double wattstunden_ = 0;
};

void monat_berechnen(Projekt& p, int m) {
    const Strahlungstabellen& s = p.Strahlung;
    const double tage = tage_im_monat[static_cast<std::size_t>(m)];
    float temperatur = 0;
    Monatssumme nord, sued, ost, west;
    fuer_jede_stunde_des_monats(m, 1, [&](int, int d, int h, int) {
        const Wetterstunde& w = p.Wetter(m, d, h);
        const double direkt = w.Direkt;
        const double diffus = w.Diffus;
        temperatur = f32(temperatur + w.Ta / tage / stunden);
        const double himmel = diffus * 0.5;
        const double boden = (diffus + direkt) * 0.125;
        nord.add(s.wand_n.faktor(m, d, h) * direkt + himmel + boden);
        sued.add(s.wand_s.faktor(m, d, h) * direkt + himmel + boden);
        ost.add(s.wand_o.faktor(m, d, h) * direkt + himmel + boden);
        west.add(s.wand_w.faktor(m, d, h) * direkt + himmel + boden);
    });
    Monatswerte& monat = p.Monat(m);
    monat.Tmittel = temperatur;
    monat.Strahlung_N = nord.megajoule("Strahlung_N");
    monat.Strahlung_S = sued.megajoule("Strahlung_S");
    monat.Strahlung_O = ost.megajoule("Strahlung_O");
    monat.Strahlung_W = west.megajoule("Strahlung_W");
}

}  // namespace

void station_uebernehmen(Projekt& p) {
    ++p.Strahlung.station;
    sonne_rechnen(p.Strahlung.sonne, p.Laengenkorrektur);
    p.Strahlung.werte = stationswerte(p.Wetter);
}

void ebenen_bereitstellen(Projekt& p) {
    Strahlungstabellen& s = p.Strahlung;
    waende_bereitstellen(p);
    if (p.f_dach_flach > 0) bereitstellen(p, s.dach_flach, 0, 0);
    if (p.f_dach_n > 0) bereitstellen(p, s.dach_n, 180, p.Dachneigung);
    if (p.f_dach_s > 0) bereitstellen(p, s.dach_s, 0, p.Dachneigung);
    if (p.f_dach_o > 0) bereitstellen(p, s.dach_o, -90, p.Dachneigung);
    if (p.f_dach_w > 0) bereitstellen(p, s.dach_w, 90, p.Dachneigung);
}

void monatsstrahlung_berechnen(Projekt& p) {
    waende_bereitstellen(p);
    for (int m = 1; m <= monate; ++m)
        monat_berechnen(p, m);
}

}  // namespace velmaris
