#pragma once

#include "project/c_glob.h"
#include "toolkit/zeichenflaeche.h"

namespace velmaris {

/// Gains per usable floor, kWh/m2 of a month or of the year.
struct Gewinne {
    double solar_genutzt = 0;
    double solar = 0;
    double intern_genutzt = 0;
    double intern = 0;
};

/// The gains of month m (1..12); those of the year are the sums of the months.
[[nodiscard]] Gewinne gewinne(const Projekt& p, int m);
[[nodiscard]] Gewinne gewinne_im_jahr(const Projekt& p);

/// Usable and all gains of each month, and of the year; the surfaces are those of month and year charts.
void NutzungsgradMonatZeichnen(const Projekt& p, Zeichenflaeche& bild);
void NutzungsgradJahrZeichnen(const Projekt& p, Zeichenflaeche& bild);

}  // namespace velmaris
