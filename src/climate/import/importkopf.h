#pragma once

#include "climate/import/importquelle.h"
#include "climate/import/importspalten.h"
#include "toolkit/fehler.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velmaris {

/// What a column of a source can hold: the rows of the lists `Datenreihe`.
namespace belegung {
inline constexpr std::int16_t unbenutzt = 0;
inline constexpr std::int16_t temperatur = 1;
inline constexpr std::int16_t gesamtstrahlung = 2;
inline constexpr std::int16_t direktstrahlung = 3;
inline constexpr std::int16_t diffusstrahlung = 4;
}  // namespace belegung

/// What the columns 1..100 of a source hold.
using Spaltenbelegungen = Reihe<std::int16_t, 1, importspalten>;

/// A place as the import window shows it: numbers as texts without a sign, and the sign beside them.
struct Ortsangaben {
    std::string Standortname;
    std::string Land;
    std::string Breitengrad;  ///< degrees
    bool sued = false;        ///< the latitude counts to the south
    std::string Laengengrad;  ///< degrees
    bool west = false;        ///< the longitude counts to the west
    std::string Zeitzone;     ///< hours
    bool gmt_minus = false;   ///< the zone is behind Greenwich

    friend bool operator==(const Ortsangaben&, const Ortsangaben&) = default;
};

/// What a recognised source says about itself, or the user about any other.
struct Quellkopf {
    Quellform form = Quellform::frei;
    Trennung trennung = Trennung::tabulator;
    int kopfzeilen = 0;
    bool dezimalkomma = false;
    Ortsangaben ort;
    Spaltenbelegungen spalten;
};

/// The head of an hourly text of Meteonorm: place; latitude, longitude (north and east positive), height and
/// zone (east negative), with commas between them; a line without meaning; the column names. Only the first
/// six columns are assigned. The country is not told.
[[nodiscard]] Quellkopf Meteonorm_Lesen(const Importquelle& quelle);

/// The head of an EnergyPlus weather file: "LOCATION", city, state, country, source, station number,
/// latitude, longitude, zone (north and east positive), height. Dry bulb, global horizontal, direct normal
/// and diffuse horizontal radiation are the columns 7, 14, 15 and 16. Source: EnergyPlus documentation,
/// Auxiliary Programs, "EnergyPlus Weather File (EPW) Data Dictionary". The head has eight lines, or more if
/// a comment is broken: it ends with the line of the data periods, or before the first hour if it has none.
[[nodiscard]] Quellkopf Epw_Lesen(const Importquelle& quelle);

/// How many rows an EnergyPlus file has for each hour: as it says, else as its first rows show; mostly "1".
[[nodiscard]] std::string epw_werte_je_stunde(const Importquelle& quelle);

/// True for the name of a place or country; a text of blanks, "-" and "unknown" (in any case) name none. The
/// heads that are read leave such a field empty.
[[nodiscard]] bool ist_benannt(std::string_view text);

/// The head by the source's own layout, nothing if it is not recognised.
[[nodiscard]] std::optional<Quellkopf> kopf_erkennen(const Importquelle& quelle);

/// The sentence that says as what a source was recognised, empty for `frei`.
[[nodiscard]] Zweisprachig erkannt_als(Quellform form);

}  // namespace velmaris
