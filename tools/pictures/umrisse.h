#pragma once

#include "tools/pictures/raster.h"

#include <array>
#include <filesystem>
#include <string>

namespace velmaris::bilder {

/// Number of the German climate regions.
inline constexpr int regionen_anzahl = 12;

/// The outlines of the regions 1..12 at index 0..11, in degrees east and north, from a table with the columns
/// region, teil, ring, lon and lat. A ring that is not closed is a Dateifehler, here and below, as is all
/// that `csv_lesen` finds.
[[nodiscard]] std::array<Flaeche, regionen_anzahl> regionen_lesen(const std::filesystem::path& datei);

/// All rings of an outline file in degrees east and north, holes among them, from the columns ring (its
/// number), lon and lat.
[[nodiscard]] Flaeche umriss_lesen(const std::filesystem::path& datei);

/// The pieces of all lines of a file in degrees east and north, from the columns linie (the number of the
/// line), lon and lat. A line of one point is a Dateifehler.
[[nodiscard]] std::vector<Strecke> linien_lesen(const std::filesystem::path& datei);

/// The rings with every point taken through a projection.
template <class Projektion>
[[nodiscard]] Flaeche abbilden(Flaeche flaeche, const Projektion& projektion) {
    for (Ring& ring : flaeche) {
        for (Punkt& punkt : ring)
            punkt = projektion(punkt);
    }
    return flaeche;
}

}  // namespace velmaris::bilder
