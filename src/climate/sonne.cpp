#include "climate/sonne.h"

#include "toolkit/zahlen.h"

#include <algorithm>
#include <cmath>

namespace velmaris {

double arccos(double x) {
    return std::atan(-x / std::sqrt(1 - x * x)) + 1.5708;
}

double deklination(int n) {
    return std::sin((n + 284) / 365.0 * 6.2832) * 23.45 * grad_in_bogen;
}

double zeitgleichung(int n) {
    const double b = (n - 81) * 360.0 / 364.0 * grad_in_bogen;
    return 9.87 * std::sin(2 * b) - 7.53 * std::cos(b) - 1.5 * std::sin(b);
}

Sonnenuhr::Sonnenuhr(int n, float Laengenkorrektur)
    : vorsprung_((-static_cast<double>(Laengenkorrektur) * 4 + zeitgleichung(n)) / 60) {}

double Sonnenuhr::stundenwinkel(double t) const {
    return ((t + vorsprung_) * 15 - 180) * grad_in_bogen;
}

Sonnentag sonnentag(const Standort& ort, int n) {
    const float delta = f32(std::sin(((n + 284) / 365.0) * 2 * 3.14159) * 23.45 * 3.14159 / 180);
    const double x = -std::tan(static_cast<double>(ort.Breite)) * std::tan(static_cast<double>(delta));
    double omega_s = 0;
    if (x <= -1) {
        omega_s = 3.14159;
    } else if (x < 1) {
        omega_s = arccos(x);
    }
    const double korrektur = ort.Laengenkorrektur;
    return {12 - (omega_s / grad_in_bogen + korrektur) / 15,
            f32(12 + (omega_s / grad_in_bogen - korrektur) / 15)};
}

double probezeit(const Sonnentag& tag, int h) {
    const double su = tag.SU;
    double t = h - 0.5;
    if (ganzzahl(tag.SA) + 1 == h) t = (h + tag.SA) / 2;
    if (ganzzahl(su) + 1 == h) t = (h + su - 1) / 2;
    return t;
}

Zenitbahn::Zenitbahn(const Standort& ort, int n)
    : uhr_(n, ort.Laengenkorrektur),
      cos_delta_(std::cos(deklination(n))),
      cos_phi_(std::cos(static_cast<double>(ort.Breite))),
      mittel_(std::sin(static_cast<double>(ort.Breite)) * std::sin(deklination(n))) {}

float Zenitbahn::direktfaktor(double t) const {
    const double cos_z = cos_delta_ * std::cos(uhr_.stundenwinkel(t)) * cos_phi_ + mittel_;
    return cos_z > 0.00001 ? f32(1 / cos_z) : 0.0F;
}

float direktfaktor_horizontal(const Standort& ort, int n, double t) {
    return Zenitbahn(ort, n).direktfaktor(t);
}

float einfallsfaktor_ebene(const Standort& ort, int n, int h, int orient, double azimut, double neigung) {
    const double delta = f32(deklination(n));
    const double omega = f32(Sonnenuhr(n, ort.Laengenkorrektur).stundenwinkel(h));
    const double gamma = (orient + azimut) * grad_in_bogen;
    const double beta = neigung * grad_in_bogen;
    const double phi = ort.Breite;
    const double cos_theta =
        std::clamp(std::sin(delta) * std::sin(phi) * std::cos(beta) -
                       std::cos(phi) * std::sin(delta) * std::sin(beta) * std::cos(gamma) +
                       std::cos(phi) * std::cos(delta) * std::cos(beta) * std::cos(omega) +
                       std::sin(phi) * std::cos(delta) * std::sin(beta) * std::cos(gamma) * std::cos(omega) +
                       std::sin(beta) * std::cos(delta) * std::sin(gamma) * std::sin(omega),
                   0.0, 1.0);
    return f32((1 - std::pow(1 - cos_theta, 2.5)) * cos_theta);
}

}  // namespace velmaris
