#pragma once

#include "studies/empfindlichkeit.h"

#include <string>

namespace velmaris {

/// The steps as one HTML page that needs nothing else: a tornado chart for each of three results, sorted by
/// effect, and a table of all steps.
[[nodiscard]] std::string empfindlichkeitsseite(const Empfindlichkeit& empfindlichkeit);

}  // namespace velmaris
