#pragma once

#include "tools/climate/stationsliste.h"

#include <array>
#include <string_view>

namespace velmaris::klimasatz {

/// How a finished station file stands to the facts of its station; the worst of the year each.
struct Befund {
    double temperaturfehler = 0;  ///< month's mean less its fact, K, as an amount
    double spannenfehler = 0;     ///< month's mean daily range against its fact, share of the fact
    double strahlungsfehler = 0;  ///< month's sum less its fact, share of what may be missed
    double klarheit = 0;          ///< clearest hour, of the sun's mean in the hour
    double gedaechtnis = 0;  ///< lag-one correlation of the daily means' deviations from the smooth course
    double streuung = 0;     ///< of these deviations, in units of the law's
    double sonnenwaerme =
        0;  ///< correlation of the days' temperature and radiation, the three brightest months
    double direktstrahl = 0;  ///< strongest direct normal radiation that the program will derive, W/m²
};

/// Reads the bytes of a station file again and measures them. A file that has not the exact form, radiation
/// or a beam while the sun is down, or more diffuse than global radiation is a Dateifehler.
[[nodiscard]] Befund untersuchen(std::string_view bytes, const Stationsfakten& station);

/// One finding: what it is called, and within what it must lie.
struct Kenngroesse {
    const char* de;
    const char* en;
    double Befund::*wert;
    double von;
    double bis;
};

/// The table of all findings.
[[nodiscard]] const std::array<Kenngroesse, 8>& kenngroessen();

/// A Dateifehler for a file of which a finding lies outside its limits.
void befund_pruefen(const Befund& befund, const Stationsfakten& station);

}  // namespace velmaris::klimasatz
