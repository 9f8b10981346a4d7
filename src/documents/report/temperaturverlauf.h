#pragma once

#include "project/c_glob.h"

#include <filesystem>
#include <string>

namespace velmaris {

/// The hourly table of month 1..12, or for 0 of all months, as the screen shows it: text (UTF-8, lines end in
/// CR LF) in the language of the record, one row per hour. Its head is not that of the year file.
[[nodiscard]] std::string temperaturverlauf_schreiben(const Projekt& p, int monat);

/// The hourly table of the whole year as text (UTF-8, lines end in CR LF), in the language of the record:
/// outdoor temperature, free-running indoor temperature, indoor temperature with heating and cooling, 8760
/// rows from hour 1 of January 1 to hour 24 of December 31. The values are those of the last simulation.
[[nodiscard]] std::string jahrestemperaturen(const Projekt& p);

/// Writes that table as a text file in windows-1252, whole or not at all; a failure is a Dateifehler.
void temperaturverlauf_exportieren(const Projekt& p, const std::filesystem::path& datei);

}  // namespace velmaris
