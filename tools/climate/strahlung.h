#pragma once

#include "tools/climate/sonnenjahr.h"

namespace velmaris::klimasatz {

/// A year's radiation on the horizontal in whole W/m² (hourly means), and how clear its days are.
struct Strahlungsjahr {
    Stundenwerte global;
    Stundenwerte diffus;
    Tageswerte klarheit;  ///< 0..1; in the polar night that of the sky alone
};

/// How far a month's sum of global radiation may miss its fact: a hundredth, or half of the last digit with
/// which the facts are told; kWh/m².
[[nodiscard]] double strahlungstoleranz(double ghi);

/// Extraterrestrial radiation of each day on the horizontal, kWh/m².
[[nodiscard]] Tageswerte tagessummen_draussen(const Sonnenstand& sonne);

/// Makes the radiation of a station's year: days by the distribution of daily clearness around the month's,
/// by their ranks `helle`, which are shifted until the month's sum is the fact; hours by their mean clearness
/// under that sky with autoregressive scatter, those of sunrise and sunset by their sunlit part; the beam
/// never above that of the cleanest sky where the program looks at it, and none where it finds no sun. A
/// month whose fact the sun cannot give is a Dateifehler for the list of stations, its line and column.
[[nodiscard]] Strahlungsjahr strahlung_erzeugen(const Stationsfakten& station, const Sonnenstand& sonne,
                                                const Tageswerte& helle);

}  // namespace velmaris::klimasatz
