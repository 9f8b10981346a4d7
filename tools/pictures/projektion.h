#pragma once

#include "climate/karten.h"
#include "tools/pictures/raster.h"

namespace velmaris::bilder {

/// Degrees east and north to pixels of the maps of Germany, Europe and the world.
[[nodiscard]] constexpr Punkt deutschlandkarte(Punkt ort) {
    const Kartenpunkt punkt = deutschlandpunkt(ort.y, ort.x);
    return {punkt.x, punkt.y};
}

[[nodiscard]] constexpr Punkt europakarte(Punkt ort) {
    const Kartenpunkt punkt = europapunkt(ort.y, ort.x);
    return {punkt.x, punkt.y};
}

[[nodiscard]] constexpr Punkt weltkarte(Punkt ort) {
    const Kartenpunkt punkt = weltpunkt(ort.y, ort.x);
    return {punkt.x, punkt.y};
}

}  // namespace velmaris::bilder
