#pragma once

#include "toolkit/wort.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// A value that is common for a case, in the unit of the display.
struct Richtwert {
    Wort fall;
    double wert;
};

/// What a user is told about an input, as tip and in the help.
struct Eingabehinweis {
    std::string_view ebene;  ///< plane, which is also the name of its page in the help
    Wort name;
    std::vector<std::string_view> felder;  ///< names of the controls: one, or one for each facade
    Wort erklaerung;
    std::vector<Richtwert> richtwerte = {};  ///< of scroll fields alone
    Wort quelle = {};  ///< of the values; empty for common sizes and the program's own tables
};

/// All inputs, plane by plane in the order of the help. Each scroll field of the input planes is in one of
/// them; fields of one row have the same range, steps and unit.
[[nodiscard]] std::span<const Eingabehinweis> eingabehinweise();

/// The row of a control of a plane, nothing for a control without one.
[[nodiscard]] const Eingabehinweis* eingabehinweis(std::string_view ebene, std::string_view feld);

/// The common values by the display's pattern, "old building 1.40; new building 0.24"; empty without any.
[[nodiscard]] std::string richtwerttext(const Eingabehinweis& hinweis, std::string_view sprache);

/// The tip in lines: name, explanation and, for a scroll field, range with unit and common values.
[[nodiscard]] std::vector<std::string> hinweiszeilen(const Eingabehinweis& hinweis, std::string_view sprache);

}  // namespace velmaris
