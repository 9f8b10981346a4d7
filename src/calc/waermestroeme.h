#pragma once

#include "project/c_glob.h"

namespace velmaris {

/// Heat flows of the building per kelvin (W/K) and its constant power (W), as the month balance, the hourly
/// simulation and the figures of the climate plane share them. Nothing here is rounded to 32 bits.
///
///   HT = sum F (U + dU) A + sum UW AW + UD AD    HV = ((1 - eta) n + ni) 1290 V / 3600    Pi = q AN / 8.76
/// HT, HV transmission and ventilation, W/K; U, UW, UD of opaque parts, windows and door, W/(m2 K), dU the
/// surcharge for heat bridges; A, AW, AD their areas, AN usable floor, m2; F temperature correction, 0..1;
/// eta heat recovery, 0..1; n, ni air change by plant and leaks, 1/h; V air, m3, of 1290 J/(m3 K); Pi
/// internal power, W; q internal gains, kWh/(m2 a). Source: EN 832:1998 and EN ISO 13790; F in the manner of
/// DIN V 4108-6.

/// Air change that counts for the heat demand: the plant's without what is recovered, and the leaks', 1/h.
[[nodiscard]] double luftwechsel(const Projekt& p);

/// Exchange of air by plant and leaks: `luftwechsel` of `v_luft` at 1.29 kJ/(m3 K), W/K.
[[nodiscard]] double lueftungskoeffizient(const Projekt& p);

/// Net walls without gables, windows and door, W/K.
[[nodiscard]] double fassadenverlust(const Projekt& p);

/// Net walls with their gables, W/K.
[[nodiscard]] double wandverlust(const Projekt& p);

/// All windows, W/K.
[[nodiscard]] double fensterverlust(const Projekt& p);

/// The door, W/K.
[[nodiscard]] double tuerverlust(const Projekt& p);

/// U value of the upper closure with the surcharge for heat bridges, W/(m2 K).
[[nodiscard]] double k_dach(const Projekt& p);

/// U value of the lower floor with the surcharge for heat bridges, W/(m2 K).
[[nodiscard]] double k_boden(const Projekt& p);

/// Flat ceiling and sloped planes together, m2.
[[nodiscard]] double dachflaeche(const Projekt& p);

/// The factor of the roof space above the ceiling; a heated attic has none above it and takes row 0 of the
/// table. `Dachraum_typ` must be 0..3, or the fault says so.
[[nodiscard]] double dachraumfaktor(const Projekt& p);

/// The whole envelope in its simplest form: walls without gables, windows, door, and the ground area twice,
/// as lower floor and as upper closure, without temperature corrections, W/K.
[[nodiscard]] double einfacher_huellverlust(const Projekt& p);

/// Internal gains, the same in every hour of the year, W.
[[nodiscard]] double innere_leistung(const Projekt& p);

}  // namespace velmaris
