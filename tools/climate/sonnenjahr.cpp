#include "tools/climate/sonnenjahr.h"

#include <algorithm>
#include <cmath>
#include <compare>
#include <numbers>

namespace velmaris::klimasatz {
namespace {

double luftmasse(double cos_z) {
    const double hoehe_grad = std::asin(std::min(cos_z, 1.0)) * 180 / std::numbers::pi;
    return 1 / (cos_z + 0.50572 * std::pow(hoehe_grad + 6.07995, -1.6364));
}

/// Declination within 0.04 degrees, radians; the program's own is up to 1 degree off in autumn. Source: J. W.
/// Spencer, "Fourier series representation of the position of the sun", Search 2 (1971), 172.
double genauere_deklination(int n) {
    const double g = 2 * std::numbers::pi * (n - 1) / tage_im_jahr;
    return 0.006918 - 0.399912 * std::cos(g) + 0.070257 * std::sin(g) - 0.006758 * std::cos(2 * g) +
           0.000907 * std::sin(2 * g) - 0.002697 * std::cos(3 * g) + 0.001480 * std::sin(3 * g);
}

/// Hour angle of sunset, 0 in the polar night, pi on a polar day.
double untergang(const Standort& ort, double deklination) {
    const double x = -std::tan(static_cast<double>(ort.Breite)) * std::tan(deklination);
    return std::acos(std::clamp(x, -1.0, 1.0));
}

/// A sunlit piece of the sun's way: the cosine of the zenith angle summed over its width in hour angle.
struct Bogenstueck {
    double kosinus = 0;
    double breite = 0;
    auto operator<=>(const Bogenstueck&) const = default;
};

/// The sun's way over a place on one day.
class Sonnenbogen {
  public:
    Sonnenbogen(const Standort& ort, double deklination)
        : schwung_(std::cos(static_cast<double>(ort.Breite)) * std::cos(deklination)),
          mittel_(std::sin(static_cast<double>(ort.Breite)) * std::sin(deklination)),
          untergang_(untergang(ort, deklination)) {}

    /// What lies above the horizon between two hour angles, which may reach into the days before and after.
    [[nodiscard]] Bogenstueck zwischen(double anfang, double ende) const {
        Bogenstueck stueck;
        for (const int tag : {-1, 0, 1}) {
            const double mittag = tag * 2 * std::numbers::pi;
            const double von = std::max(anfang - mittag, -untergang_);
            const double bis = std::min(ende - mittag, untergang_);
            if (von >= bis) continue;
            stueck.breite += bis - von;
            stueck.kosinus += schwung_ * (std::sin(bis) - std::sin(von)) + mittel_ * (bis - von);
        }
        return stueck;
    }

  private:
    double schwung_;
    double mittel_;
    double untergang_;
};

}  // namespace

double abstandsfaktor(int n) {
    return 1 + 0.033 * std::cos(2 * std::numbers::pi * n / tage_im_jahr);
}

double untergangswinkel(const Standort& ort, int n) {
    return untergang(ort, deklination(n));
}

Sonnenstand sonnenstand(const Standort& ort) {
    Sonnenstand stand;
    for (int n = 1; n <= tage_im_jahr; ++n) {
        const Sonnentag tag = sonnentag(ort, n);
        const Sonnenuhr uhr(n, ort.Laengenkorrektur);
        const Sonnenbogen bogen_des_programms(ort, deklination(n));
        const Sonnenbogen genauerer_bogen(ort, genauere_deklination(n));
        for (int h = 1; h <= stunden; ++h) {
            const double anfang = uhr.stundenwinkel(h - 1);
            const double ende = uhr.stundenwinkel(h);
            const Bogenstueck stueck =
                std::min(bogen_des_programms.zwischen(anfang, ende), genauerer_bogen.zwischen(anfang, ende));
            stand.stunde(n)(h) = stueck.kosinus / (ende - anfang);
            if (stueck.kosinus > 0) stand.sonnig(n)(h) = stueck.kosinus / stueck.breite;
            const double faktor = direktfaktor_horizontal(ort, n, probezeit(tag, h));
            if (faktor > 0) stand.gelesen(n)(h) = 1 / faktor;
        }
    }
    return stand;
}

double extraterrestrisch(double cos_z, int n) {
    return solarkonstante * abstandsfaktor(n) * cos_z;
}

double klarer_strahl(double cos_z, double hoehe_m) {
    constexpr double skalenhoehe_m = 8434.5;
    const double masse = luftmasse(cos_z) * std::exp(-std::clamp(hoehe_m, 0.0, 5000.0) / skalenhoehe_m);
    return 1353 * std::pow(0.7, std::pow(masse, 0.678));
}

double klarheitsgrenze(double cos_z, double hoehe_m) {
    constexpr double heller_himmel = 0.3;
    return std::min(klarheit_hoechstens, klarer_strahl(cos_z, hoehe_m) / solarkonstante + heller_himmel);
}

}  // namespace velmaris::klimasatz
