#pragma once

#include "toolkit/felder.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace velmaris {

/// The captions of one label of a plane.
template <class Ebene>
struct Beschriftungszeile {
    Anzeige Ebene::*feld;
    const char* de;
    const char* en;
};

template <class Ebene, std::size_t n>
using Beschriftungen = std::array<Beschriftungszeile<Ebene>, n>;

/// Writes the captions of a plane: English for the letter "e", German for any other.
template <class Ebene, std::size_t n>
void beschriften(Ebene& ebene, const Beschriftungen<Ebene, n>& zeilen, std::string_view sprache) {
    for (const auto& zeile : zeilen)
        (ebene.*zeile.feld).schreibe(sprache == "e" ? zeile.en : zeile.de);
}

}  // namespace velmaris
