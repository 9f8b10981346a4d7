#pragma once

#include "tools/climate/jahresgang.h"

#include <string_view>

namespace velmaris::klimasatz {

/// The weather of the days as standard normal numbers, each day as warm and as bright as its rank says.
struct Witterung {
    Tageswerte waerme;  ///< of the daily mean temperature
    Tageswerte helle;   ///< of the day's clearness
};

/// Lag-one correlation of the ranks of the daily mean temperature before they are brought to the months'
/// means.
inline constexpr double temperaturgedaechtnis = 0.7;

/// Lag-one correlation of the ranks of the days' clearness, in the mean of the year. Source: V. A. Graham, K.
/// G. T. Hollands, A. P. Brunger, "A time series model for Kt with application to global synthetic weather
/// generation", Solar Energy 40 (1988), 83-92.
inline constexpr double klarheitsgedaechtnis = 0.29;

/// Standard deviation of the months' means of a year, K: how strong the seasons are.
[[nodiscard]] double jahresspreizung(const Monatswerte& ta);

/// 0 at a place whose months spread by 1.2 K or less to 1 where they spread by 4.7 K and more, smoothly.
[[nodiscard]] double jahreszeitlichkeit(double spreizung);

/// Correlation of the ranks of warmth and brightness on a day on which the sun sends `draussen` kWh/m² to the
/// horizontal outside the air, at a place of the given latitude, degrees. Where the sun is strong,
/// bright days are warm; where the night's loss outweighs it, clear days are cold. The figures are chosen so
/// that the generated years lie among typical reference years (data/README.md).
[[nodiscard]] double sonnenwaerme(double draussen, double breite_n);

/// How far warm spells rise above the scatter more than cold ones fall below it, on a day of the given
/// `kopplung` in a season of the mean temperature `ta`, °C: the rank z becomes (exp(schiefe z) - 1) /
/// schiefe. In a cool summer a run of sunny days brings the heat of warmer lands; where it is hot already,
/// and in winter, the tails are even.
[[nodiscard]] double waermeschiefe(double kopplung, double ta);

/// What the ranks of each day depend on.
struct Jahreszeiten {
    Tageswerte kopplung;  ///< correlation of warmth and brightness, -0.8 .. 0.8
    Tageswerte schiefe;   ///< of the warmth, 0 .. 1
    Tageswerte stand;     ///< temperature of the season, in units of the scatter of the days, from any zero
};

/// The days of a year, the last of which leads on to the first. Like a reference year it is typical: in each
/// season the scatter of both series and what they share are as told, and of several years that are drawn
/// that with the middle of the heats is taken.
[[nodiscard]] Witterung witterung_erzeugen(std::string_view schluessel, const Jahreszeiten& jahreszeiten);

}  // namespace velmaris::klimasatz
