#pragma once

#include "project/c_glob.h"
#include "toolkit/plattform.h"

#include <functional>

namespace velmaris {

/// What all planes share: the record, the desktop and the recalculation. Owned by the composition root, which
/// outlives the planes.
struct Sitzung {
    Projekt& p;
    Plattform& plattform;

    /// Recalculates the whole building and refreshes what is visible.
    std::function<void()> alles_berechnen;
};

/// The rule of most input handlers: the project has changed, so recalculate.
inline void geaendert(Sitzung& s) {
    s.p.Geaendert = 1;
    s.alles_berechnen();
}

}  // namespace velmaris
