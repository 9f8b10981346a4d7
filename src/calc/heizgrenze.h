#pragma once

#include "project/c_glob.h"

namespace velmaris {

/// How long the building must be heated at its station.
struct Heizgrenze {
    double Temperatur = 0;    ///< outdoor temperature at which internal gains cover the losses, degC
    int Heiztage = 0;         ///< days whose mean lies below it
    double Heizgradtage = 0;  ///< sum of 20 degC minus the mean over the days colder than 12 degC, Kd
};

/// Heating limit from the losses of the simple envelope with the reductions of roof space and floor; solar
/// gains do not enter. Degree days 20/12 as in SIA 381/3 (1982). Without any losses there is no such limit:
/// a Laufzeitfehler.
[[nodiscard]] Heizgrenze heizgrenze(const Projekt& p);

}  // namespace velmaris
