#pragma once

#include "project/c_glob.h"
#include "toolkit/plattform.h"

#include <filesystem>
#include <functional>

namespace velmaris {

/// What all planes share: the record, the desktop and the recalculation. Owned by the composition root, which
/// outlives the planes.
struct Sitzung {
    Projekt& p;
    Plattform& plattform;

    /// Recalculates the whole building and refreshes what is visible.
    std::function<void()> alles_berechnen;

    /// Folder that a file dialog of this run was left in last, empty before the first.
    std::filesystem::path dialogordner = {};

    /// The project file that this run opened whole or saved last, empty for a project without one.
    std::filesystem::path projektdatei = {};
};

/// The rule of most input handlers: the project has changed, so recalculate.
inline void geaendert(Sitzung& s) {
    s.p.Geaendert = 1;
    s.alles_berechnen();
}

}  // namespace velmaris
