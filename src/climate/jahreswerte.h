#pragma once

#include "project/c_glob.h"

namespace velmaris {

/// The temperatures of the year at the station in force, degC.
struct Jahreswerte {
    int waermster_monat = 1;   ///< 1..12, the earlier one of equal months
    int kaeltester_monat = 1;  ///< likewise
    float mittel = 0;          ///< year mean from the month means
    float Ta_max = 0;          ///< warmest hour
    float Ta_min = 0;          ///< coldest hour
};

/// The year's values from `Monat().Tmittel` and the hourly temperatures.
[[nodiscard]] Jahreswerte jahreswerte(const Projekt& p);

}  // namespace velmaris
