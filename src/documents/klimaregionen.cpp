#include "documents/klimaregionen.h"

#include "climate/regionen.h"

#include <cstddef>

namespace velmaris {
namespace {

/// Spelled as the documents have always spelled them.
constexpr std::array<Regionszeilen, klimaregionen> zeilen{{
    {" Nord- und Ostseeküste,", " nördliches Schleswig-Holstein"},
    {" Nord- und", " Westdeutsches Tiefland"},
    {" Ruhrgebiet und weitere Ballungs-", " gebiete des Flachlandes"},
    {" Nördliche und westliche Mittel-", " gebirge ohne Hochlagen"},
    {" Franken und nördliches", " Baden-Würtemberg"},
    {" Nördlicher", " Oberrheingraben"},
    {" Südlicher", " Oberrheingraben"},
    {" Donaubecken und Alpenvorland", " bis ca. 600m Höhe"},
    {" Alpenvorland (ca. 600-1000m Höhe),", " nordwestl. Schwarzwald"},
    {" Schwarzwald, Schwäbische", " und Fränkische Alb"},
    {" Hochlagen der nördlichen ", " und westlichen Mittelgebirge"},
    {" Bodensee", " mit Umgebung"},
}};

}  // namespace

const Regionszeilen& regionszeilen(int region) {
    return zeilen.at(static_cast<std::size_t>(region - 1));
}

}  // namespace velmaris
