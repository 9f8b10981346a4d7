#pragma once

#include "project/c_glob.h"
#include "toolkit/plattform.h"

#include <functional>

namespace velmaris {

/// What every plane of a running program shares.
struct Sitzung {
    Projekt& p;            ///< the one project
    Plattform& plattform;  ///< the desktop

    /// Recalculates everything after an input has changed.
    std::function<void()> alles_berechnen;
};

}  // namespace velmaris
