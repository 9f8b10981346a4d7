#pragma once

#include "planes/Haupt.h"

#include <filesystem>

namespace velmaris {

/// Writes every chart of a calculated project as an SVG file "PLANE_SURFACE.svg" into a folder, which is made
/// if it is missing. The charts come from the same routines as on the screen. A failure is a Dateifehler.
void diagramme_schreiben(const Haupt& haupt, const std::filesystem::path& ordner);

}  // namespace velmaris
