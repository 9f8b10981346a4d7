#pragma once

#include "project/c_glob.h"
#include "toolkit/zeichenflaeche.h"

namespace velmaris {

/// Usable and all gains of each month, and of the year; the surfaces are those of month and year charts.
void NutzungsgradMonatZeichnen(const Projekt& p, Zeichenflaeche& bild);
void NutzungsgradJahrZeichnen(const Projekt& p, Zeichenflaeche& bild);

}  // namespace velmaris
