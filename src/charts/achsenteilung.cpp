#include "charts/achsenteilung.h"

#include "toolkit/zahlen.h"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

/// What a number may miss a multiple by, in steps, and still count as one.
constexpr double spiel = 1e-6;

}  // namespace

Achsenteilung::Achsenteilung(double von, double bis, int hoechstens) : von_(von), bis_(bis) {
    const double groesse = std::max(std::fabs(von), std::fabs(bis));
    if (!(bis - von > spiel * groesse)) {
        const double halb = groesse > 0 ? groesse / 2 : 0.5;
        von_ = std::min(von, bis) - halb;
        bis_ = std::max(von, bis) + halb;
    }
    exponent_ = static_cast<int>(std::floor(std::log10((bis_ - von_) / hoechstens)));
    for (;; ++exponent_) {
        for (const int ziffer : {1, 2, 5}) {
            ziffer_ = ziffer;
            if (runden((oben() - unten()) / schritt()) <= hoechstens) return;
        }
    }
}

/// Divided where the step is a fraction, so that the result is the double of its decimal number.
double Achsenteilung::vielfaches(double n) const {
    const double potenz = std::pow(10.0, std::abs(exponent_));
    return exponent_ < 0 ? n * ziffer_ / potenz : n * ziffer_ * potenz;
}

double Achsenteilung::unten() const {
    return vielfaches(std::floor(von_ / schritt() + spiel));
}

double Achsenteilung::oben() const {
    return vielfaches(std::ceil(bis_ / schritt() - spiel));
}

std::vector<double> Achsenteilung::striche() const {
    std::vector<double> alle;
    const double letzter = std::floor(bis_ / schritt() + spiel);
    for (double n = std::ceil(von_ / schritt() - spiel); n <= letzter; ++n)
        alle.push_back(vielfaches(n));
    return alle;
}

std::string Achsenteilung::zahl(double strich) const {
    return muster(strich, std::max(0, -exponent_));
}

}  // namespace velmaris
