#pragma once

#include "charts/bildachse.h"
#include "studies/studienbild.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// An input of a study as an axis of its pictures.
struct Eingabeachse {
    Bildachse bild;
    std::string name;
    std::string einheit;
    std::vector<std::string> texte;    ///< of its places, without the unit
    std::vector<std::size_t> stellen;  ///< which of the asked values each place is
    std::string basis;                 ///< what the base has, with the unit; empty without a base
    bool gerundet = false;             ///< an asked number lay between the positions of its slider

    /// A place in words.
    [[nodiscard]] std::string text(std::size_t platz) const;
};

/// The axes of the pictures of a study, the horizontal one first. Numbers rise, each is there once; choices
/// stand in the order in which they were asked for. Of two inputs a choice is the vertical one, of two
/// choices the one that has more; their places without any calculated row are left out. A number that could
/// not be calculated keeps its place between others, as a gap in the curves over one input.
class Bildachsen {
  public:
    Bildachsen(const Studienbild& bild, std::string_view sprache);

    [[nodiscard]] const std::vector<Eingabeachse>& achsen() const { return achsen_; }

    /// True if there is nothing to draw.
    [[nodiscard]] bool leer() const;

    /// A result at all places, those of the vertical axis's first one first; not a number for a gap.
    [[nodiscard]] std::vector<double> werte(std::size_t ergebnis) const;

    /// The place n of these values in words.
    [[nodiscard]] std::string ort(std::size_t n) const;

  private:
    const Studienbild& bild_;
    std::vector<Eingabeachse> achsen_;
    bool getauscht_ = false;  ///< the input that was asked for first is the vertical one
};

}  // namespace velmaris
