#pragma once

#include "climate/regionen.h"

#include <array>

namespace velmaris {

/// A place on a map picture in pixels from its top left.
struct Kartenpunkt {
    double x = 0;
    double y = 0;

    friend constexpr bool operator==(const Kartenpunkt&, const Kartenpunkt&) = default;
};

/// Width and height of a map picture in pixels.
struct Kartengroesse {
    int breite = 0;
    int hoehe = 0;
};

inline constexpr Kartengroesse deutschlandgroesse{230, 308};
inline constexpr Kartengroesse europagroesse{234, 201};
inline constexpr Kartengroesse weltgroesse{650, 246};

/// The enlarged map of the world against the plane's.
inline constexpr double weltvergroesserung = 1.5;

/// The pixels of the map of Germany whose colours tell the regions 1 to 12 apart.
inline constexpr std::array<Kartenpunkt, klimaregionen> bezugspunkte{{{110, 20},
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

/// The place on the map of Germany of a latitude (north positive) and a longitude (east positive) in degrees.
/// The meridians lean a little, so that the pixels by which the regions are told apart lie in their regions.
[[nodiscard]] constexpr Kartenpunkt deutschlandpunkt(double breite, double laenge) {
    return {-284 + 23.5 * laenge + 3 * breite, 2149 - 39 * breite};
}

/// The same on the map of Europe, as a station's dot: one at (x, y) sits at the centre of pixel (x, y). The
/// meridians lean outward towards the south, as on the picture.
[[nodiscard]] constexpr Kartenpunkt europapunkt(double breite, double laenge) {
    const double y = (132.0 / 30) * (74.104 - breite);
    const double gerade = (laenge + 25.203) * (92.0 / 30);
    return {gerade + (y / 240) * (gerade * (12.0 / 31) - 1193.0 / 31), y};
}

/// The same on the map of the world, whose meridians and parallels are straight.
[[nodiscard]] constexpr Kartenpunkt weltpunkt(double breite, double laenge) {
    return {laenge * 1.677777778 + 325, 123 - 1.677777778 * breite};
}

}  // namespace velmaris
