#pragma once

#include "tools/pictures/bild.h"

namespace velmaris::bilder {

/// The pictures for the choice of language, 96 x 64 pixels times `feinheit`: bands of black, red and gold for
/// German, crosses and diagonals on blue for English (simplified).
[[nodiscard]] Bild sprachbild_deutsch(int feinheit);
[[nodiscard]] Bild sprachbild_englisch(int feinheit);

/// The picture of the program, 256 x 256 pixels times `feinheit`: a house in the sun.
[[nodiscard]] Bild programmbild(int feinheit);

/// The same for the last page of the Windows installer, 164 x 314 pixels.
[[nodiscard]] Bild einrichterbild();

}  // namespace velmaris::bilder
