#pragma once

#include "project/c_glob.h"

namespace velmaris {

/// Hourly temperatures and loads of the year by a thermal model of one node: free-running and controlled
/// temperature, heating and cooling energy of each hour, cooling by cause, degree hours and hours by
/// temperature band of each month, peak loads of the year. The year is run from a warm-up December on; a peak
/// reached in the warm-up stays. Reads `Wetter` and the areas; writes `Cwirk` and `tau` too and makes the
/// incidence factors of the planes valid. The step of an hour is the exact solution of the first order
/// equation. Laufzeitfehler of `zeitkonstante_berechnen`.
void stundensimulation(Projekt& p);

}  // namespace velmaris
