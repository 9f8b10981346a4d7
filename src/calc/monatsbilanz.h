#pragma once

#include "project/c_glob.h"

namespace velmaris {

/// Heat demand by the month-by-month balance: for each month the losses by transmission and ventilation, the
/// solar and internal gains and the share of them that is usable; then the year sums. Reads the areas,
/// `Tmittel` and `Strahlung_*` of the months; writes `Cwirk` and `tau` too. Method: the monthly balance of
/// EN 832 / EN ISO 13790. Laufzeitfehler of `zeitkonstante_berechnen` and `nutzungsgrad`.
void monatsbilanz(Projekt& p);

/// Share of the gains that a building of the time constant `tau` (s) can use, for `gamma` = gains / losses of
/// the month: (1 - gamma^a) / (1 - gamma^(a + 1)), a / (a + 1) where gamma is exactly 1, with
/// a = 1 + tau / 16 h. Source: EN 832:1998, utilisation factor, monthly method. Laufzeitfehler if the power
/// exceeds all numbers.
[[nodiscard]] float nutzungsgrad(float tau, float gamma);

}  // namespace velmaris
