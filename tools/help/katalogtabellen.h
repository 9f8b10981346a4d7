#pragma once

#include <string>
#include <string_view>

namespace velmaris::hilfe {

// Tables of the program as HTML, in the language "d" or "e".

/// The window types that set values.
[[nodiscard]] std::string fenstertypentabelle(std::string_view sprache);

/// The heating systems with their carriers and primary energy factors, and the expense numbers for radiators,
/// the first carrier and 150 m2.
[[nodiscard]] std::string heizsystemtabelle(std::string_view sprache);

/// What stands in which line of a project file.
[[nodiscard]] std::string projektdateitabelle(std::string_view sprache);

}  // namespace velmaris::hilfe
