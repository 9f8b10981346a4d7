#pragma once

#include "project/c_glob.h"

namespace velmaris {

/// Specific heat capacity of a construction, J/(m2 K): row 0 heavy, 1 medium, 2 light; `sonst` for
/// any other row.
[[nodiscard]] double waermekapazitaet(int zeile, double sonst);

/// Reduces the building to its effective heat capacity `Cwirk` (J/K) and its time constant `tau` (s) from the
/// areas of the record. The interior is imagined as square rooms of 10 m2, 2.6 m high.
///
///   C = 1290 V + ca Aa + ci (int(AN / 10) 4 sqrt(10) 2.6 - AF + 2 n AG + An)    tau = C / (HT + HV)
/// C `Cwirk`, J/K; 1290 J/(m3 K) heat capacity of the air; V its volume, m3; ca, ci capacity of outer and
/// inner construction, J/(m2 K); areas in m2: Aa net outer walls, AN usable floor, AF four sides of the box,
/// AG ground, An sides towards heated neighbours; n floors; HT simple envelope, HV ventilation, W/K.
/// Source: tau = C / H of EN 832:1998 and EN ISO 13790; the storage mass by floor area is a rule of thumb.
/// Laufzeitfehler if the capacity comes out negative (an interior too small for its outer walls) or if the
/// building loses no heat at all.
void zeitkonstante_berechnen(Projekt& p);

/// The heat capacity per volume of the building, Wh/(m3 K).
[[nodiscard]] double kapazitaet_je_volumen(const Projekt& p);

}  // namespace velmaris
