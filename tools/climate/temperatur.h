#pragma once

#include "tools/climate/stationsliste.h"

namespace velmaris::klimasatz {

/// The course of the air temperature over a day without change of weather, 0 at its lowest to 1 at its
/// highest, at a solar time in hours (0..24) on a day of the length `tageslaenge` (counted from 6 to 20
/// hours, so that polar days and nights have a course too): a sine from a little before sunrise over its top
/// at 13.86 to sunset, then an exponential fall to the next morning. Sources: W. J. Parton, J. A. Logan, "A
/// model for diurnal variation in soil and air temperature", Agricultural Meteorology 23 (1981), 205-216
/// (shape; lags 1.86 h and -0.17 h and decay 2.20 of the air at 1.5 m); J. Goudriaan, H. H. van Laar,
/// "Modelling Potential Crop Growth Processes" (1994) (the fall ends at the minimum).
[[nodiscard]] double tageswelle(double sonnenzeit, double tageslaenge);

/// How the day's temperature range grows with its clearness 0..1, up to a constant of the place. Source: K.
/// L. Bristow, G. S. Campbell, "On the relationship between incoming solar radiation and daily maximum and
/// minimum temperature", Agricultural and Forest Meteorology 31 (1984), 159-166, solved for the range.
[[nodiscard]] double spannenfaktor(double klarheit);

/// Standard deviation of the daily means around the course of the year by month, K. Erbs, Klein and Beckman
/// (D. G. Erbs, S. A. Klein, W. A. Beckman, "Estimation of degree-days and ambient temperature bin data from
/// monthly-average temperatures", ASHRAE Journal 25 (1983), 60-65) give that of monthly means from the
/// month's temperature and the spread of the months; an autoregressive series of lag-one correlation r with
/// this scatter of its means over N days varies from day to day by sqrt(N (1 - r) / (1 + r)) times as much.
/// Their law is made from places with seasons: towards a place without any it passes over to 0.72 K, a figure
/// matched to reference years of the inner tropics (data/README.md); colder than -15 °C and months that
/// spread by more than 8 K count as these, and above 24 °C it falls by another 0.03 a kelvin, so that neither
/// Siberia nor a desert passes its records in a typical year.
[[nodiscard]] Monatswerte tagesstreuung(const Monatswerte& ta);

/// Makes the air temperature of a station's year, °C, to whole tenths: daily means by their ranks `waerme`
/// around the smooth course of the year, and upon them the day's wave with a range that follows the day's
/// clearness. The months' means and mean daily ranges are those of the facts.
[[nodiscard]] Stundenwerte temperatur_erzeugen(const Stationsfakten& station, const Tageswerte& waerme,
                                               const Tageswerte& klarheit);

}  // namespace velmaris::klimasatz
