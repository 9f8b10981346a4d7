#pragma once

#include "climate/karten.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// A climate station of the lists.
struct Station {
    std::string name;   ///< first item of the station file's first line
    std::string datei;  ///< file name with extension, no folder
    Kartenpunkt ort;    ///< on the map of the list
};

/// The stations of the folder `klima` in ascending order of their names, byte by byte in windows-1252; equal
/// names in that of their files.
struct Stationslisten {
    std::vector<Station> Welt;
    std::vector<Station> Europa;  ///< those that lie on the map of Europe
};

/// Lists the station files (".met", but "klima.met") of some folders; a name that several of them have stands
/// for the file of the first. A file that cannot be read or ends within
/// its head is left out, so that one bad file costs one station; a file without a name is listed under its
/// file name. Without a folder the lists are empty.
[[nodiscard]] Stationslisten stationslisten_lesen(const std::vector<std::filesystem::path>& ordner);

/// True if the first name stands before the second one in the order of the lists.
[[nodiscard]] bool sortiert_vor(std::string_view name, std::string_view anderer);

/// Index of the station with that file, -1 if the list has none.
[[nodiscard]] int stationsindex(const std::vector<Station>& stationen, std::string_view datei);

/// The names of a list in their order.
[[nodiscard]] std::vector<std::string> stationsnamen(const std::vector<Station>& stationen);

}  // namespace velmaris
