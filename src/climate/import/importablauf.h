#pragma once

#include "climate/import/importkopf.h"
#include "climate/import/importquelle.h"
#include "climate/import/importschreiber.h"
#include "climate/import/importzeilen.h"
#include "project/klimaordner.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace velmaris {

// An import goes four steps, in the window and on the command line: `quelle_lesen`, `kopf_erkennen` where the
// source tells of itself, `importplan`, `station_importieren`.

/// How the rows of a source are read, and the place they belong to.
struct Importplan {
    Leseplan lesen;
    Stationsort ort;
};

/// The plan of what the source or the user says. Columns that are missing, then a place that the earth does
/// not have, are an Importfehler.
[[nodiscard]] Importplan importplan(const Quellkopf& angaben);

/// A station that was written.
struct Importergebnis {
    std::filesystem::path datei;
    Messjahr jahr;
};

/// Names the station file for a place; nothing gives the import up.
using Zielwahl = std::function<std::optional<std::string>(const Stationsort& ort)>;

/// Reads the year, has the target named, writes the station whole or not at all. Nothing if that was given up
/// or cancelled. Faults of the rows are an Importfehler, those of the folder a Dateifehler.
[[nodiscard]] std::optional<Importergebnis> station_importieren(const Importquelle& quelle,
                                                                const Importplan& plan,
                                                                const Klimaordner& ordner,
                                                                const Zielwahl& ziel_waehlen,
                                                                const Fortschrittsmelder& fortschritt);

}  // namespace velmaris
