#pragma once

#include "toolkit/zeichenflaeche.h"

#include <functional>
#include <string>
#include <vector>

namespace velmaris {
struct Haupt;
}

namespace velmaris::test {

/// What is wrong with the texts of a chart of a size in the letters of another surface: those that begin or
/// end beyond it, and those that touch.
[[nodiscard]] std::vector<std::string> textfehler(const std::function<void(Zeichenflaeche&)>& zeichnen,
                                                  double breite, double hoehe, Zeichenflaeche& masse);

/// The same of the charts of all planes.
[[nodiscard]] std::vector<std::string> textfehler(Haupt& haupt, Zeichenflaeche& masse);

}  // namespace velmaris::test
