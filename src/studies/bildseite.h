#pragma once

#include "studies/studienbild.h"

#include <string>
#include <string_view>

namespace velmaris {

/// The pictures of a study as one HTML page that needs nothing else: over one input the curves of the
/// results, those of one unit on one axis; over two a raster of each result with contour lines; below each
/// its numbers, where they are not too many. `projekt` names what was varied.
[[nodiscard]] std::string bildseite(const Studienbild& bild, const std::string& projekt,
                                    std::string_view sprache);

}  // namespace velmaris
