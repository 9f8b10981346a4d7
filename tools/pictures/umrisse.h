#pragma once

#include "tools/pictures/raster.h"

#include <array>
#include <filesystem>
#include <string>

namespace velmaris::bilder {

/// Number of the German climate regions.
inline constexpr int regionen_anzahl = 12;

/// The outlines of the regions 1..12 at index 0..11, in degrees east and north.
/// Columns: region, teil, ring, punkt, lon, lat.
[[nodiscard]] std::array<Flaeche, regionen_anzahl> regionen_lesen(const std::filesystem::path& datei);

/// All rings of an outline file in degrees east and north, holes among them. Its first column is the number
/// of the ring, the last two are lon and lat; `merkmale` are the columns between, which are not used here.
/// A ring that is not closed is a Dateifehler.
[[nodiscard]] Flaeche umriss_lesen(const std::filesystem::path& datei,
                                   const std::vector<std::string>& merkmale = {});

/// The pieces of all lines of a file in degrees east and north. Columns: linie (the number of the line), lon,
/// lat. A line of one point is a Dateifehler.
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
