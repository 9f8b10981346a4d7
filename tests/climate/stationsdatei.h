#pragma once

#include "project/tabellen.h"
#include "toolkit/text.h"

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

    [[nodiscard]] std::string text() const {
        std::string text =
            ort + "\r\n" + breite + "\r\n" + laenge + "\r\n" + zone + "\r\n\r\n   dy   Ta G_Gh G_Dh\r\n";
        for (int i = 0; i < zeilen; ++i) {
            const Datenzeile werte = zeile(i);
            text += "    1" + rechtsbuendig(werte.Ta, 5) + rechtsbuendig(werte.G_Gh, 5) +
                    rechtsbuendig(werte.G_Dh, 5) + "\r\n";
        }
        return text;
    }
};

/// A station file without any data rows, as the station lists read it: name in windows-1252, degrees north
/// and east.
[[nodiscard]] inline std::string kopftext(const std::string& name, double breite, double laenge) {
    return Stationsdatei{.ort = name,
                         .breite = "Breitengrad:  " + std::to_string(breite),
                         .laenge = "Laengengrad:  " + std::to_string(-laenge),
                         .zeilen = 0}
        .text();
}

}  // namespace velmaris::test
