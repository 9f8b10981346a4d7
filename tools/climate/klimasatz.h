#pragma once

#include "tools/climate/pruefung.h"

#include <filesystem>
#include <string>
#include <vector>

namespace velmaris::klimasatz {

/// A finished station file and what was found in it.
struct Klimadatei {
    std::string name;
    std::string bytes;
    Befund befund;
};

/// Makes and tests the files of all stations in `faeden` threads (1 or more), in the order of the list. The
/// first station of the list that fails gives its Dateifehler. The result does not depend on `faeden`.
[[nodiscard]] std::vector<Klimadatei> klimasatz_erzeugen(const std::vector<Stationsfakten>& stationen,
                                                         unsigned faeden);

/// Puts the files into a folder, all or none: they are written beside their places and moved there when each
/// is whole; if one cannot be moved, the former files come back. Other files of the folder stay. A failure
/// is a Dateifehler.
void klimasatz_schreiben(const std::filesystem::path& ordner, const std::vector<Klimadatei>& dateien);

}  // namespace velmaris::klimasatz
