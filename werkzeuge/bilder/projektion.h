#pragma once

#include "werkzeuge/bilder/raster.h"

namespace velmaris::bilder {

/// Germany on its picture of 230 x 308 pixels: degrees east and north to pixels. The meridians lean a little,
/// so that the pixels by which the regions are told apart lie in their regions.
[[nodiscard]] constexpr Punkt deutschlandkarte(Punkt ort) {
    return {-284 + 23.5 * ort.x + 3 * ort.y, 2149 - 39 * ort.y};
}

/// Europe on its picture of 234 x 201 pixels: degrees east and north to the place of a station's dot, with
/// the meridians spread towards the south. A dot at (X, Y) sits at the centre of pixel (X, Y).
[[nodiscard]] constexpr Punkt europakarte(Punkt ort) {
    const double Y = (132.0 / 30) * (74.104 - ort.y);
    const double gerade = (ort.x + 25.203) * (92.0 / 30);
    return {gerade + (Y / 240) * (gerade * (12.0 / 31) - 1193.0 / 31), Y};
}

/// The world on its picture of 650 x 246 pixels: degrees east and north to the place of a station's dot.
[[nodiscard]] constexpr Punkt weltkarte(Punkt ort) {
    return {ort.x * 1.677777778 + 325, 123 - 1.677777778 * ort.y};
}

}  // namespace velmaris::bilder
