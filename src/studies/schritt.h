#pragma once

#include "studies/eingabegroessen.h"
#include "toolkit/wort.h"

namespace velmaris {

/// Down to the smaller value or the entry before, up to the larger value or the entry behind.
enum class Richtung { runter, rauf };

/// How a step ended.
struct Schrittausgang {
    bool getan = false;  ///< the input has another value
    Wort grund = {};     ///< why it has none, or not that of a whole step; empty where nothing is to be said
};

/// False for the climate station: a place has no step.
[[nodiscard]] bool hat_schritte(const Eingabegroesse& groesse);

/// Takes one small step of an input as a user does on these planes: a click on the arrow of its scroll field,
/// the entry of its list before or behind, its check set or taken off. Other inputs follow as the planes have
/// it; what is locked stays.
Schrittausgang schritt_tun(Eingabeebenen& ebenen, const Eingabegroesse& groesse, Richtung richtung);

}  // namespace velmaris
