#pragma once

#include "charts/bildachse.h"

#include <cstddef>
#include <vector>

namespace velmaris {

/// An axis of a raster on pixels: where its places lie and where its cells end. Cells of numbers meet half
/// way between them, those of choices are of one size.
class Rasterachse {
  public:
    /// From pixel `anfang` on, of `laenge` pixels; a negative one leads upward. The axis has a place.
    Rasterachse(const Bildachse& achse, double anfang, double laenge);

    /// The pixel of a number, or of a choice by its place.
    [[nodiscard]] double ort(double wert) const;

    [[nodiscard]] double von() const { return grenzen_.front(); }
    [[nodiscard]] double bis() const { return grenzen_.back(); }
    [[nodiscard]] bool enthaelt(double wert) const { return wert >= von() && wert <= bis(); }

    /// The places: numbers, or those of choices from 0 on.
    [[nodiscard]] const std::vector<double>& werte() const { return werte_; }

    /// The cells that have the centre of a pixel, with the first and last pixel of each.
    struct Zelle {
        std::size_t stelle;
        int erster, letzter;
    };
    [[nodiscard]] std::vector<Zelle> zellen() const;

  private:
    double anfang_;
    double laenge_;
    std::vector<double> werte_;
    std::vector<double> grenzen_;  ///< of the cells, one more than places
};

}  // namespace velmaris
