#pragma once

#include "konsole/auftrag.h"
#include "project/klimaordner.h"

#include <string>

namespace velmaris {

/// Turns a recognised source (Meteonorm, EnergyPlus) into a station file of the climate folder and returns
/// the line that says what was written. A source that is not recognised, a place without a name or country, a
/// name that cannot be or that is taken already, and all faults of the rows are a Laufzeitfehler; nothing is
/// written then.
[[nodiscard]] std::string importieren(const Importauftrag& auftrag, const Klimaordner& ordner,
                                      const std::string& sprache);

}  // namespace velmaris
