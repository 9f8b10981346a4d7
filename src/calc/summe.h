#pragma once

#include "toolkit/zahlen.h"

namespace velmaris {

/// Adds to a stored 32-bit sum, which is rounded at each step.
inline void dazu(float& summe, double wert) {
    summe = f32(summe + wert);
}

}  // namespace velmaris
