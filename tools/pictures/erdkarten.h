#pragma once

#include "tools/pictures/raster.h"

namespace velmaris::bilder {

/// The map of Europe, 234 x 201 pixels times `feinheit`, with land, coasts and the borders between countries.
/// `laender` holds the rings of the countries in degrees; neighbours share the points of their border.
[[nodiscard]] Bild europa_bild(const Flaeche& laender, int feinheit);

/// The map of the world, 650 x 246 pixels times `massstab` and `feinheit`, with land, coasts and the borders
/// between countries. `land` is in degrees, cut at the meridian of 180 degrees; the margins beyond it go on
/// with the land from the other side. `grenzen` are in degrees too.
[[nodiscard]] Bild welt_bild(const Flaeche& land, const std::vector<Strecke>& grenzen, double massstab,
                             int feinheit);

}  // namespace velmaris::bilder
