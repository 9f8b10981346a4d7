#pragma once

#include "toolkit/zeichenflaeche.h"

#include <string>
#include <vector>

namespace velmaris {
struct Haupt;
}

namespace velmaris::test {

/// What is wrong with the texts of the charts of all planes in the letters of another surface: those that
/// begin or end beyond their chart's surface, and those that touch.
[[nodiscard]] std::vector<std::string> textfehler(Haupt& haupt, Zeichenflaeche& masse);

}  // namespace velmaris::test
