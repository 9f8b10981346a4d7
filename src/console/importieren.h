#pragma once

#include "console/auftrag.h"
#include "project/klimaordner.h"

#include <string>

namespace velmaris {

/// What an import has to say, a line each.
struct Importbericht {
    std::string geschrieben;  ///< the station file and what stands in it
    std::string warnung;      ///< what is doubtful about the place, empty if all is well
};

/// Turns a recognised source (Meteonorm, EnergyPlus) into a station file of the climate folder. A source that
/// is not recognised, a place without a name or country, a name that cannot be or that is taken already, and
/// all faults of the rows are a Dateifehler that names the source, or the station file that is there already;
/// nothing is written then.
[[nodiscard]] Importbericht importieren(const Importauftrag& auftrag, const Klimaordner& ordner,
                                        const std::string& sprache);

}  // namespace velmaris
