#pragma once

#include "tools/pictures/bild.h"

namespace velmaris::bilder {

/// The pictures for the choice of language, 96 x 64 pixels: bands of black, red and gold for German, crosses
/// and diagonals on blue for English (simplified).
[[nodiscard]] Bild sprachbild_deutsch();
[[nodiscard]] Bild sprachbild_englisch();

/// The picture of the program, 256 x 256 pixels: a house in the sun.
[[nodiscard]] Bild programmbild();

}  // namespace velmaris::bilder
