#pragma once

#include "planes/Haupt.h"

#include <string>

namespace velmaris {

/// A short readable summary of a calculated project in the language of the record (UTF-8): station, areas,
/// heat and cooling demand, hours, loads, end and primary energy.
[[nodiscard]] std::string zusammenfassung(const Haupt& haupt);

}  // namespace velmaris
