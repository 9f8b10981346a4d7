#pragma once

#include "project/c_glob.h"
#include "toolkit/wertetafel.h"
#include "toolkit/zeichenflaeche.h"

namespace velmaris {

/// Size of a facade bar's surface, pixels.
inline constexpr double fassadenflaeche_breite = 10;
inline constexpr double fassadenflaeche_hoehe = 51;

/// Gains or losses of the windows of one facade, kWh, as one bar.
struct Fassadenbalken {
    float Projekt::*wert;
    Farbe farbe;
};

/// One of the eight facade bars. All share one scale, the largest of the eight sums (at least 1), so that
/// they compare.
void FassadenbalkenZeichnen(const Projekt& p, const Fassadenbalken& balken, Zeichenflaeche& bild);

/// The numbers of all eight; below, those of each chart stand behind its drawing.
[[nodiscard]] Wertetafel FassadenbalkenWerte(const Projekt& p);

/// Heating plane: losses and supply of the year, kWh/(m2 a).
void JahrBilanzZeichnen(const Projekt& p, Zeichenflaeche& bild);
[[nodiscard]] Wertetafel JahrBilanzWerte(const Projekt& p);

/// Heating plane: losses and supply of each month, kWh/(m2 month).
void HeizbilanzZeichnen(const Projekt& p, Zeichenflaeche& bild);
[[nodiscard]] Wertetafel HeizbilanzWerte(const Projekt& p);

/// Overview plane: heat and cooling demand of each month, kWh/(m2 month), and of the year, kWh/(m2 a).
void MonatsbilanzZeichnen(const Projekt& p, Zeichenflaeche& bild);
[[nodiscard]] Wertetafel MonatsbilanzWerte(const Projekt& p);
void JahresbedarfZeichnen(const Projekt& p, Zeichenflaeche& bild);
[[nodiscard]] Wertetafel JahresbedarfWerte(const Projekt& p);

/// Overview plane: hours of heating (at the bottom), zero energy and cooling (on top) of each month, and of
/// the year.
void UeberGrafikZeichnen(const Projekt& p, Zeichenflaeche& bild);
[[nodiscard]] Wertetafel UeberGrafikWerte(const Projekt& p);
void UeberJahrZeichnen(const Projekt& p, Zeichenflaeche& bild);
[[nodiscard]] Wertetafel UeberJahrWerte(const Projekt& p);

// Three of the charts at a scale that several projects share: that of the largest of their values.

void JahrBilanzVergleichen(const Projekt& p, Zeichenflaeche& bild, double groesster);
void MonatsbilanzVergleichen(const Projekt& p, Zeichenflaeche& bild, double groesster);
void JahresbedarfVergleichen(const Projekt& p, Zeichenflaeche& bild, double groesster);

/// The value that settles the scale of each, in its unit.
[[nodiscard]] double groesster_jahresverlust(const Projekt& p);
[[nodiscard]] double groesster_monatsbedarf(const Projekt& p);
[[nodiscard]] double groesster_jahresbedarf(const Projekt& p);

}  // namespace velmaris
