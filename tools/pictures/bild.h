#pragma once

#include "toolkit/zeichenflaeche.h"

#include <cstddef>
#include <vector>

namespace velmaris::bilder {

/// The mix of two colours: `anteil` 0 gives `a`, 1 gives `b`.
[[nodiscard]] Farbe mischung(Farbe a, Farbe b, double anteil);

/// The grid of a picture: its size in units of the drawing, and the pixels along a unit.
struct Gitter {
    int breite = 0;
    int hoehe = 0;
    int feinheit = 1;
};

/// A picture of RGB pixels; x from 0 to the right, y from 0 downward.
class Bild {
  public:
    Bild(const Gitter& gitter, Farbe grund);

    [[nodiscard]] const Gitter& gitter() const { return gitter_; }

    /// Width and height in pixels.
    [[nodiscard]] int breite() const { return breite_; }
    [[nodiscard]] int hoehe() const { return hoehe_; }
    [[nodiscard]] Farbe& pixel(int x, int y) { return pixel_[platz(x, y)]; }
    [[nodiscard]] Farbe pixel(int x, int y) const { return pixel_[platz(x, y)]; }

  private:
    [[nodiscard]] std::size_t platz(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(breite_) + static_cast<std::size_t>(x);
    }

    Gitter gitter_;
    int breite_;
    int hoehe_;
    std::vector<Farbe> pixel_;
};

}  // namespace velmaris::bilder
