#pragma once

#include "charts/balkenfarben.h"
#include "toolkit/zeichenflaeche.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace velmaris {

/// A bar of a tornado chart.
struct Tornadobalken {
    std::string text;               ///< what stands before the bar: the step, or why there is none
    std::optional<double> wirkung;  ///< length to the right of the base line, to its left if negative
    std::string zahl;               ///< at the end of the bar
};

/// A pair of bars, one below the other, with what they belong to.
struct Tornadozeile {
    std::string name;
    std::string wert;  ///< in the base
    std::array<Tornadobalken, 2> balken;
};

/// The colours of the two bars of a row.
inline constexpr std::array<Farbe, 2> tornadofarben{balkenfarben::lueftung, balkenfarben::intern};

/// The rows of a chart below each other, at one scale, and what stands above the base line.
struct Tornado {
    std::vector<Tornadozeile> zeilen;
    std::string basis;
};

/// A chart comes in pieces that lie upon each other without a gap, so that it can go on on another page.
[[nodiscard]] std::size_t tornado_stuecke(const Tornado& tornado);

/// Size of a piece (from 0), pixels.
inline constexpr double tornado_breite = 950;
[[nodiscard]] double tornado_hoehe(const Tornado& tornado, std::size_t stueck);

/// Draws a piece on a surface of its size.
void TornadoZeichnen(const Tornado& tornado, std::size_t stueck, Zeichenflaeche& bild);

}  // namespace velmaris
