#pragma once

#include "toolkit/zeichenflaeche.h"

#include <string_view>

namespace velmaris {

/// Height of the letters' em square in pixels, 96 to the inch.
[[nodiscard]] double schriftpixel(const Schrift& schrift);

/// Width in pixels of a UTF-8 text in a sans-serif face, regular or bold, and for the name "Times New Roman"
/// in a regular serif one; a character outside windows-1252 counts as "?". Source: the advance widths of the
/// fonts Liberation Sans Regular and Bold and Liberation Serif Regular, which are those of Arial and Times
/// New Roman and, but for a few signs, of the published font metrics of Helvetica and Times.
[[nodiscard]] double schriftbreite(std::string_view utf8, const Schrift& schrift);

/// Height of a line and of the part of it above the baseline, whole pixels.
[[nodiscard]] double schrifthoehe(const Schrift& schrift);
[[nodiscard]] double oberlaenge(const Schrift& schrift);

}  // namespace velmaris
