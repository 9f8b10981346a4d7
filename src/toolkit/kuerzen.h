#pragma once

#include "toolkit/zeichenflaeche.h"

#include <functional>
#include <string>
#include <string_view>

namespace velmaris {

/// Stands behind a text that was cut off.
inline constexpr std::string_view auslassung = "…";

/// Width of a UTF-8 text in some unit.
using Textmesser = std::function<double(std::string_view)>;

/// The longest start of a UTF-8 text that is no wider than `breite` with dots behind it, with these dots; a
/// text that fits stays as it is, and at least the dots are left. The text itself is measured once, else only
/// starts of it up to twice as long as the result.
[[nodiscard]] std::string kuerzen(std::string_view text, double breite, const Textmesser& messen);

/// The same in the font in force on a surface, pixels.
[[nodiscard]] std::string kuerzen(std::string_view text, double breite, const Zeichenflaeche& bild);

}  // namespace velmaris
