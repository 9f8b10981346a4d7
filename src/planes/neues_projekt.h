#pragma once

#include "project/c_glob.h"

#include <string>

namespace velmaris {

/// Sets the plain inputs of the record to those of a new project: a house of 10 m by 10 m with two floors and
/// moderate insulation. What lives in controls (heated attic, construction lists) is the planes' to set.
void neue_eingaben(Projekt& p);

/// Station file of a new project.
[[nodiscard]] std::string vorgabestation();

}  // namespace velmaris
