#pragma once

#include "project/c_glob.h"
#include "toolkit/zeichenflaeche.h"

namespace velmaris {

/// Mean hours of overheating per day, in month m (1..12) and over the year.
[[nodiscard]] double tagesstunden(const Projekt& p, int m);
[[nodiscard]] double tagesstunden_im_jahr(const Projekt& p);

/// Cooling demand of month m (1..12), kWh per m2 of usable floor; that of the year is `jahreskuehlbedarf`.
[[nodiscard]] double monatskuehlbedarf(const Projekt& p, int m);

/// Cooling degree hours of the year, Kh.
[[nodiscard]] double kuehlgradstunden_im_jahr(const Projekt& p);

/// The three pairs of charts, each of the months and of the year; the surfaces are those of month and
/// year charts.
void StundenProTagMonatZeichnen(const Projekt& p, Zeichenflaeche& bild);
void StundenProTagJahrZeichnen(const Projekt& p, Zeichenflaeche& bild);
void KuehlBedarfMonatZeichnen(const Projekt& p, Zeichenflaeche& bild);
void KuehlBedarfJahrZeichnen(const Projekt& p, Zeichenflaeche& bild);
void KuehlGradStundenMonatZeichnen(const Projekt& p, Zeichenflaeche& bild);
void KuehlGradStundenJahrZeichnen(const Projekt& p, Zeichenflaeche& bild);

}  // namespace velmaris
