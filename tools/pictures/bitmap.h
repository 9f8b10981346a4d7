#pragma once

#include "tools/pictures/bild.h"

#include <string>

namespace velmaris::bilder {

/// The bytes of a Windows bitmap: 24 bits, not compressed, rows from the bottom up.
[[nodiscard]] std::string bitmap(const Bild& bild);

/// The bytes of a Windows bitmap of at most 256 colours, its rows packed as runs of a colour (RLE8). Of a
/// picture with more colours the rarer ones give way to the nearest of the others.
[[nodiscard]] std::string gepackte_bitmap(const Bild& bild);

}  // namespace velmaris::bilder
