#pragma once

#include "project/c_glob.h"

namespace velmaris {

/// Key figures of the building for the climate plane, not rounded to 32 bits.
struct Gebaeudekennwerte {
    double tau = 0;      ///< time constant, h
    double Vspez = 0;    ///< ventilation, W/K
    double Tspez = 0;    ///< transmission with gables and roof planes, without temperature corrections, W/K
    double Umittel = 0;  ///< mean U value of the simple envelope (no gables, ground area twice), W/(m2 K)
    double TVspez = 0;   ///< transmission of the simple envelope and ventilation, W/K
};

/// Needs the areas and `tau`.
[[nodiscard]] Gebaeudekennwerte gebaeudekennwerte(const Projekt& p);

}  // namespace velmaris
