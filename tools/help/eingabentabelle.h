#pragma once

#include <string>
#include <string_view>

namespace velmaris::hilfe {

/// The scroll fields of a plane as an HTML table in the language "d" or "e": range, steps, unit, value
/// of a new project, and on demand the names of the quantities in the record. A plane without scroll fields
/// is a Laufzeitfehler.
[[nodiscard]] std::string eingabentabelle(std::string_view ebene, bool mit_namen, std::string_view sprache);

}  // namespace velmaris::hilfe
