#pragma once

#include "werkzeuge/klima_erzeugen/stationsliste.h"

namespace velmaris::klimasatz {

/// Radiation of the sun outside the air on a plane that faces it, at the mean distance, W/m². Source: C.
/// Fröhlich, R. W. Brusa, "Solar radiation and its variation in time", Solar Physics 74 (1981), 209-215.
inline constexpr double solarkonstante = 1367;

/// No hour of the delivered data is clearer than this share of the extraterrestrial radiation.
inline constexpr double klarheit_hoechstens = 0.85;

/// Square of the ratio of the mean to the day's distance of the sun: 1 + 0.033 cos(2 pi n / 365). Source: J.
/// A. Duffie, W. A. Beckman, "Solar Engineering of Thermal Processes", chapter 1.
[[nodiscard]] double abstandsfaktor(int n);

/// Cosine of the sun's zenith angle by day and hour at the time at which the program looks at the hour;
/// 0 while the sun is down.
[[nodiscard]] Stundenwerte zenitkosinus(const Standort& ort);

/// Extraterrestrial radiation on the horizontal, W/m², from the cosine of the zenith angle on day n.
[[nodiscard]] double extraterrestrisch(double cos_z, int n);

/// Beam of the sun on a plane that faces it under the cleanest sky, W/m² at the mean distance, for 0 < cos_z
/// <= 1 and a height in m (counted from 0 to 5000): 1353 ((1 - 0.14 h) 0.7^(m^0.678) + 0.14 h), h in km.
/// Source: A. B. Meinel, M. P. Meinel, "Applied Solar Energy" (1976), with the height by E. G. Laue, Solar
/// Energy 13 (1970), 43-50; air mass m by F. Kasten, A. T. Young, Applied Optics 28 (1989), 4735-4738.
[[nodiscard]] double klarer_strahl(double cos_z, double hoehe_m);

/// Highest clearness that an hour is given, if the month's sum allows: the share of the clear beam and a
/// bright diffuse sky together, at most `klarheit_hoechstens`.
[[nodiscard]] double klarheitsgrenze(double cos_z, double hoehe_m);

}  // namespace velmaris::klimasatz
