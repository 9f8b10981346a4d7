#pragma once

#include "project/sitzung.h"
#include "toolkit/felder.h"

#include <functional>
#include <string>

namespace velmaris {

/// Asks for a file, proposed by the names of project and picture, and writes the picture to it: as SVG or PNG
/// by the ending of the name, as PNG only where it lies over an image file. `png` gives the bytes of a PNG
/// file, empty if there is no memory for them. Nothing happens on cancel; a file that cannot be written is
/// a Dateifehler, and an old one stays whole.
void bild_speichern(Sitzung& sitzung, const Bildfeld& bild, const std::function<std::string()>& png);

}  // namespace velmaris
