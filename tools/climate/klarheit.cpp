#include "tools/climate/klarheit.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace velmaris::klimasatz {
namespace {

constexpr double truebster_tag = 0.05;

double klarster_tag(double mittel) {
    return 0.6313 + 0.267 * mittel - 11.9 * std::pow(mittel - 0.75, 8);
}

double exponent(double mittel, double klarster) {
    const double xi = (klarster - truebster_tag) / (klarster - mittel);
    return -1.498 + (1.184 * xi - 27.182 * std::exp(-1.5 * xi)) / (klarster - truebster_tag);
}

double normalverteilung(double x) {
    return 0.5 * std::erfc(-x / std::numbers::sqrt2);
}

}  // namespace

double tagesklarheit(double mittel, double normal) {
    const double k = std::clamp(mittel, 0.12, 0.8);
    const double klarster = klarster_tag(k);
    const double gamma = exponent(k, klarster);
    const double rang = normalverteilung(normal);
    return std::log((1 - rang) * std::exp(gamma * truebster_tag) + rang * std::exp(gamma * klarster)) / gamma;
}

double stundenklarheit(double tag, double cos_z) {
    const double lambda = -0.19 + 1.12 * tag + 0.24 * std::exp(-8 * tag);
    const double epsilon = 0.32 - 1.6 * (tag - 0.5) * (tag - 0.5);
    const double kappa = 0.19 + 2.27 * tag * tag - 2.51 * tag * tag * tag;
    return lambda + epsilon * std::exp(-kappa / cos_z);
}

double stundenstreuung(double tag, double cos_z) {
    const double a = 0.14 * std::exp(-20 * (tag - 0.35) * (tag - 0.35));
    const double b = 3 * (tag - 0.45) * (tag - 0.45) + 16 * std::pow(tag, 5);
    return a * std::exp(b * (1 - cos_z));
}

double stundengedaechtnis(double tag) {
    return 0.38 + 0.06 * std::cos(7.4 * tag - 2.5);
}

double diffusanteil(double klarheit) {
    const double k = klarheit;
    if (k <= 0.22) return 1 - 0.09 * k;
    if (k > 0.8) return 0.165;
    return 0.9511 + k * (-0.1604 + k * (4.388 + k * (-16.638 + k * 12.336)));
}

}  // namespace velmaris::klimasatz
