#pragma once

#include "studies/ergebnisse.h"

#include <string>
#include <string_view>

namespace velmaris {

/// What a result is called, and its unit; one that has no words goes by its name in the output of all values.
struct Ergebnisname {
    std::string name;
    std::string einheit;
};

[[nodiscard]] Ergebnisname ergebnisname(const Ergebnis& ergebnis, std::string_view sprache);

}  // namespace velmaris
