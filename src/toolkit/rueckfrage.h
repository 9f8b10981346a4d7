#pragma once

#include "toolkit/plattform.h"

namespace velmaris {

/// Asks a question whose careful answer is No; true only after a Yes. Of `frage` the text, the title and the
/// note are used.
[[nodiscard]] inline bool bejaht(Plattform& plattform, Meldung frage) {
    frage.symbol = Symbol::ausrufezeichen;
    frage.knoepfe = Knoepfe::ja_nein;
    frage.vorgabe = Antwort::nein;
    return plattform.melde(frage) == Antwort::ja;
}

}  // namespace velmaris
