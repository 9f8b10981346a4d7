#pragma once

#include "project/c_glob.h"

#include <functional>
#include <string>
#include <vector>

namespace velmaris {

/// A row of the refresh table: what a recalculation draws anew while its plane is on the screen.
struct Auffrischung {
    std::string name;
    std::function<bool()> sichtbar;
    std::function<void()> zeichnen;
};

/// What a recalculation calls outside the calculation. Each routine may be empty, for a program without
/// planes.
struct Rechenplan {
    std::function<void()> geometrie_zeigen;  ///< geometry and windows planes; runs under the load guard too
    std::function<void()> gebaeude_zeigen;   ///< building plane, once the heat capacity is known
    std::function<void()> energie;           ///< end and primary energy; its arithmetic is watched for faults
    std::function<void()> energie_zeigen;    ///< energy plane, whether or not it is visible
    std::vector<Auffrischung> tabelle;       ///< run in order; visibility is asked anew before each row
};

/// The geometry and its display alone, for a project that is half built or has no climate. Its values may
/// divide by 0; nobody asks.
void geometrie_allein(Projekt& p, const Rechenplan& plan);

/// The recalculation that follows every change of an input: geometry, month balance, hourly simulation,
/// energy, then the refresh table. While `FormLoadGuard` is not 0 it ends after the geometry and its display.
/// A division by zero, an overflow or an invalid operation in a stage is a Laufzeitfehler that names the
/// stage, except under the load guard, when a half-built project may have such values. Leaves the floating
/// point exception flags cleared.
void alles_berechnen(Projekt& p, const Rechenplan& plan);

}  // namespace velmaris
