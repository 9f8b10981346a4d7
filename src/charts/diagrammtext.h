#pragma once

#include "toolkit/zeichenflaeche.h"

#include <span>
#include <string>
#include <vector>

namespace velmaris {

/// Sets the largest font, from `groesste` downward in steps of a pixel, in which no text is wider than
/// `breite` pixels, and returns the widths of the texts in it.
std::vector<double> schrift_einpassen(Zeichenflaeche& bild, std::span<const std::string> texte, double breite,
                                      const Schrift& groesste = {});

/// A number beside a tick of the vertical axis that has its height at y, pixels.
struct Achsenzahl {
    double wert;
    double y;
};

/// Writes the numbers of an axis so that they end at x = 25, in the largest font that leaves all of them
/// inside of the surface; then the font is the charts' own again.
void achsenzahlen_zeichnen(Zeichenflaeche& bild, std::span<const Achsenzahl> zahlen,
                           const Schrift& groesste = {});

/// Width of the column of a month, pixels.
inline constexpr double spaltenbreite = 24;

/// Writes the names of the months with their top at y, each centred under its column, in the largest font
/// that keeps a blank between neighbours; then the font is the charts' own again.
void spaltennamen_zeichnen(Zeichenflaeche& bild, std::span<const std::string> namen, double y);

}  // namespace velmaris
