#pragma once

#include "charts/bildachse.h"
#include "charts/konturlinien.h"

#include <string>
#include <vector>

namespace velmaris {

/// A quantity over two axes. A value that is not a number is a gap.
struct Rasterbild {
    Bildachse waagerecht;
    Bildachse senkrecht;
    std::vector<double> werte;  ///< those of the first place of the vertical axis first
    std::string einheit;
    std::string basisname;  ///< of the place that both axes mark
};

/// The colour of a value by its share of the range, 0..1: ever darker, from yellow over green to blue, so
/// that it reads in grey and without a sense of red or green.
[[nodiscard]] Farbe rasterfarbe(double anteil);

/// True if a picture has nothing to tell apart: no value, or all the same but for rounding.
[[nodiscard]] bool ist_eben(const std::vector<double>& werte);

/// Height of the picture.
[[nodiscard]] double rasterhoehe(const Rasterbild& inhalt);

/// A cell for each combination, a bar of the colours with its numbers, and between numbers the lines of
/// round values with the value in the line. Cells finer than a pixel show the value under its centre; gaps
/// are grey and crossed out. The values must not be even.
void RasterZeichnen(const Rasterbild& inhalt, Zeichenflaeche& bild);

}  // namespace velmaris
