#pragma once

#include "charts/achsenteilung.h"
#include "toolkit/zeichenflaeche.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace velmaris {

/// What runs along an axis of a picture: numbers in rising order, or choices by their names.
struct Bildachse {
    std::string titel;               ///< with the unit
    std::vector<double> werte = {};  ///< of numbers
    int nachkomma = 0;               ///< decimals of these
    std::vector<std::string> namen = {};
    std::optional<double> basis = {};  ///< the number that is marked, or the place (from 0) of the choice

    [[nodiscard]] bool zahlen() const { return namen.empty(); }
    [[nodiscard]] std::size_t anzahl() const { return zahlen() ? werte.size() : namen.size(); }
};

/// The area of a chart between its axes, pixels.
struct Bildrahmen {
    double links = 0;
    double oben = 0;
    double rechts = 0;
    double unten = 0;
};

namespace bildstil {
inline const Schrift schrift{.groesse = 9};
inline constexpr Farbe gitter{225, 225, 225};
inline constexpr Farbe achse{90, 90, 90};
}  // namespace bildstil

/// The widest of the texts in the font in force, pixels.
[[nodiscard]] double breitester(const Zeichenflaeche& bild, const std::vector<std::string>& texte);

/// A tick of an axis of numbers.
struct Achsenstrich {
    double wert;
    std::string text;
};

/// The ticks of an axis of numbers: the numbers themselves where each has room for its text, of `platz`
/// pixels, else the round ones of a division. `ort` gives the pixel of a number.
[[nodiscard]] std::vector<Achsenstrich> achsenstriche(const Bildachse& achse, const Achsenteilung& teilung,
                                                      const std::function<double(double)>& ort,
                                                      const std::function<double(const std::string&)>& platz);

/// The round numbers of a division as they are written.
[[nodiscard]] std::vector<std::string> strichzahlen(const Achsenteilung& teilung,
                                                    const std::vector<double>& striche);

/// A text with its right end, or its middle, at x.
void rechtsbuendig_zeichnen(Zeichenflaeche& bild, double x, double y, const std::string& text);
void mittig_zeichnen(Zeichenflaeche& bild, double x, double y, const std::string& text);

}  // namespace velmaris
