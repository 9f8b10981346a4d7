#pragma once

#include "charts/bildachse.h"

#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace velmaris {

/// A quantity over the axis of a picture. A value that is not a number is a gap.
struct Kurve {
    std::string name;
    std::vector<double> werte;                                ///< as many as the axis has places
    double basis = std::numeric_limits<double>::quiet_NaN();  ///< its value at the marked place
};

/// Quantities of one unit, no more than there are colours of curves.
struct Kurvenbild {
    Bildachse achse;
    std::string einheit;
    std::string basisname;  ///< of the marked place
    std::vector<Kurve> kurven;
    std::optional<Achsenteilung> teilung = {};  ///< of their axis, where several pictures share one
};

/// The numbers of an axis for all finite values of the curves. It begins at 0 unless all of them lie close
/// together.
[[nodiscard]] Achsenteilung kurventeilung(const std::vector<Kurve>& kurven);

/// Height of the picture: of curves over numbers, or a row for each choice.
[[nodiscard]] double kurvenhoehe(const Kurvenbild& inhalt);

/// Curves over numbers, which a gap interrupts, with their names at their right ends; or, of choices, a row
/// for each with a mark for each quantity.
void KurvenZeichnen(const Kurvenbild& inhalt, Zeichenflaeche& bild);

}  // namespace velmaris
