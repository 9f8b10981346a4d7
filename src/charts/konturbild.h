#pragma once

#include "charts/achsenteilung.h"
#include "charts/bildachse.h"
#include "charts/konturlinien.h"

#include <functional>
#include <vector>

namespace velmaris {

/// Where contour lines lie on a surface.
struct Konturlage {
    std::function<Ort(const Ort&)> pixel;  ///< of a place in the units of the axes
    std::vector<Ort> belegt;               ///< pixels at which no number may stand
};

/// Draws the contour lines of the round values of a division that lie within the frame, black with a white
/// edge, with the value in the line where there is room for it.
void konturen_zeichnen(Zeichenflaeche& bild, const Wertegitter& gitter, const Achsenteilung& teilung,
                       const Bildrahmen& rahmen, const Konturlage& lage);

}  // namespace velmaris
