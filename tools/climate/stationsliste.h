#pragma once

#include "climate/sonne.h"
#include "tools/climate/jahresgang.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris::klimasatz {

/// What is known of a station.
struct Stationsfakten {
    std::string name;     ///< place, UTF-8, all of it within windows-1252
    std::string land;     ///< country, likewise
    std::string datei;    ///< file name of the station, lower case, with ".met"
    double breite_n = 0;  ///< latitude, degrees, north positive
    double laenge_o = 0;  ///< longitude, degrees, east positive
    double hoehe_m = 0;   ///< height above the sea, m
    double utc_h = 0;     ///< standard time, hours, east positive
    Monatswerte ta;       ///< mean air temperature of the month, °C
    Monatswerte dtr;      ///< mean of the days' maximum less minimum, K
    Monatswerte ghi;      ///< global radiation on the horizontal in the month, kWh/m²
    std::string liste;    ///< name of the list
    int zeile = 0;        ///< line of the list
};

/// Place and sun of the station as the program reads them from the station file: the figures of the header,
/// west positive.
[[nodiscard]] Standort standort(const Stationsfakten& station);

/// The head of a station file's lines 2 to 4 as numbers in text form.
struct Kopfzahlen {
    std::string breite;    ///< degrees, north positive, three decimals
    std::string laenge;    ///< degrees, west positive, three decimals
    std::string zeitzone;  ///< hours, west positive, as many decimals as it needs
};
[[nodiscard]] Kopfzahlen kopfzahlen(const Stationsfakten& station);

/// Name of the column that holds month m of a group ("ta", "dtr", "ghi").
[[nodiscard]] std::string monatsspalte(const std::string& gruppe, int m);

/// Reads the list of stations by `csv_lesen`. Any doubt (a figure missing, broken or out of range, a name
/// that windows-1252 lacks, a file name that is told twice or is none) is a Dateifehler with `datei`, line
/// and column.
[[nodiscard]] std::vector<Stationsfakten> stationsliste(std::string_view text, const std::string& datei);

/// The same for a file.
[[nodiscard]] std::vector<Stationsfakten> stationsliste_lesen(const std::filesystem::path& datei);

}  // namespace velmaris::klimasatz
