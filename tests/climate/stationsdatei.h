#pragma once

#include "project/tabellen.h"

#include <functional>
#include <string>

namespace velmaris::test {

/// The numbers of one data row as they stand in its columns of five characters.
struct Datenzeile {
    std::string Ta = "10.0", G_Gh = "0", G_Dh = "0";
};

/// Text of a station file: the rows follow in the order of the file, `zeile(0)` being the last hour of the
/// year, `zeile(1)` the first. The head is that of a place at 49.75 degrees north, 6.66 degrees east in
/// the zone of Central Europe.
struct Stationsdatei {
    std::string ort = "Testfeld (Deutschland)";
    std::string breite = "Breitengrad:  49.75";
    std::string laenge = "L\xE4ngengrad:   -6.66";
    std::string zone = "Zeitzone:     -1";
    int zeilen = stunden_im_jahr;
    std::function<Datenzeile(int)> zeile = [](int) { return Datenzeile{}; };

    [[nodiscard]] std::string text() const;
};

/// A station file without any data rows, as the station lists read it: name in windows-1252, degrees north
/// and east.
[[nodiscard]] std::string kopftext(const std::string& name, double breite, double laenge);

}  // namespace velmaris::test
