#include "werkzeuge/klima_erzeugen/sonnenjahr.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace velmaris::klimasatz {
namespace {

double luftmasse(double cos_z) {
    const double hoehe_grad = std::asin(std::min(cos_z, 1.0)) * 180 / std::numbers::pi;
    return 1 / (cos_z + 0.50572 * std::pow(hoehe_grad + 6.07995, -1.6364));
}

}  // namespace

double abstandsfaktor(int n) {
    return 1 + 0.033 * std::cos(2 * std::numbers::pi * n / tage_im_jahr);
}

Stundenwerte zenitkosinus(const Standort& ort) {
    Stundenwerte cos_z;
    for (int n = 1; n <= tage_im_jahr; ++n) {
        const Sonnentag tag = sonnentag(ort, n);
        for (int h = 1; h <= stunden; ++h) {
            const double faktor = direktfaktor_horizontal(ort, n, probezeit(tag, h));
            if (faktor > 0) cos_z(n)(h) = 1 / faktor;
        }
    }
    return cos_z;
}

double extraterrestrisch(double cos_z, int n) {
    return solarkonstante * abstandsfaktor(n) * cos_z;
}

double klarer_strahl(double cos_z, double hoehe_m) {
    const double h = 0.14 * std::clamp(hoehe_m / 1000, 0.0, 5.0);
    return 1353 * ((1 - h) * std::pow(0.7, std::pow(luftmasse(cos_z), 0.678)) + h);
}

double klarheitsgrenze(double cos_z, double hoehe_m) {
    constexpr double heller_himmel = 0.3;
    return std::min(klarheit_hoechstens, klarer_strahl(cos_z, hoehe_m) / solarkonstante + heller_himmel);
}

}  // namespace velmaris::klimasatz
