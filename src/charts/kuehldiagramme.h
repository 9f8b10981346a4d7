#pragma once

#include "project/c_glob.h"
#include "toolkit/wertetafel.h"
#include "toolkit/zeichenflaeche.h"

namespace velmaris {

/// The three pairs of charts, each of the months and of the year; the surfaces are those of month and
/// year charts. The numbers of each chart stand behind its drawing.
void StundenProTagMonatZeichnen(const Projekt& p, Zeichenflaeche& bild);
[[nodiscard]] Wertetafel StundenProTagMonatWerte(const Projekt& p);
void StundenProTagJahrZeichnen(const Projekt& p, Zeichenflaeche& bild);
[[nodiscard]] Wertetafel StundenProTagJahrWerte(const Projekt& p);
void KuehlBedarfMonatZeichnen(const Projekt& p, Zeichenflaeche& bild);
[[nodiscard]] Wertetafel KuehlBedarfMonatWerte(const Projekt& p);
void KuehlBedarfJahrZeichnen(const Projekt& p, Zeichenflaeche& bild);
[[nodiscard]] Wertetafel KuehlBedarfJahrWerte(const Projekt& p);
void KuehlGradStundenMonatZeichnen(const Projekt& p, Zeichenflaeche& bild);
[[nodiscard]] Wertetafel KuehlGradStundenMonatWerte(const Projekt& p);
void KuehlGradStundenJahrZeichnen(const Projekt& p, Zeichenflaeche& bild);
[[nodiscard]] Wertetafel KuehlGradStundenJahrWerte(const Projekt& p);

}  // namespace velmaris
