#include "climate/regionen.h"

#include <array>
#include <cstddef>

namespace velmaris {
namespace {

constexpr std::array<Klimaregion, klimaregionen> regionen{{
    {"bremen.met", "  1: Nord- / Ostseeküste, nördliches Schleswig-Holstein",
     " Klimaregion 1 : Nord- und Ostseeküste, ", " nördliches Schleswig-Holstein "},
    {"braunschweig.met", "  2: Nord- / Westdeutsches Tiefland", " Klimaregion 2 : Nord- und ",
     " Westdeutsches Tiefland "},
    {"hamburg.met", "  3: Ruhrgebiet / Ballungsgebiete des Flachlandes",
     " Klimaregion 3 : Ruhrgebiet und weitere ", " Ballungsgebiete des Flachlandes "},
    {"trier.met", "  4: Nördl. und westl. Mittelgebirge ohne Hochlagen",
     " Klimaregion 4 : Nördliche und westliche ", " Mittelgebirge ohne Hochlagen "},
    {"würzburg.met", "  5: Franken und nördliches Baden-Württemberg", " Klimaregion 5 : Franken und ",
     " nördliches Baden-Württemberg "},
    {"frankfurt_main.met", "  6: Nördlicher Oberrheingraben",
     " Klimaregion 6 : ", " Nördlicher Oberrheingraben "},
    {"freiburg.met", "  7: Südlicher Oberrheingraben", " Klimaregion 7 : ", " Südlicher Oberrheingraben "},
    {"weihenstephan.met", "  8: Donaubecken / Alpenvorland bis ca. 600 m Höhe",
     " Klimaregion 8 : Donaubecken und ", " Alpenvorland bis ca. 600m Höhe "},
    {"münchen.met", "  9: Alpenvorl. (ca. 600 - 1000 m H.), NW Schwarzwald",
     " Klimaregion 9 : Alpenvorland (ca. 600 ", " -1000m Höhe), nordwestl. Schwarzwald "},
    {"hohenpeissenberg.met", "10: Schwarzwald, Schwäbische und Fränkische Alb",
     " Klimaregion 10 : Schwarzwald, ", " Schwäbische und Fränkische Alb "},
    {"passau.met", "11: Hochlagen der nördlichen und westlichen Mittelgebirge",
     " Klimaregion 11 : Hochlagen der nörd- ", " lichen und westlichen Mittelgebirge "},
    {"konstanz.met", "12: Bodensee mit Umgebung", " Klimaregion 12 : ", " Bodensee mit Umgebung "},
}};

}  // namespace

const Klimaregion& klimaregion(int nummer) {
    return regionen.at(static_cast<std::size_t>(nummer - 1));
}

int region_der_station(const Projekt& p) {
    int region = 0;
    for (int i = 1; i <= klimaregionen; ++i) {
        if (p.Regionsdatei(i) == p.Klimadatei) region = i;
    }
    return region;
}

void regionsdateien_setzen(Projekt& p) {
    for (int i = 1; i <= klimaregionen; ++i)
        p.Regionsdatei(i) = klimaregion(i).datei;
}

}  // namespace velmaris
