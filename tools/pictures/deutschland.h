#pragma once

#include "tools/pictures/umrisse.h"

namespace velmaris::bilder {

/// The map of Germany with its twelve climate regions, 230 x 308 pixels times `feinheit`. `umriss` and
/// `regionen` are in degrees; `hervorgehoben` is the region 1..12 to be brought out, or 0.
///
/// Every region has a flat colour of its own, by which the pointer finds it: no other pixel of the picture
/// has one of the twelve colours. Border lines are thin enough to leave the 3 x 3 pixels around each
/// region's reference pixel alone.
[[nodiscard]] Bild deutschland_bild(const std::array<Flaeche, regionen_anzahl>& regionen,
                                    const Flaeche& umriss, int hervorgehoben, int feinheit);

}  // namespace velmaris::bilder
