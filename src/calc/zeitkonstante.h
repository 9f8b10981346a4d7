#pragma once

#include "project/c_glob.h"

namespace velmaris {

/// Specific heat capacity of a construction, J/(m2 K): row 0 heavy, 1 medium, 2 light; `sonst` for
/// any other row.
[[nodiscard]] double waermekapazitaet(int zeile, double sonst);

/// Reduces the building to its effective heat capacity `Cwirk` (J/K) and its time constant `tau` (s) from the
/// areas of the record. The interior is imagined as square rooms of 10 m2, 2.6 m high.
/// Laufzeitfehler if the capacity comes out negative (an interior too small for its outer walls) or if the
/// building loses no heat at all.
void zeitkonstante_berechnen(Projekt& p);

/// The heat capacity per volume of the building, Wh/(m3 K).
[[nodiscard]] double kapazitaet_je_volumen(const Projekt& p);

}  // namespace velmaris
