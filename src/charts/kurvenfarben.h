#pragma once

#include "toolkit/zeichenflaeche.h"

#include <array>

namespace velmaris {

/// Colours of curves beside each other: the first is black, the others differ in hue and lightness,
/// neighbours most.
inline constexpr std::array<Farbe, 12> kurvenfarben{{{0, 0, 0},
                                                     {213, 94, 0},
                                                     {0, 114, 178},
                                                     {0, 158, 115},
                                                     {204, 121, 167},
                                                     {230, 159, 0},
                                                     {86, 180, 233},
                                                     {120, 60, 20},
                                                     {110, 80, 180},
                                                     {150, 150, 0},
                                                     {90, 90, 90},
                                                     {240, 60, 60}}};

}  // namespace velmaris
