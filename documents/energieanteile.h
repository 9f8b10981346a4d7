#pragma once

#include "project/c_glob.h"

namespace velmaris {

/// Primary energy factor of the electricity for cooling.
inline constexpr double f_p_Kuehlstrom = 3.0;

/// Share of month m (1..12) in the year's heat demand; 0 in a building that needs no heat.
[[nodiscard]] inline double heizanteil(const Projekt& p, int m) {
    return p.qhs_sum == 0 ? 0 : double{p.Monat(m).Qh} / p.f_nutz / p.qhs_sum;
}

}  // namespace velmaris
