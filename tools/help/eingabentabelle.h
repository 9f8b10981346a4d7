#pragma once

#include <string>
#include <string_view>

namespace velmaris::hilfe {

/// The scroll fields of a plane as an HTML table in the language "d" or "e": range, steps, unit, value
/// of a new project, and on demand the names of the quantities in the record. A plane without scroll fields
/// is a Laufzeitfehler.
[[nodiscard]] std::string eingabentabelle(std::string_view ebene, bool mit_namen, std::string_view sprache);

/// Common values of the scroll fields of a plane with their sources as an HTML table; errors as above.
[[nodiscard]] std::string richtwerttabelle(std::string_view ebene, std::string_view sprache);

/// What an input of a plane is, as HTML; a control that is none is a Laufzeitfehler.
[[nodiscard]] std::string erklaerung(std::string_view ebene, std::string_view feld, std::string_view sprache);

}  // namespace velmaris::hilfe
