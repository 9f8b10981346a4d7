#pragma once

#include "toolkit/zeichenflaeche.h"

#include <span>

namespace velmaris {

/// A place on a surface, in pixels, or in the units of a chart's axes.
struct Ort {
    double x = 0;
    double y = 0;

    friend bool operator==(const Ort&, const Ort&) = default;
};

/// Joins places by straight pieces of a width in pixels: smooth between the pixels where the surface fills
/// outlines, else from pixel to pixel.
void linienzug_zeichnen(Zeichenflaeche& bild, std::span<const Ort> orte, Farbe farbe, double dicke);

}  // namespace velmaris
