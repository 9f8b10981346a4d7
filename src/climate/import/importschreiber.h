#pragma once

#include "climate/import/importkopf.h"
#include "climate/import/importzeilen.h"

#include <optional>
#include <string>

namespace velmaris {

/// A place as the head of a station file holds it.
struct Stationsort {
    std::string name;     ///< place and country
    double breite = 0;    ///< degrees, north positive
    double laenge = 0;    ///< degrees, west positive
    double zeitzone = 0;  ///< hours, zones east of Greenwich negative
};

/// "Place (country)", the first line of a station file.
[[nodiscard]] std::string stationsname(const Ortsangaben& ort);

/// The place for the head of a station file; a decimal comma counts as a point. An angle or zone that is no
/// number, or that the earth does not have, and a name with control characters are an Importfehler.
[[nodiscard]] Stationsort stationsort(const Ortsangaben& ort);

/// What the user should know of a name as it will stand in the station file, empty if all is well: a comma
/// ends it early for the lists of stations, characters that windows-1252 lacks become "?".
[[nodiscard]] Zweisprachig namenshinweis(const std::string& stationsname);

/// What the user should know of a longitude and a time zone that lie more than 3 hours apart, which is
/// mostly a wrong sign; empty for others and while one of them is no number.
[[nodiscard]] Zweisprachig zonenhinweis(const Ortsangaben& ort);

/// Row i (from 0) of a station file: day, temperature, total and diffuse radiation, each right-aligned to
/// five columns. The diffuse radiation alone has a decimal, so that it can be longer; the reader takes its
/// first five characters.
[[nodiscard]] std::string stationszeile(int i, const Stundenwerte& stunde);

/// The text of a station file (windows-1252, CR LF, 8766 lines); nothing if it was cancelled.
[[nodiscard]] std::optional<std::string> stationstext(const Stationsort& ort, const Messjahr& jahr,
                                                      const Fortschrittsmelder& fortschritt);

}  // namespace velmaris
