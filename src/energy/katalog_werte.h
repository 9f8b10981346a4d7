#pragma once

#include "toolkit/wort.h"

#include <span>
#include <string_view>

namespace velmaris {

/// Primary energy factor of electricity as auxiliary energy.
inline constexpr double f_p_Strom = 3.0;

/// The short name of a carrier in both languages; the German one is the key of the logic in either language.
struct Kurzname {
    std::string_view Traegername;
    std::string_view Traegername_e;

    /// English for "e", German for anything else.
    [[nodiscard]] std::string_view in(std::string_view sprache) const {
        return Wort{Traegername, Traegername_e}.in(sprache);
    }
    [[nodiscard]] bool elektrisch() const { return Traegername == "Strom"; }
};

/// The name of electricity, as a carrier and as auxiliary energy.
inline constexpr Kurzname strom_name{"Strom", "electricity"};

/// Characteristic values of a heat supply; kWh per m2 of usable floor and year where nothing else is said.
struct Kennwerte {
    float q_ce = 0;    ///< loss of heat transfer
    float q_d = 0;     ///< loss of distribution
    float q_s = 0;     ///< loss of storage
    float e_g = 0;     ///< expense number of heat generation, no unit
    float q_d_he = 0;  ///< auxiliary electricity of distribution
    float q_s_he = 0;  ///< auxiliary electricity of storage
    float q_g_he = 0;  ///< auxiliary electricity of generation
    float f_p = 0;     ///< primary energy factor of the carrier, no unit
    Kurzname name;
};

/// One characteristic value: its name and its place.
struct Kennwertzeile {
    std::string_view name;
    float Kennwerte::*zeiger;
};

/// All characteristic values that are numbers, in their order.
[[nodiscard]] std::span<const Kennwertzeile> kennwertfelder();

/// Linear interpolation between (x0, y0) and (x1, y1) at x, in double, rounded to float.
[[nodiscard]] float interpolieren(double x, double x0, double x1, double y0, double y1);

/// Short carrier name of `Heizsystem` 1..9 with `Energietraeger` 1..4.
[[nodiscard]] Kurzname kurzname(int system, int energietraeger);

/// Characteristic values of a heat supply for a usable floor of `f_nutz` m2. Errors as in
/// `kombination_pruefen`.
///
///   qE = (qh + q_ce + q_d + q_s) e_g    qHE = q_d_he + q_s_he + q_g_he    qP = f_p qE
/// qE end energy of the carrier, qHE auxiliary electricity, qP primary energy, qh heat demand: all of them
/// and the losses q kWh/(m2 a); e_g, f_p no unit. A value between two floor areas of its table lies on the
/// straight line between theirs; the heat pump has q_g_he = 1.9 AN^-0.1 with AN = `f_nutz`, m2.
/// Source: the tables of standard equipment and the primary energy factors of DIN V 4701-10:2003, annex C.
[[nodiscard]] Kennwerte katalog_werte(int system, int uebergabe, int energietraeger, float f_nutz);

}  // namespace velmaris
