#pragma once

#include "tools/climate/strahlung.h"

#include <array>
#include <string>

namespace velmaris::klimasatz {

/// The six lines of a station file's head, UTF-8, without their ends.
[[nodiscard]] std::array<std::string, 6> kopfzeilen(const Stationsfakten& station);

/// The bytes of a station file from its year; the first row is the last hour of the year.
[[nodiscard]] std::string stationsdatei(const Stationsfakten& station, const Stundenwerte& ta,
                                        const Strahlungsjahr& strahlung);

/// Makes the year of a station and the bytes of its file.
[[nodiscard]] std::string stationsdatei_erzeugen(const Stationsfakten& station);

}  // namespace velmaris::klimasatz
