#pragma once

#include "project/c_glob.h"
#include "toolkit/wertetafel.h"
#include "toolkit/zeichenflaeche.h"

namespace velmaris {

/// Draws the main carrier on the surface `Picture2`: its short name, its amount per year as
/// volume, mass or energy, and a pictogram whose size follows the end energy per floor area. Runs on the
/// results of `energ_refresh`.
void Energietraeger_zeichnen(Zeichenflaeche& bild, const Projekt& p);
[[nodiscard]] Wertetafel Energietraeger_werte(const Projekt& p);

/// Draws the auxiliary electricity in the same way on `Picture3`; blank with an electric carrier.
void Hilfsstrom_zeichnen(Zeichenflaeche& bild, const Projekt& p);
[[nodiscard]] Wertetafel Hilfsstrom_werte(const Projekt& p);

}  // namespace velmaris
