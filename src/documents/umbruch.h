#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// Stands behind a text that was cut off.
inline constexpr std::string_view auslassung = "…";

/// Width of a UTF-8 text in some unit.
using Textmesser = std::function<double(std::string_view)>;

/// Breaks a text into lines that are narrower than `breite`, in the unit of the measure. Lines end at blanks
/// and hyphens; a piece without any stays whole however wide it is. A word that the text splits by a hyphen
/// and a blank is healed where both halves share a line, except in front of "sowie", "und" and "oder".
[[nodiscard]] std::vector<std::string> schreibeZeile(std::string_view text, double breite,
                                                     const Textmesser& messen);

/// The same for the printed pages, which heal no word either on a line that begins with one of these.
[[nodiscard]] std::vector<std::string> zeilen_umbrechen(std::string_view text, double breite,
                                                        const Textmesser& messen);

/// The longest start of a UTF-8 text that is no wider than `breite` with dots behind it, with these dots; a
/// text that fits stays as it is, and at least the dots are left. The text itself is measured once, else only
/// starts of it up to twice as long as the result.
[[nodiscard]] std::string kuerzen(std::string_view text, double breite, const Textmesser& messen);

}  // namespace velmaris
