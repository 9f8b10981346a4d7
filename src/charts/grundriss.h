#pragma once

#include <array>

namespace velmaris {

/// A place on a surface or on a page, in its unit; y grows downward.
struct Punkt {
    double x = 0;
    double y = 0;

    friend Punkt operator+(Punkt a, Punkt b) { return {a.x + b.x, a.y + b.y}; }
    friend Punkt operator-(Punkt a, Punkt b) { return {a.x - b.x, a.y - b.y}; }
    friend Punkt operator-(Punkt a) { return {-a.x, -a.y}; }
    friend Punkt operator*(double faktor, Punkt a) { return {faktor * a.x, faktor * a.y}; }
};

struct Strecke {
    Punkt von;
    Punkt bis;
};

/// The house seen from above, around its centre: the square outline, the ridge over its middle third, and the
/// lines from its ends to the corners. `a` and `b` are the corners of one side that the ridge runs along.
[[nodiscard]] std::array<Strecke, 9> haus_von_oben(Punkt a, Punkt b);

}  // namespace velmaris
