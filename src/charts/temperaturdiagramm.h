#pragma once

#include "project/c_glob.h"
#include "toolkit/wertetafel.h"
#include "toolkit/zeichenflaeche.h"

#include <functional>
#include <span>

namespace velmaris {

/// An hourly series by month 1..12, day 1..31 and hour 1..24.
using Stundenreihe = std::function<double(int m, int d, int h)>;

/// Largest and smallest hourly value of month m (1..12).
[[nodiscard]] double max_suchen(const Stundenreihe& reihe, int m);
[[nodiscard]] double min_suchen(const Stundenreihe& reihe, int m);

/// Pixel of a day value, and of a temperature, for the pixel of the origin and pixels per unit.
[[nodiscard]] double X_(double tag, double ursprung, double faktor);
[[nodiscard]] double Y_(double temperatur, double ursprung, double faktor);

/// The temperature axis: ends and distance of the grid lines, degC.
struct Temperaturachse {
    double schritt = 1;
    double unten = 0;
    double oben = 0;
};

/// The axis for temperatures from T_min to T_max: steps of 1, 2 or 5 times a power of ten, at least one step
/// of air beyond the range; an end at exactly 0 stays there.
[[nodiscard]] Temperaturachse temperaturachse(double T_min, double T_max);

/// Temperatures of the outdoor air and of the free-running room of a project, which must outlive the series.
[[nodiscard]] Stundenreihe aussenluft(const Projekt& p);
[[nodiscard]] Stundenreihe raumluft(const Projekt& p);

/// Outdoor air and free-running room temperature of the month `Monat_Uebersicht`, on a surface of any size.
void TemperaturDiagrammZeichnen(const Projekt& p, Zeichenflaeche& bild);

/// Its numbers, hour by hour.
[[nodiscard]] Wertetafel TemperaturDiagrammWerte(const Projekt& p);

/// A curve of a comparison.
struct Temperaturkurve {
    Stundenreihe reihe;
    Farbe farbe;
};

/// Curves of the month (1..12) over one axis, the last on top; what they are stands beside the chart.
void TemperaturvergleichZeichnen(std::span<const Temperaturkurve> kurven, int monat, Zeichenflaeche& bild);

}  // namespace velmaris
