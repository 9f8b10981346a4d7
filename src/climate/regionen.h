#pragma once

#include "project/c_glob.h"

#include <string_view>

namespace velmaris {

inline constexpr int klimaregionen = 12;

/// One of the twelve German climate regions. The texts exist in German only.
struct Klimaregion {
    std::string_view datei;      ///< station file, no folder
    std::string_view text;       ///< entry of the region list, with its leading blanks
    std::string_view hinweis_1;  ///< the two lines that show over the map
    std::string_view hinweis_2;
};

/// The climate region with that number, 1..12.
[[nodiscard]] const Klimaregion& klimaregion(int nummer);

/// Number of the region whose entry in `Regionsdatei` is `Klimadatei`, the last one if several are; 0 for
/// a foreign station.
[[nodiscard]] int region_der_station(const Projekt& p);

/// Fills `Regionsdatei` with the station files of the twelve regions.
void regionsdateien_setzen(Projekt& p);

}  // namespace velmaris
