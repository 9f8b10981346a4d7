#pragma once

#include "project/c_glob.h"
#include "toolkit/fehler.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace velmaris {

/// Lines that a station file must have: 6 of the head and one for each hour of the year.
inline constexpr int zeilen_der_klimadatei = 8766;

/// Bounds of what is read of a station file, in bytes; the data set itself takes less than 200 KB.
inline constexpr std::size_t hoechste_stationsgroesse = std::size_t{2} << 20U;
inline constexpr std::size_t hoechste_kopfgroesse = std::size_t{64} << 10U;

/// What the station lists need of a station file.
struct Stationskopf {
    std::string name;     ///< first item of line 1, UTF-8
    double breite = 0;    ///< degrees, north positive
    double laenge = 0;    ///< degrees, west positive
    double zeitzone = 0;  ///< hours, zones east of Greenwich negative
};

/// Reads the beginning of a station file item by item, as the station lists do: a comma in line 1 ends
/// the name, and the rest of the line then counts as the line of the latitude, the latitude as longitude, the
/// longitude as time zone. A file that cannot be read or ends before the time zone, and a head of more than
/// `hoechste_kopfgroesse` are a Dateifehler.
[[nodiscard]] Stationskopf stationskopf_lesen(const std::filesystem::path& datei);

/// Reads the station file `Klimadatei` of the climate folders (`Klimaordner`). Fills `Monat().Tage`,
/// `Stationsname`, `Breite`, `Laengenkorrektur`, `Wetter`, `Dachraum`, `Strahlung`, and by
/// `monatsstrahlung_berechnen` the means and radiation sums of the months. Nothing else is recalculated. A
/// file that cannot be read, is too short or too large is a Dateifehler and leaves the former climate as it
/// was; the lengths of the months are set all the same.
///
/// Returns a warning that names file, line and value if the file holds values that no place on earth has or
/// columns without a number.
std::optional<Zweisprachig> klimadatei_lesen(Projekt& p);

/// The same from the bytes of a station file (windows-1252, lines end at CR LF or LF); `datei` is its name in
/// messages. Lines behind the last hour are not looked at, columns that a row lacks read as 0.
std::optional<Zweisprachig> klimadaten_uebernehmen(Projekt& p, std::string_view bytes,
                                                   const std::string& datei);

/// The Dateifehler of `klimadatei_lesen` for a station file of that name; nothing else.
void klimadatei_pruefen(const Projekt& p, std::string_view name);

}  // namespace velmaris
