#pragma once

#include "project/c_glob.h"
#include "toolkit/wertetafel.h"
#include "toolkit/zeichenflaeche.h"

namespace velmaris {

/// Usable and all gains of each month, and of the year; the surfaces are those of month and year charts. The
/// numbers of each chart stand behind its drawing.
void NutzungsgradMonatZeichnen(const Projekt& p, Zeichenflaeche& bild);
[[nodiscard]] Wertetafel NutzungsgradMonatWerte(const Projekt& p);
void NutzungsgradJahrZeichnen(const Projekt& p, Zeichenflaeche& bild);
[[nodiscard]] Wertetafel NutzungsgradJahrWerte(const Projekt& p);

}  // namespace velmaris
