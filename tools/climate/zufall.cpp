#include "tools/climate/zufall.h"

#include <cmath>
#include <numbers>

namespace velmaris::klimasatz {

std::uint64_t fnv1a(std::string_view bytes) {
    std::uint64_t wert = 0xCBF29CE484222325U;
    for (const char byte : bytes) {
        wert ^= static_cast<unsigned char>(byte);
        wert *= 0x100000001B3U;
    }
    return wert;
}

double Normalzufall::gleichverteilt() {
    return (static_cast<double>(maschine_() >> 11U) + 0.5) * 0x1p-53;
}

double Normalzufall::naechste() {
    if (hat_vorrat_) {
        hat_vorrat_ = false;
        return vorrat_;
    }
    const double radius = std::sqrt(-2 * std::log(gleichverteilt()));
    const double winkel = 2 * std::numbers::pi * gleichverteilt();
    vorrat_ = radius * std::sin(winkel);
    hat_vorrat_ = true;
    return radius * std::cos(winkel);
}

Tageswerte autoregressives_jahr(Normalzufall& zufall, double phi) {
    Tageswerte stoesse;
    for (double& stoss : stoesse)
        stoss = zufall.naechste() * std::sqrt(1 - phi * phi);
    Tageswerte werte;
    double x = 0;
    // The first round only finds the value with which the year has to begin to end where it began.
    for (int runde = 1; runde <= 2; ++runde) {
        for (int n = 1; n <= tage_im_jahr; ++n) {
            x = phi * x + stoesse(n);
            werte(n) = x;
        }
    }
    return werte;
}

}  // namespace velmaris::klimasatz
