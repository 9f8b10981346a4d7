#pragma once

#include "project/tabellen.h"

#include <cstdint>

namespace velmaris {

/// The sun of one station, which depends on the station file alone.
struct Sonnentabelle {
    Reihe<double, 1, tage_im_jahr> sin_delta;  ///< sine of the declination by day of the year
    Reihe<double, 1, tage_im_jahr> cos_delta;
    Stundentabelle<double> sin_omega;  ///< sine of the hour angle at the end of the hour
    Stundentabelle<double> cos_omega;
};

/// Temperatures of one station that depend on the station file alone, degC.
struct Stationswerte {
    Reihe<double, 1, tage_im_jahr> Tagesmittel;  ///< mean of the day's 24 hours
    float Ta_max = 0;                            ///< warmest hour of the year
    float Ta_min = 0;                            ///< coldest hour of the year
};

/// The incidence factors of one plane over the year, with what they were calculated for.
struct Ebenentabelle {
    std::uint32_t station = 0;  ///< `Strahlungstabellen::station` at the time; 0 = never calculated
    int orient = 0;             ///< degrees
    float neigung = 0;          ///< tilt, degrees
    Stundentabelle<float> faktor;
};

/// What depends on the station, the orientation and the roof pitch only, kept between recalculations.
struct Strahlungstabellen {
    std::uint32_t station = 0;  ///< counts the station files read into the record; 0 = none yet
    Sonnentabelle sonne;
    Stationswerte werte;
    Ebenentabelle wand_n, wand_s, wand_o, wand_w;
    Ebenentabelle dach_n, dach_s, dach_o, dach_w, dach_flach;
};

}  // namespace velmaris
