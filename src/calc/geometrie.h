#pragma once

#include "project/c_glob.h"

namespace velmaris {

/// Derives the box and its roof from the inputs: gross facades, roof planes, gables, floor areas, volumes,
/// roof pitch, envelope to volume and the temperature correction of the lower floor (reduction by the kind of
/// floor and its characteristic dimension). A wall towards a heated neighbour has no area. An `ugd_typ`
/// beyond 0..4 leaves `Fx_ugd` as it was.
void gebaeudegeometrie_berechnen(Projekt& p);

/// Derives windows and net walls from the gross facades. The door comes off the north wall whatever that
/// wall adjoins, so that `f_nw` can go negative.
void fensterflaechen_berechnen(Projekt& p);

/// Both of them in order.
void geometrie_berechnen(Projekt& p);

}  // namespace velmaris
