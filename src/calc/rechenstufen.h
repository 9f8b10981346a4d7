#pragma once

#include "energy/katalog_werte.h"
#include "project/c_glob.h"

namespace velmaris {

/// The four stages of a recalculation, to be run in this order; each needs the results of those before it.
/// A division by zero, an overflow or an invalid operation in a stage is a Laufzeitfehler that names the
/// stage. Each leaves the floating point exception flags cleared.
void geometrie_stufe(Projekt& p);
void bilanz_stufe(Projekt& p);
void simulation_stufe(Projekt& p);

/// Returns the characteristic values of the heat supply. Errors also as in `kombination_pruefen`.
Kennwerte energie_stufe(Projekt& p);

/// The geometry alone, for a project that is half built or has no climate. Its values may divide by 0; nobody
/// asks.
void geometrie_ohne_pruefung(Projekt& p);

}  // namespace velmaris
