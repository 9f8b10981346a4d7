#pragma once

#include "project/c_glob.h"

namespace velmaris {

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
/// `_S`, `_O`, `_W` (whole MJ/m2, cut off) from `Wetter`. Isotropic sky and ground reflection
/// with albedo 0.25, taken from the direct normal value. Runs after each reading of a station and when
/// `orient` changes.
void monatsstrahlung_berechnen(Projekt& p);

}  // namespace velmaris
