#pragma once

#include "tools/pictures/bild.h"

#include <cstddef>
#include <vector>

namespace velmaris::bilder {

/// A point: longitude and latitude in degrees, or x and y in units of the drawing.
struct Punkt {
    double x = 0;
    double y = 0;

    friend constexpr bool operator==(Punkt, Punkt) = default;
};

/// A closed line; the last point equals the first one.
using Ring = std::vector<Punkt>;

/// An area bounded by rings by the even-odd rule: a ring inside another one is a hole.
using Flaeche = std::vector<Ring>;

/// A straight piece of a line.
struct Strecke {
    Punkt a;
    Punkt b;
};

/// All pieces of all rings.
[[nodiscard]] std::vector<Strecke> strecken(const Flaeche& flaeche);

/// The shares 0..1 by which the pixels of a picture are covered. Pixel (i, j) covers i..i+1, j..j+1.
class Deckung {
  public:
    explicit Deckung(const Gitter& gitter);

    [[nodiscard]] int breite() const { return breite_; }
    [[nodiscard]] int hoehe() const { return hoehe_; }
    [[nodiscard]] double& anteil(int x, int y) { return anteile_[platz(x, y)]; }
    [[nodiscard]] double anteil(int x, int y) const { return anteile_[platz(x, y)]; }

  private:
    [[nodiscard]] std::size_t platz(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(breite_) + static_cast<std::size_t>(x);
    }

    int breite_;
    int hoehe_;
    std::vector<double> anteile_;
};

/// The share of each pixel that lies in the area, exact along x, by eight lines per pixel along y.
[[nodiscard]] Deckung fuellung(const Gitter& gitter, const Flaeche& flaeche);

/// 1 for each pixel whose centre lies in the area, otherwise 0: areas that meet share no pixel.
[[nodiscard]] Deckung kernfuellung(const Gitter& gitter, const Flaeche& flaeche);

/// Smooth lines with round ends: full up to half the thickness (units) from the axis less half a pixel,
/// fading out over one pixel. Pixels farther from the axis than half the thickness and half a pixel stay 0.
[[nodiscard]] Deckung linien(const Gitter& gitter, const std::vector<Strecke>& strecken, double dicke);

/// Lays a colour over a picture of the same size by the shares times `deckkraft`.
void auftragen(Bild& bild, const Deckung& deckung, Farbe farbe, double deckkraft = 1);

}  // namespace velmaris::bilder
