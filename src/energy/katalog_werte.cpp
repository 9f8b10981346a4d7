#include "energy/katalog_werte.h"

#include "energy/Heizsysteme.h"
#include "toolkit/zahlen.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <span>

namespace velmaris {
namespace {

/// The floor areas (m2) at which the tables hold values; a shorter table uses the first ones.
constexpr std::array<double, 11> stuetzstellen{100, 150, 200, 300, 500, 750, 1000, 1500, 2500, 5000, 10000};

constexpr std::array<Kennwertzeile, 8> kennwertzeilen{{{"q_ce", &Kennwerte::q_ce},
                                                       {"q_d", &Kennwerte::q_d},
                                                       {"q_s", &Kennwerte::q_s},
                                                       {"e_g", &Kennwerte::e_g},
                                                       {"q_d_he", &Kennwerte::q_d_he},
                                                       {"q_s_he", &Kennwerte::q_s_he},
                                                       {"q_g_he", &Kennwerte::q_g_he},
                                                       {"f_p", &Kennwerte::f_p}}};

using Reihe_voll = std::array<double, stuetzstellen.size()>;
using Reihe_biomasse = std::array<double, 5>;

constexpr Reihe_voll q_d_70_55{2.9, 2.5, 2.3, 2.1, 2.0, 1.9, 1.8, 1.8, 1.8, 1.7, 1.7};
constexpr Reihe_voll q_d_55_45{2.1, 1.8, 1.6, 1.5, 1.4, 1.3, 1.3, 1.3, 1.2, 1.2, 1.2};
constexpr Reihe_voll q_d_35_28{0.7, 0.6, 0.6, 0.5, 0.5, 0.5, 0.5, 0.4, 0.4, 0.4, 0.4};
constexpr Reihe_voll q_d_he_70_55{1.85, 1.24, 0.95, 0.68, 0.48, 0.38, 0.33, 0.28, 0.24, 0.22, 0.20};
constexpr Reihe_voll q_d_he_55_45{1.98, 1.35, 1.06, 0.78, 0.57, 0.47, 0.42, 0.37, 0.33, 0.30, 0.28};
constexpr Reihe_voll q_d_he_35_28{3.52, 2.40, 1.88, 1.39, 1.01, 0.83, 0.74, 0.65, 0.58, 0.53, 0.50};

constexpr std::array<double, 7> q_s_55_45{0.3, 0.2, 0.2, 0.1, 0.1, 0.1, 0};
constexpr std::array<double, 4> q_s_35_28{0.1, 0.1, 0.1, 0};
constexpr Reihe_voll q_s_he_puffer{0.63, 0.43, 0.34, 0.24, 0.16, 0.12, 0.10, 0.08, 0.07, 0.06, 0.05};

constexpr Reihe_voll q_g_he_kessel{0.79, 0.66, 0.58, 0.48, 0.38, 0.31, 0.27, 0.23, 0.18, 0.13, 0.09};

constexpr Reihe_biomasse e_g_pellets_direkt{1.48, 1.49, 1.49, 1.47, 1.45};
constexpr Reihe_biomasse q_g_he_pellets_direkt{1.96, 1.84, 1.78, 1.71, 1.65};
constexpr Reihe_biomasse e_g_stueckholz{1.75, 1.76, 1.75, 1.74, 1.71};
constexpr Reihe_biomasse q_g_he_stueckholz{0.19, 0.13, 0.10, 0.07, 0.04};
constexpr Reihe_biomasse e_g_pellets_indirekt{1.37, 1.37, 1.38, 1.37, 1.36};
constexpr Reihe_biomasse q_g_he_pellets_indirekt{2.05, 1.92, 1.86, 1.79, 1.73};

/// The value of a table at a floor area: the first value below the first point, linear over the half-open
/// intervals between the points, the last value from the last point on.
float nachschlagen(std::span<const double> werte, double flaeche,
                   std::span<const double> punkte = stuetzstellen) {
    if (flaeche < punkte[0]) return f32(werte[0]);
    for (std::size_t i = 1; i < werte.size(); ++i) {
        if (flaeche < punkte[i])
            return interpolieren(flaeche, punkte[i - 1], punkte[i], werte[i - 1], werte[i]);
    }
    return f32(werte.back());
}

void uebergabe_und_verteilung(Kennwerte& k, int system, bool fussboden, double flaeche) {
    if (ohne_uebergabe(system)) {
        k.q_ce = f32(system == 8 ? 0.7 : 4.4);
        return;
    }
    k.q_ce = f32(1.1);
    const bool waermepumpe = system == 7;
    k.q_d = nachschlagen(fussboden ? q_d_35_28 : waermepumpe ? q_d_55_45 : q_d_70_55, flaeche);
    k.q_d_he = nachschlagen(fussboden ? q_d_he_35_28 : waermepumpe ? q_d_he_55_45 : q_d_he_70_55, flaeche);
}

void speicherung(Kennwerte& k, int system, bool fussboden, double flaeche) {
    if (system != 7) return;
    k.q_s = fussboden ? nachschlagen(q_s_35_28, flaeche) : nachschlagen(q_s_55_45, flaeche);
    k.q_s_he = nachschlagen(q_s_he_puffer, flaeche);
}

/// Expense number of the boilers 1 to 3; with floor heating 1 and 2 depend on the floor area.
float e_g_kessel(int system, bool fussboden, double flaeche) {
    static constexpr std::array<double, 2> punkte_1{150, 200};
    static constexpr std::array<double, 2> werte_1{1.10, 1.09};
    static constexpr std::array<double, 2> punkte_2{300, 500};
    static constexpr std::array<double, 2> werte_2{0.99, 0.98};
    switch (system) {
        case 1:
            return fussboden ? nachschlagen(werte_1, flaeche, punkte_1) : f32(1.08);
        case 2:
            return fussboden ? nachschlagen(werte_2, flaeche, punkte_2) : f32(1.03);
        default:
            return f32(fussboden ? 0.94 : 0.98);
    }
}

void erzeugung(Kennwerte& k, int system, bool fussboden, int energietraeger, double flaeche) {
    switch (system) {
        case 1:
        case 2:
        case 3:
            k.e_g = e_g_kessel(system, fussboden, flaeche);
            k.q_g_he = nachschlagen(q_g_he_kessel, flaeche);
            break;
        case 4:
            k.e_g = nachschlagen(energietraeger == 1 ? e_g_pellets_direkt : e_g_stueckholz, flaeche);
            k.q_g_he = nachschlagen(energietraeger == 1 ? q_g_he_pellets_direkt : q_g_he_stueckholz, flaeche);
            break;
        case 5:
            k.e_g = nachschlagen(e_g_pellets_indirekt, flaeche);
            k.q_g_he = nachschlagen(q_g_he_pellets_indirekt, flaeche);
            break;
        case 6:
            k.e_g = f32(1.01);
            break;
        case 7:
            k.e_g = f32(fussboden ? 0.23 : 0.27);
            k.q_g_he = f32(1.9 * std::pow(flaeche, -0.1));
            break;
        default:
            k.e_g = 1;
            break;
    }
}

double primaerenergiefaktor(int system, int energietraeger) {
    static constexpr std::array<double, energietraeger_je_zeile> fernwaerme{0.7, 0, 1.3, 0.1};
    if (system < 4) return 1.1;
    if (system < 6) return 0.2;
    if (system == 6) return fernwaerme.at(static_cast<std::size_t>(energietraeger - 1));
    return f_p_Strom;
}

}  // namespace

std::span<const Kennwertzeile> kennwertfelder() {
    return kennwertzeilen;
}

float interpolieren(double x, double x0, double x1, double y0, double y1) {
    return f32((y1 - y0) / (x1 - x0) * x + (x1 * y0 - x0 * y1) / (x1 - x0));
}

Kurzname kurzname(int system, int energietraeger) {
    if (system < 4) {
        return energietraeger == 1 ? Kurzname{"Heizöl", "fuel oil"} : Kurzname{"Erdgas", "natural gas"};
    }
    if (system < 6) return {"Holz", "wood"};
    if (system == 6) return {"Nah-/Fernwärme", "district heat"};
    return strom_name;
}

Kennwerte katalog_werte(int system, int uebergabe, int energietraeger, float f_nutz) {
    kombination_pruefen(system, uebergabe, energietraeger);
    const bool fussboden = uebergabe == 2;
    const double flaeche = f_nutz;
    Kennwerte k;
    uebergabe_und_verteilung(k, system, fussboden, flaeche);
    speicherung(k, system, fussboden, flaeche);
    erzeugung(k, system, fussboden, energietraeger, flaeche);
    k.f_p = f32(primaerenergiefaktor(system, energietraeger));
    k.name = kurzname(system, energietraeger);
    return k;
}

}  // namespace velmaris
