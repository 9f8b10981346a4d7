#pragma once

#include "project/c_glob.h"

namespace velmaris {

/// The scopes in which a climate station is chosen.
enum class Klimabereich { deutschland = 1, europa = 2, welt = 3 };

/// The number of a scope, as `Klimaauswahl` and the options of the climate plane have it.
[[nodiscard]] constexpr std::int16_t nummer(Klimabereich bereich) {
    return static_cast<std::int16_t>(bereich);
}

/// True if the record's station is chosen in that scope. A `Klimaauswahl` outside 1..3 is in none.
[[nodiscard]] inline bool im_bereich(const Projekt& p, Klimabereich bereich) {
    return p.Klimaauswahl == nummer(bereich);
}

}  // namespace velmaris
