#pragma once

#include "tools/pictures/bild.h"

namespace velmaris::bilder {

/// What closes the house at the top, numbered like the pictures.
enum class Dachform { flach = 0, first_nord_sued = 1, first_ost_west = 2 };

/// The house seen from the south-west and above, 190 x 176 pixels times `feinheit`: the south facade lies
/// flat to the right, the west facade recedes to the upper left. The background is 240, 240, 240, like the
/// plane's.
///
/// All faces are light, so that dark captions can be read on them. Their places (left and top, pixels at
/// `feinheit` 1):
///   west facade about 10, 102; south facade about 72, 120 (flat roof: 72, 105);
///   ridge north-south: west slope in two lines 26, 48, its area 24, 76; south gable 88, 72, its area 72, 88;
///   ridge east-west: west gable 4, 56, its area -10, 70; south slope 48, 68, its area 80, 84.
/// The areas of both gables stand centred in a field of 64 pixels.
[[nodiscard]] Bild haus_bild(Dachform dach, int feinheit);

}  // namespace velmaris::bilder
