#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// A place on a map picture in pixels from its top left.
struct Kartenpunkt {
    double x = 0;
    double y = 0;

    friend constexpr bool operator==(const Kartenpunkt&, const Kartenpunkt&) = default;
};

/// The place on the map of Europe of a latitude (north positive) and a longitude (east positive) in degrees.
/// The meridians lean outward towards the south, as on the picture.
[[nodiscard]] constexpr Kartenpunkt europapunkt(double breite, double laenge) {
    const double y = (132.0 / 30) * (74.104 - breite);
    const double gerade = (laenge + 25.203) * (92.0 / 30);
    return {gerade + (y / 240) * (gerade * (12.0 / 31) - 1193.0 / 31), y};
}

/// The same on the map of the world, whose meridians and parallels are straight.
[[nodiscard]] constexpr Kartenpunkt weltpunkt(double breite, double laenge) {
    return {laenge * 1.677777778 + 325, 123 - 1.677777778 * breite};
}

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
