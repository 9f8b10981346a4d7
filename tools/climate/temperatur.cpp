#include "tools/climate/temperatur.h"

#include "toolkit/zahlen.h"
#include "tools/climate/sonnenjahr.h"
#include "tools/climate/witterung.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace velmaris::klimasatz {
namespace {

Tageswerte monatsverhaeltnis(const Tageswerte& werte) {
    const Monatswerte mittel = monatsmittel(werte);
    Tageswerte ergebnis;
    fuer_jeden_tag([&](int m, int n) { ergebnis(n) = werte(n) / mittel(m); });
    return ergebnis;
}

/// A series of days between its noons, by hour; the last day leads on to the first.
double zwischen_mittagen(const Tageswerte& tage, int n, int h) {
    const double t = h - 0.5 - 12;
    const int davor = n == 1 ? tage_im_jahr : n - 1;
    const int danach = n == tage_im_jahr ? 1 : n + 1;
    const double nachbar = tage(t < 0 ? davor : danach);
    return tage(n) + (nachbar - tage(n)) * std::fabs(t) / stunden;
}

/// Scatter of the daily means against that of the noons between which the levels run in straight lines: a
/// mean is 3/4 its own noon and 1/8 each neighbour, in a series of lag-one correlation r sqrt(19/32 + 3/8 r +
/// r^2/32).
constexpr double tagesmittel_der_mittage = 0.9336;

/// What a year's temperature is put together from.
struct Bausteine {
    Tageswerte mittags;  ///< level of the days, °C, at noon
    Tageswerte spanne;   ///< range of the wave, K, at noon
    Stundenwerte welle;  ///< wave of the range 1, mean 0
};

Stundenwerte zusammensetzen(const Bausteine& b) {
    Stundenwerte ta;
    for (int n = 1; n <= tage_im_jahr; ++n) {
        for (int h = 1; h <= stunden; ++h)
            ta(n)(h) = zwischen_mittagen(b.mittags, n, h) + zwischen_mittagen(b.spanne, n, h) * b.welle(n)(h);
    }
    return ta;
}

/// Each day's wave, less its mean.
Stundenwerte wellen(const Standort& ort) {
    Stundenwerte welle;
    for (int n = 1; n <= tage_im_jahr; ++n) {
        const Sonnenuhr uhr(n, ort.Laengenkorrektur);
        const double tageslaenge = 24 / std::numbers::pi * untergangswinkel(ort, n);
        for (int h = 1; h <= stunden; ++h) {
            const double winkel = uhr.stundenwinkel(h - 0.5);
            welle(n)(h) = tageswelle(12 + winkel / grad_in_bogen / 15, tageslaenge);
        }
        const double mittel = std::accumulate(welle(n).begin(), welle(n).end(), 0.0) / stunden;
        for (double& wert : welle(n))
            wert -= mittel;
    }
    return welle;
}

/// Shifts level and range until months have the facts' means. The shifts are smooth courses themselves, so no
/// month's end shows.
Stundenwerte an_fakten_fuehren(Bausteine b, const Stationsfakten& station, const Tageswerte& spannenverlauf) {
    constexpr int schritte = 12;
    Monatswerte wellenspanne = station.dtr;
    Stundenwerte ta;
    for (int i = 0; i <= schritte; ++i) {
        const Tageswerte spannen = jahresgang(wellenspanne);
        for (int n = 1; n <= tage_im_jahr; ++n)
            b.spanne(n) = std::max(spannen(n), 0.0) * spannenverlauf(n);
        ta = zusammensetzen(b);
        if (i == schritte) break;
        const Monatswerte mittel = monatsmittel(tagesmittel(ta));
        const Monatswerte spanne = monatsmittel(tagesspannen(ta));
        Monatswerte fehler;
        for (int m = 1; m <= monate; ++m) {
            fehler(m) = station.ta(m) - mittel(m);
            wellenspanne(m) = std::max(wellenspanne(m) + station.dtr(m) - spanne(m), 0.1);
        }
        const Tageswerte schub = jahresgang(fehler);
        for (int n = 1; n <= tage_im_jahr; ++n)
            b.mittags(n) += schub(n);
    }
    return ta;
}

/// Standard deviation of the means of a month through the years, K, kept to the range for which the law
/// holds.
double streuung_der_monatsmittel(double ta, double spreizung) {
    constexpr double kaelteste = -15;
    constexpr double groesste_spreizung = 8;
    constexpr double heiss_ab = 24;
    constexpr double ruhe_der_hitze = 0.03;
    return 1.45 - 0.0290 * std::max(ta, kaelteste) + 0.0664 * std::min(spreizung, groesste_spreizung) -
           ruhe_der_hitze * std::max(0.0, ta - heiss_ab);
}

}  // namespace

double tageswelle(double sonnenzeit, double tageslaenge) {
    constexpr double gipfel_nach_mittag = 1.86;
    constexpr double tief_nach_aufgang = -0.17;
    constexpr double abfall = 2.20;
    const double halber_tag = std::clamp(tageslaenge, 6.0, 20.0) / 2;
    const double aufstieg = halber_tag + gipfel_nach_mittag - tief_nach_aufgang;
    const double bis_untergang = 2 * halber_tag - tief_nach_aufgang;
    const auto sinus = [&](double t) { return std::sin(std::numbers::pi / 2 * t / aufstieg); };
    const double t = std::fmod(sonnenzeit - (12 - halber_tag + tief_nach_aufgang) + 48, 24);
    if (t <= bis_untergang) return sinus(t);
    const double nachtanteil = (t - bis_untergang) / (24 - bis_untergang);
    const double ende = std::exp(-abfall);
    return sinus(bis_untergang) * (std::exp(-abfall * nachtanteil) - ende) / (1 - ende);
}

double spannenfaktor(double klarheit) {
    constexpr double klarste = 0.7;
    const double anteil = std::clamp(klarheit / klarste, 0.05, 0.95);
    return std::pow(-std::log(1 - anteil), 1 / 2.4);
}

Monatswerte tagesstreuung(const Monatswerte& ta) {
    constexpr double ohne_jahreszeiten = 0.72;
    constexpr double r = temperaturgedaechtnis;
    const double spreizung = jahresspreizung(ta);
    const double anteil = jahreszeitlichkeit(spreizung);
    Monatswerte streuung;
    for (int m = 1; m <= monate; ++m) {
        const double der_tage = streuung_der_monatsmittel(ta(m), spreizung) *
                                std::sqrt(tage_im_monat[static_cast<std::size_t>(m)] * (1 - r) / (1 + r));
        streuung(m) = ohne_jahreszeiten + anteil * (der_tage - ohne_jahreszeiten);
    }
    return streuung;
}

Stundenwerte temperatur_erzeugen(const Stationsfakten& station, const Tageswerte& waerme,
                                 const Tageswerte& klarheit) {
    const Tageswerte gang = jahresgang(station.ta);
    const Tageswerte streuung = jahresgang(tagesstreuung(station.ta));
    Bausteine b;
    Tageswerte spannenverlauf;
    for (int n = 1; n <= tage_im_jahr; ++n) {
        b.mittags(n) = gang(n) + streuung(n) / tagesmittel_der_mittage * waerme(n);
        spannenverlauf(n) = spannenfaktor(klarheit(n));
    }
    b.welle = wellen(standort(station));
    Stundenwerte ta = an_fakten_fuehren(b, station, monatsverhaeltnis(spannenverlauf));
    for (auto& tag : ta) {
        for (double& wert : tag)
            wert = runden(wert * 10) / 10;
    }
    return ta;
}

}  // namespace velmaris::klimasatz
