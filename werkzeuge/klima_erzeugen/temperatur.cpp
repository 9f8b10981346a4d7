#include "werkzeuge/klima_erzeugen/temperatur.h"

#include "toolkit/zahlen.h"
#include "werkzeuge/klima_erzeugen/zufall.h"

#include <algorithm>
#include <cmath>
#include <numbers>

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

/// What a year's temperature is put together from.
struct Bausteine {
    Tageswerte mittags;  ///< level of the days, °C, at noon
    Tageswerte spanne;   ///< range of the wave, K, at noon
    Stundenwerte welle;  ///< wave of the range 1
};

Stundenwerte zusammensetzen(const Bausteine& b) {
    Stundenwerte ta;
    for (int n = 1; n <= tage_im_jahr; ++n) {
        for (int h = 1; h <= stunden; ++h)
            ta(n)(h) = zwischen_mittagen(b.mittags, n, h) + zwischen_mittagen(b.spanne, n, h) * b.welle(n)(h);
    }
    return ta;
}

Stundenwerte wellen(const Standort& ort) {
    Stundenwerte welle;
    for (int n = 1; n <= tage_im_jahr; ++n) {
        const Sonnenuhr uhr(n, ort.Laengenkorrektur);
        for (int h = 1; h <= stunden; ++h) {
            const double winkel = uhr.stundenwinkel(h - 0.5);
            welle(n)(h) = tageswelle(12 + winkel / grad_in_bogen / 15);
        }
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

}  // namespace

double tageswelle(double sonnenzeit) {
    const double t = 2 * std::numbers::pi * (sonnenzeit - 1) / 24;
    return 0.4632 * std::cos(t - 3.805) + 0.0984 * std::cos(2 * t - 0.360) +
           0.0168 * std::cos(3 * t - 0.822) + 0.0138 * std::cos(4 * t - 3.513);
}

double spannenfaktor(double klarheit) {
    constexpr double klarste = 0.7;
    const double anteil = std::clamp(klarheit / klarste, 0.05, 0.95);
    return std::pow(-std::log(1 - anteil), 1 / 2.4);
}

Monatswerte tagesstreuung(const Monatswerte& ta) {
    double jahr = 0;
    double quadrate = 0;
    for (const double wert : ta)
        jahr += wert / monate;
    for (const double wert : ta)
        quadrate += (wert - jahr) * (wert - jahr) / monate;
    constexpr double r = temperaturgedaechtnis;
    Monatswerte streuung;
    for (int m = 1; m <= monate; ++m) {
        const double der_monatsmittel = 1.45 - 0.0290 * ta(m) + 0.0664 * std::sqrt(quadrate);
        streuung(m) =
            der_monatsmittel * std::sqrt(tage_im_monat[static_cast<std::size_t>(m)] * (1 - r) / (1 + r));
    }
    return streuung;
}

Stundenwerte temperatur_erzeugen(const Stationsfakten& station, const Tageswerte& klarheit) {
    Normalzufall zufall(station.datei + ":temperatur");
    const Tageswerte abweichung = autoregressives_jahr(zufall, temperaturgedaechtnis);
    const Tageswerte gang = jahresgang(station.ta);
    const Tageswerte streuung = jahresgang(tagesstreuung(station.ta));
    Bausteine b;
    Tageswerte spannenverlauf;
    for (int n = 1; n <= tage_im_jahr; ++n) {
        b.mittags(n) = gang(n) + streuung(n) * abweichung(n);
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
