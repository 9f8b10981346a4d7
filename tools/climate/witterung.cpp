#include "tools/climate/witterung.h"

#include "tools/climate/zufall.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>
#include <vector>

namespace velmaris::klimasatz {
namespace {

/// 0 below `von`, 1 above `bis`, without a bend between.
double sanfte_stufe(double x, double von, double bis) {
    const double t = std::clamp((x - von) / (bis - von), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

/// Smooth course of the mean product of two series in a month and its two neighbours.
Tageswerte gemeinsames(const Tageswerte& a, const Tageswerte& b) {
    Tageswerte produkte;
    for (int n = 1; n <= tage_im_jahr; ++n)
        produkte(n) = a(n) * b(n);
    return jahresgang(mit_nachbarn(monatsmittel(produkte)));
}

/// Takes the months' means off, and what the series shares with `fremd`, and brings the rest to the variance
/// 1 in each season. So no year is by chance calmer or less sunny in the heat than others.
Tageswerte ausgeglichen(Tageswerte werte, const Tageswerte& fremd) {
    const Tageswerte gang = jahresgang(monatsmittel(werte));
    const Tageswerte anteil = gemeinsames(werte, fremd);
    for (int n = 1; n <= tage_im_jahr; ++n)
        werte(n) -= gang(n) + anteil(n) * fremd(n);
    const Tageswerte varianz = gemeinsames(werte, werte);
    for (int n = 1; n <= tage_im_jahr; ++n)
        werte(n) /= std::sqrt(varianz(n));
    return werte;
}

/// A normal number with a longer warm tail, and both tails held in: what a record takes is no typical year's.
double geformt(double z, double schiefe) {
    constexpr double aeusserstes = 2.7;
    const double schief = schiefe > 0 ? std::expm1(schiefe * z) / schiefe : z;
    return aeusserstes * std::tanh(schief / aeusserstes);
}

/// The memory that the part of the brightness which is free of the warmth must have for the whole to have its
/// own: what the warmth brings along is taken off.
double restgedaechtnis(const Tageswerte& kopplung) {
    double gemeinsam = 0;
    for (const double r : kopplung)
        gemeinsam += r * r / tage_im_jahr;
    return std::max(0.0, (klarheitsgedaechtnis - gemeinsam * temperaturgedaechtnis) / (1 - gemeinsam));
}

Witterung ziehen(Normalzufall& zufall, const Jahreszeiten& jahreszeiten) {
    Witterung jahr;
    jahr.waerme = autoregressives_jahr(zufall, temperaturgedaechtnis);
    for (int n = 1; n <= tage_im_jahr; ++n)
        jahr.waerme(n) = geformt(jahr.waerme(n), jahreszeiten.schiefe(n));
    jahr.waerme = ausgeglichen(jahr.waerme, {});
    const double gedaechtnis = restgedaechtnis(jahreszeiten.kopplung);
    const Tageswerte rest = ausgeglichen(autoregressives_jahr(zufall, gedaechtnis), jahr.waerme);
    for (int n = 1; n <= tage_im_jahr; ++n) {
        const double r = jahreszeiten.kopplung(n);
        jahr.helle(n) = r * jahr.waerme(n) + std::sqrt(1 - r * r) * rest(n);
    }
    return jahr;
}

/// How much heat a year has: its warmest and brightest days at the warmest time count most.
double hitze(const Witterung& jahr, const Tageswerte& stand) {
    const double waermster = *std::ranges::max_element(stand);
    double summe = 0;
    for (int n = 1; n <= tage_im_jahr; ++n)
        summe += std::exp(stand(n) - waermster + jahr.waerme(n) + jahr.helle(n) / 2);
    return summe;
}

}  // namespace

double jahresspreizung(const Monatswerte& ta) {
    const double jahr = std::accumulate(ta.begin(), ta.end(), 0.0) / monate;
    double quadrate = 0;
    for (const double wert : ta)
        quadrate += (wert - jahr) * (wert - jahr) / monate;
    return std::sqrt(quadrate);
}

double jahreszeitlichkeit(double spreizung) {
    constexpr double keine_k = 1.2;
    constexpr double volle_k = 4.7;
    return sanfte_stufe(spreizung, keine_k, volle_k);
}

double sonnenwaerme(double draussen, double breite_n) {
    constexpr double tiefer_winter_kwh = 3;
    constexpr double hoher_sommer_kwh = 11.5;
    constexpr double im_winter = -0.45;
    constexpr double im_sommer = 0.58;
    constexpr double tropen_bis = 10;
    constexpr double mittlere_breiten_ab = 35;
    constexpr double in_den_tropen = 0.45;
    const double sommer = sanfte_stufe(draussen, tiefer_winter_kwh, hoher_sommer_kwh);
    const double breite = sanfte_stufe(std::fabs(breite_n), tropen_bis, mittlere_breiten_ab);
    return std::lerp(im_winter, im_sommer, sommer) * std::lerp(in_den_tropen, 1.0, breite);
}

double waermeschiefe(double kopplung, double ta) {
    constexpr double kuehler_sommer = 16;
    constexpr double heisser_sommer = 24;
    constexpr double groesste = 1.8;
    return groesste * std::max(0.0, kopplung) * (1 - sanfte_stufe(ta, kuehler_sommer, heisser_sommer));
}

Witterung witterung_erzeugen(std::string_view schluessel, const Jahreszeiten& jahreszeiten) {
    constexpr std::size_t gezogene = 15;
    Normalzufall zufall(schluessel);
    std::vector<std::pair<double, Witterung>> jahre;
    for (std::size_t i = 0; i < gezogene; ++i) {
        const Witterung jahr = ziehen(zufall, jahreszeiten);
        jahre.emplace_back(hitze(jahr, jahreszeiten.stand), jahr);
    }
    const auto mitte = jahre.begin() + gezogene / 2;
    std::ranges::nth_element(jahre, mitte, {}, &std::pair<double, Witterung>::first);
    return mitte->second;
}

}  // namespace velmaris::klimasatz
