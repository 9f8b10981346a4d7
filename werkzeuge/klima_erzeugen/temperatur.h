#pragma once

#include "werkzeuge/klima_erzeugen/stationsliste.h"

namespace velmaris::klimasatz {

/// The mean day's wave of air temperature at a solar time in hours (0..24): mean 0, span about 1, highest
/// in mid-afternoon. Source: D. G. Erbs, S. A. Klein, W. A. Beckman, "Estimation of degree-days and ambient
/// temperature bin data from monthly-average temperatures", ASHRAE Journal 25 (1983), 60-65.
[[nodiscard]] double tageswelle(double sonnenzeit);

/// How the day's temperature range grows with its clearness 0..1, up to a constant of the place. Source: K.
/// L. Bristow, G. S. Campbell, "On the relationship between incoming solar radiation and daily maximum and
/// minimum temperature", Agricultural and Forest Meteorology 31 (1984), 159-166, solved for the range.
[[nodiscard]] double spannenfaktor(double klarheit);

/// Lag-one correlation of the daily means' deviations before they are brought to the months' means.
inline constexpr double temperaturgedaechtnis = 0.7;

/// Standard deviation of the daily means around the course of the year by month, K. Erbs, Klein and Beckman
/// (1983) give that of monthly means from the month's temperature and the spread of the months; an
/// autoregressive series of lag-one correlation r with this scatter of its means over N days varies from day
/// to day by sqrt(N (1 - r) / (1 + r)) times as much.
[[nodiscard]] Monatswerte tagesstreuung(const Monatswerte& ta);

/// Makes the air temperature of a station's year, °C, to whole tenths: daily means as an autoregressive
/// series around the smooth course of the year, and upon them the day's wave with a range that follows the
/// day's clearness. The months' means and mean daily ranges are those of the facts.
[[nodiscard]] Stundenwerte temperatur_erzeugen(const Stationsfakten& station, const Tageswerte& klarheit);

}  // namespace velmaris::klimasatz
