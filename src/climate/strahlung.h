#pragma once

#include "project/c_glob.h"

namespace velmaris {

/// Radiation on a wall, W/m2: I = f D + 0.5 S + 0.125 (S + D), f = (1 - (1 - c)^2.5) c, 0 for c < 0;
///   c = sin d (sin p cos b - cos p sin b cos g) + cos d cos w (cos p cos b + sin p sin b cos g)
///       + cos d sin w sin b sin g
/// D direct normal, S diffuse horizontal, W/m2; sky isotropic, albedo 0.25; d declination, p latitude, b
/// tilt, g azimuth (south 0, west positive), w hour angle (noon 0), rad. Source of c, the cosine of the
/// incidence angle: J. A. Duffie, W. A. Beckman, "Solar Engineering of Thermal Processes" (1980).

/// Takes over a station whose `Breite` (radians), `Laengenkorrektur` (degrees) and `Wetter` have just been
/// set: counts the station up, so that every kept plane table is out of date, and works out what depends
/// on the station alone (sun by hour, day means, extreme temperatures). `klimadatei_lesen` does it; only who
/// fills `Wetter` in another way calls it.
void station_uebernehmen(Projekt& p);

/// Makes the incidence factors of the four walls and of each roof plane with an area valid for the station,
/// `orient` and `Dachneigung`. A table is calculated anew only if what it depends on has changed. Its values
/// are those of `einfallsfaktor_ebene` at the end of the hour.
void ebenen_bereitstellen(Projekt& p);

/// Fills `Monat(m).Tmittel` (degC) and the radiation on the four vertical planes `Monat(m).Strahlung_N`,
/// `_S`, `_O`, `_W` (whole MJ/m2, cut off) from `Wetter`: 0.0036 times the sum of I over the hours with
/// 0 < I < 1370 W/m2. Runs after each reading of a station and when `orient` changes.
void monatsstrahlung_berechnen(Projekt& p);

}  // namespace velmaris
