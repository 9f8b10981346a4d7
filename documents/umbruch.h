#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// Width of a UTF-8 text in some unit.
using Textmesser = std::function<double(std::string_view)>;

/// Breaks a text into lines that are narrower than `breite`, in the unit of the measure. Lines end at blanks
/// and hyphens; a piece without any stays whole however wide it is. A word that the text splits by a hyphen
/// and a blank is healed where both halves share a line, except in front of "sowie" and "und".
[[nodiscard]] std::vector<std::string> schreibeZeile(std::string_view text, double breite,
                                                     const Textmesser& messen);

/// The same for the printed pages, which look for "sowie" and "und" at the start of the line that ends in the
/// hyphen.
[[nodiscard]] std::vector<std::string> zeilen_umbrechen(std::string_view text, double breite,
                                                        const Textmesser& messen);

}  // namespace velmaris
