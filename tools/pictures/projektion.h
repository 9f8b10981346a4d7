#pragma once

#include "climate/stationslisten.h"
#include "tools/pictures/raster.h"

namespace velmaris::bilder {

/// Germany on its picture of 230 x 308 pixels: degrees east and north to pixels. The meridians lean a little,
/// so that the pixels by which the regions are told apart lie in their regions.
[[nodiscard]] constexpr Punkt deutschlandkarte(Punkt ort) {
    return {-284 + 23.5 * ort.x + 3 * ort.y, 2149 - 39 * ort.y};
}

/// Europe on its picture of 234 x 201 pixels: degrees east and north to the place of a station's dot. A dot
/// at (X, Y) sits at the centre of pixel (X, Y).
[[nodiscard]] constexpr Punkt europakarte(Punkt ort) {
    const Kartenpunkt punkt = europapunkt(ort.y, ort.x);
    return {punkt.x, punkt.y};
}

/// The world on its picture of 650 x 246 pixels: degrees east and north to the place of a station's dot.
[[nodiscard]] constexpr Punkt weltkarte(Punkt ort) {
    const Kartenpunkt punkt = weltpunkt(ort.y, ort.x);
    return {punkt.x, punkt.y};
}

}  // namespace velmaris::bilder
