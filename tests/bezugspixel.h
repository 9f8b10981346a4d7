#pragma once

#include <array>

namespace velmaris::test {

/// The pixels of the map of Germany by which the program tells the regions 1..12 apart, x and y.
inline constexpr std::array<std::array<int, 2>, 12> bezugspixel{{{110, 20},
                                                                 {140, 90},
                                                                 {35, 135},
                                                                 {90, 140},
                                                                 {90, 220},
                                                                 {70, 200},
                                                                 {45, 260},
                                                                 {90, 270},
                                                                 {60, 250},
                                                                 {70, 270},
                                                                 {25, 175},
                                                                 {75, 285}}};

}  // namespace velmaris::test
