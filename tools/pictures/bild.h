#pragma once

#include "toolkit/zeichenflaeche.h"

#include <cstddef>
#include <string>
#include <vector>

namespace velmaris::bilder {

/// The mix of two colours: `anteil` 0 gives `a`, 1 gives `b`.
[[nodiscard]] Farbe mischung(Farbe a, Farbe b, double anteil);

/// A picture of RGB pixels; x from 0 to the right, y from 0 downward.
class Bild {
  public:
    Bild(int breite, int hoehe, Farbe grund);

    [[nodiscard]] int breite() const { return breite_; }
    [[nodiscard]] int hoehe() const { return hoehe_; }
    [[nodiscard]] Farbe& pixel(int x, int y) { return pixel_[platz(x, y)]; }
    [[nodiscard]] Farbe pixel(int x, int y) const { return pixel_[platz(x, y)]; }

    /// The bytes of a Windows bitmap: 24 bits, not compressed, rows from the bottom up.
    [[nodiscard]] std::string bmp() const;

  private:
    [[nodiscard]] std::size_t platz(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(breite_) + static_cast<std::size_t>(x);
    }

    int breite_;
    int hoehe_;
    std::vector<Farbe> pixel_;
};

}  // namespace velmaris::bilder
