#pragma once

#include "project/c_glob.h"
#include "toolkit/zeichenflaeche.h"

namespace velmaris {

/// The three pairs of charts, each of the months and of the year; the surfaces are those of month and
/// year charts.
void StundenProTagMonatZeichnen(const Projekt& p, Zeichenflaeche& bild);
void StundenProTagJahrZeichnen(const Projekt& p, Zeichenflaeche& bild);
void KuehlBedarfMonatZeichnen(const Projekt& p, Zeichenflaeche& bild);
void KuehlBedarfJahrZeichnen(const Projekt& p, Zeichenflaeche& bild);
void KuehlGradStundenMonatZeichnen(const Projekt& p, Zeichenflaeche& bild);
void KuehlGradStundenJahrZeichnen(const Projekt& p, Zeichenflaeche& bild);

}  // namespace velmaris
