#pragma once

#include "tools/climate/stationsliste.h"

namespace velmaris::klimasatz {

/// Radiation of the sun outside the air on a plane that faces it, at the mean distance, W/m². Source: C.
/// Fröhlich, R. W. Brusa, "Solar radiation and its variation in time", Solar Physics 74 (1981), 209-215.
inline constexpr double solarkonstante = 1367;

/// No hour of the delivered data is clearer than this share of the extraterrestrial radiation.
inline constexpr double klarheit_hoechstens = 0.85;

/// Square of the ratio of the mean to the day's distance of the sun: 1 + 0.033 cos(2 pi n / 365). Source: J.
/// A. Duffie, W. A. Beckman, "Solar Engineering of Thermal Processes", chapter 1.
[[nodiscard]] double abstandsfaktor(int n);

/// Hour angle of sunset on day n, 0 (polar night) to pi (polar day), radians.
[[nodiscard]] double untergangswinkel(const Standort& ort, int n);

/// Cosines of the sun's zenith angle by day and hour; 0 while the sun is down.
struct Sonnenstand {
    Stundenwerte stunde;   ///< mean of the whole hour, the time without sun counted as 0
    Stundenwerte sonnig;   ///< mean of the sunlit part of the hour
    Stundenwerte gelesen;  ///< at the time at which the program looks at the hour for its beam
};

/// The sun over a place through the year, by the program's equation of time and zone; the means in closed
/// form, by the program's declination or a more precise one, whichever gives less, so that what is made from
/// them stays below the sun by either. Source: Duffie and Beckman, extraterrestrial radiation on a horizontal
/// plane for an hour, between sunrise and sunset.
[[nodiscard]] Sonnenstand sonnenstand(const Standort& ort);

/// Extraterrestrial radiation on the horizontal, W/m², from the cosine of the zenith angle on day n.
[[nodiscard]] double extraterrestrisch(double cos_z, int n);

/// Beam of the sun on a plane that faces it under the cleanest sky, W/m² at the mean distance, for 0 < cos_z
/// <= 1 and a height in m (counted from 0 to 5000): 1353 * 0.7^(m^0.678). Source: A. B. Meinel, M. P. Meinel,
/// "Applied Solar Energy" (1976); air mass m by F. Kasten, A. T. Young, Applied Optics 28 (1989), 4735-4738,
/// lessened with the height by exp(-h / 8434.5 m) as in C. Rigollier, O. Bauer, L. Wald, "On the clear sky
/// radiation model of the ESRA", Solar Energy 68 (2000), 33-48.
[[nodiscard]] double klarer_strahl(double cos_z, double hoehe_m);

/// Highest clearness that an hour is given, if the month's sum allows: the share of the clear beam and a
/// bright diffuse sky together, at most `klarheit_hoechstens`.
[[nodiscard]] double klarheitsgrenze(double cos_z, double hoehe_m);

}  // namespace velmaris::klimasatz
