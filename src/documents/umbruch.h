#pragma once

#include "toolkit/kuerzen.h"

#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// Breaks a text into lines that are narrower than `breite`, in the unit of the measure. Lines end at blanks
/// and hyphens; a piece without any stays whole however wide it is. A word that the text splits by a hyphen
/// and a blank is healed where both halves share a line, except in front of "sowie", "und" and "oder".
[[nodiscard]] std::vector<std::string> schreibeZeile(std::string_view text, double breite,
                                                     const Textmesser& messen);

/// The same for the printed pages, which heal no word either on a line that begins with one of these.
[[nodiscard]] std::vector<std::string> zeilen_umbrechen(std::string_view text, double breite,
                                                        const Textmesser& messen);

}  // namespace velmaris
