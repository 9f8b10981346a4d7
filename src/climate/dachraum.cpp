#include "climate/dachraum.h"

#include "toolkit/text.h"

#include <array>
#include <string_view>

namespace velmaris {
namespace {

struct Vorgabe {
    std::string_view text;
    float Faktor;
};

constexpr std::array<Vorgabe, 3> vorgaben{{
    {"Außen oder nicht gedämmtes Dach", 1.0F},
    {"Teilgedämmtes Dach", 0.8F},
    {"Voll gedämmtes Dach", 0.5F},
}};

constexpr std::size_t laenge_der_bezeichnung = 25;

/// Cut or filled with blanks to a number of characters, which are single bytes in the code page.
std::string feste_laenge(std::string_view utf8, std::size_t zeichen) {
    std::string bytes = nach_windows1252(utf8);
    bytes.resize(zeichen, ' ');
    return aus_windows1252(bytes);
}

}  // namespace

void dachraum_fuellen(Projekt& p) {
    int zeile = 0;
    for (const Vorgabe& v : vorgaben)
        p.Dachraum(zeile++) = {feste_laenge(v.text, laenge_der_bezeichnung), v.Faktor};
}

}  // namespace velmaris
