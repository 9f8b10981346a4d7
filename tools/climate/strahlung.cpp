#include "tools/climate/strahlung.h"

#include "toolkit/fehler.h"
#include "toolkit/zahlen.h"
#include "tools/climate/klarheit.h"
#include "tools/climate/zufall.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace velmaris::klimasatz {
namespace {

using Tagesgang = Reihe<double, 1, stunden>;

double summe(const Tagesgang& werte) {
    return std::accumulate(werte.begin(), werte.end(), 0.0);
}

Tagesgang stunden_draussen(const Sonnenstand& sonne, int n) {
    Tagesgang draussen;
    for (int h = 1; h <= stunden; ++h)
        draussen(h) = extraterrestrisch(sonne.stunde(n)(h), n);
    return draussen;
}

/// A day that waits for its radiation.
struct Himmelstag {
    Tagesgang draussen;    ///< extraterrestrial on the horizontal, W/m²
    Tagesgang hoechstens;  ///< most that the hours may get, W/m²
    double mittel = 0;     ///< clearness around which the season's days lie
    double normal = 0;     ///< normal rank of the day before its month is shifted
    double klarheit = 0;   ///< the day's clearness in the end
};

using Himmelsjahr = Reihe<Himmelstag, 1, tage_im_jahr>;

void grenzen_setzen(Himmelstag& tag, const Tagesgang& cos_z, double hoehe_m) {
    for (int h = 1; h <= stunden; ++h) {
        if (cos_z(h) > 0) tag.hoechstens(h) = tag.draussen(h) * klarheitsgrenze(cos_z(h), hoehe_m);
    }
}

/// Radiation of a day, Wh/m², if its month is shifted by `schub`.
double tagessumme(const Himmelstag& tag, double schub) {
    return std::min(tagesklarheit(tag.mittel, tag.normal + schub) * summe(tag.draussen),
                    summe(tag.hoechstens));
}

/// One month of the year, its days and its fact.
class Monatshimmel {
  public:
    Monatshimmel(Himmelsjahr& jahr, int m, double ghi)
        : jahr_(jahr),
          erster_(erster_tag(m)),
          letzter_(erster_ + tage_im_monat[static_cast<std::size_t>(m)] - 1),
          soll_(ghi * 1000) {}

    /// Lets the hours come up to the limit that no hour may pass, where clean air would not do for the fact.
    void grenzen_pruefen() {
        constexpr double vorrat = 1.1;
        if (hoechstens() >= soll_ * vorrat) return;
        for (int n = erster_; n <= letzter_; ++n) {
            for (int h = 1; h <= stunden; ++h)
                jahr_(n).hoechstens(h) = jahr_(n).draussen(h) * klarheit_hoechstens;
        }
    }

    /// Shifts the days until their sum is the fact.
    void schieben() {
        double unten = -8;
        double oben = 8;
        for (int i = 0; i < 50; ++i) {
            const double mitte = (unten + oben) / 2;
            (summe_bei(mitte) < soll_ ? unten : oben) = mitte;
        }
        for (int n = erster_; n <= letzter_; ++n) {
            Himmelstag& tag = jahr_(n);
            tag.klarheit = tagesklarheit(tag.mittel, tag.normal + oben);
        }
        // What the distribution's ends leave open is spread evenly.
        const double bleibt = summe_bei(oben);
        if (bleibt <= 0 || std::fabs(bleibt - soll_) < 1e-6 * soll_) return;
        for (int n = erster_; n <= letzter_; ++n)
            jahr_(n).klarheit *= soll_ / bleibt;
    }

  private:
    [[nodiscard]] double hoechstens() const {
        double wh = 0;
        for (int n = erster_; n <= letzter_; ++n)
            wh += summe(jahr_(n).hoechstens);
        return wh;
    }

    [[nodiscard]] double summe_bei(double schub) const {
        double wh = 0;
        for (int n = erster_; n <= letzter_; ++n)
            wh += tagessumme(jahr_(n), schub);
        return wh;
    }

    Himmelsjahr& jahr_;
    int erster_;
    int letzter_;
    double soll_;
};

/// Clearness of the months; where the sun hardly rises, a middling sky.
Monatswerte monatsklarheit(const Himmelsjahr& jahr, const Monatswerte& ghi) {
    constexpr double wenigstens_kwh = 0.5;
    constexpr double mittlere = 0.4;
    Monatswerte draussen;
    fuer_jeden_tag([&](int m, int n) { draussen(m) += summe(jahr(n).draussen) / 1000; });
    Monatswerte klarheit;
    for (int m = 1; m <= monate; ++m)
        klarheit(m) = draussen(m) < wenigstens_kwh ? mittlere : ghi(m) / draussen(m);
    return klarheit;
}

Himmelsjahr himmelsjahr(const Stationsfakten& station, const Sonnenstand& sonne, const Tageswerte& helle) {
    Himmelsjahr jahr;
    for (int n = 1; n <= tage_im_jahr; ++n) {
        jahr(n).draussen = stunden_draussen(sonne, n);
        grenzen_setzen(jahr(n), sonne.sonnig(n), station.hoehe_m);
        jahr(n).normal = helle(n);
    }
    const Tageswerte mittel = jahresgang(monatsklarheit(jahr, station.ghi));
    for (int n = 1; n <= tage_im_jahr; ++n)
        jahr(n).mittel = mittel(n);
    for (int m = 1; m <= monate; ++m) {
        Monatshimmel monat(jahr, m, station.ghi(m));
        monat.grenzen_pruefen();
        monat.schieben();
    }
    return jahr;
}

/// The day's hours before they are brought to the day's sum: extraterrestrial times scattered clearness.
Tagesgang roher_tagesgang(const Himmelstag& tag, const Tagesgang& cos_z, Normalzufall& zufall,
                          double& abweichung) {
    constexpr double wenigstens = 0.02;
    const double phi = stundengedaechtnis(tag.klarheit);
    Tagesgang roh;
    for (int h = 1; h <= stunden; ++h) {
        if (cos_z(h) <= 0) continue;
        abweichung = phi * abweichung + std::sqrt(1 - phi * phi) * zufall.naechste();
        const double k =
            stundenklarheit(tag.klarheit, cos_z(h)) + stundenstreuung(tag.klarheit, cos_z(h)) * abweichung;
        roh(h) = std::max(k, wenigstens) * tag.draussen(h);
    }
    return roh;
}

/// Scales the hours to the sum, W/m²; an hour at its limit stays there and leaves its part to the others.
Tagesgang auf_summe_bringen(const Tagesgang& roh, const Tagesgang& hoechstens, double soll) {
    Tagesgang ergebnis;
    double faktor = 0;
    for (int runde = 0; runde < stunden; ++runde) {
        double frei = 0;
        double fest = 0;
        for (int h = 1; h <= stunden; ++h) {
            const bool am_rand = runde > 0 && roh(h) * faktor >= hoechstens(h);
            (am_rand ? fest : frei) += am_rand ? hoechstens(h) : roh(h);
        }
        const double neu = frei > 0 ? std::max(0.0, soll - fest) / frei : faktor;
        if (neu <= faktor) break;
        faktor = neu;
    }
    for (int h = 1; h <= stunden; ++h)
        ergebnis(h) = std::min(roh(h) * faktor, hoechstens(h));
    return ergebnis;
}

/// Whole W/m² of a running series; what rounding leaves goes to the next hour.
class Ganzrunder {
  public:
    [[nodiscard]] double operator()(double wert, double hoechstens) {
        const double ganz = std::clamp(runden(wert + rest_), 0.0, ganzzahl(hoechstens));
        rest_ += wert - ganz;
        return ganz;
    }

  private:
    double rest_ = 0;
};

/// Whole W/m² of beam on the horizontal in an hour of the global radiation `global`: what is not diffuse, but
/// no more than the cleanest sky lets through, in the hour and at the moment at which the program looks at
/// it.
double strahl(double global, const Sonnenstand& sonne, int n, int h, double hoehe_m) {
    const double gelesen = sonne.gelesen(n)(h);
    if (global <= 0 || gelesen <= 0) return 0;
    const double klarheit = global / extraterrestrisch(sonne.stunde(n)(h), n);
    const double hoechstens = std::min(klarer_strahl(sonne.sonnig(n)(h), hoehe_m) * sonne.stunde(n)(h),
                                       klarer_strahl(gelesen, hoehe_m) * gelesen);
    return std::min(runden(global * (1 - diffusanteil(klarheit))), ganzzahl(hoechstens));
}

/// The fault of a month whose fact was not reached.
void summen_pruefen(const Stationsfakten& station, const Stundenwerte& global) {
    Monatswerte kwh;
    fuer_jeden_tag([&](int m, int n) { kwh(m) += summe(global(n)) / 1000; });
    for (int m = 1; m <= monate; ++m) {
        if (std::fabs(kwh(m) - station.ghi(m)) <= strahlungstoleranz(station.ghi(m))) continue;
        const std::string zahl = muster(station.ghi(m), 1) + " kWh/m²";
        throw Dateifehler(
            station.liste,
            {"so viel gibt die Sonne nicht her: " + zahl, "more than the sun can give: " + zahl},
            station.zeile, monatsspalte("ghi", m));
    }
}

}  // namespace

double strahlungstoleranz(double ghi) {
    return std::max(0.01 * ghi, 0.05);
}

Tageswerte tagessummen_draussen(const Sonnenstand& sonne) {
    Tageswerte kwh;
    for (int n = 1; n <= tage_im_jahr; ++n)
        kwh(n) = summe(stunden_draussen(sonne, n)) / 1000;
    return kwh;
}

Strahlungsjahr strahlung_erzeugen(const Stationsfakten& station, const Sonnenstand& sonne,
                                  const Tageswerte& helle) {
    Normalzufall zufall(station.datei + ":strahlung");
    const Himmelsjahr himmel = himmelsjahr(station, sonne, helle);
    Strahlungsjahr jahr;
    // For the seconds by which formulas of the equation of time differ, W/m².
    constexpr double reserve = 0.5;
    Ganzrunder ganz;
    double abweichung = 0;
    for (int n = 1; n <= tage_im_jahr; ++n) {
        const Himmelstag& tag = himmel(n);
        const Tagesgang roh = roher_tagesgang(tag, sonne.sonnig(n), zufall, abweichung);
        const Tagesgang werte = auf_summe_bringen(roh, tag.hoechstens, tag.klarheit * summe(tag.draussen));
        for (int h = 1; h <= stunden; ++h) {
            if (tag.draussen(h) <= 0) continue;
            const double global =
                ganz(werte(h), std::max(0.0, tag.draussen(h) * klarheit_hoechstens - reserve));
            jahr.global(n)(h) = global;
            jahr.diffus(n)(h) = global - strahl(global, sonne, n, h, station.hoehe_m);
        }
        jahr.klarheit(n) = tag.klarheit;
    }
    summen_pruefen(station, jahr.global);
    return jahr;
}

}  // namespace velmaris::klimasatz
