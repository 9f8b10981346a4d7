#pragma once

#include "project/c_glob.h"
#include "toolkit/wort.h"

#include <span>

namespace velmaris {

/// A result of the year: what it is, its unit, the decimals that are shown, and where it comes from.
struct Ergebniszeile {
    Wort name;
    const char* einheit;
    int stellen;
    double (*wert)(const Projekt&);
};

/// kWh/(m2 a)
extern const Ergebniszeile ergebnis_heizen;          ///< heat demand
extern const Ergebniszeile ergebnis_kuehlen;         ///< cooling demand
extern const Ergebniszeile ergebnis_primaer_heizen;  ///< primary energy for heating
extern const Ergebniszeile ergebnis_primaer_kuehlen;
extern const Ergebniszeile ergebnis_primaer;  ///< of both together, which is in no comparison

/// The results by which projects are told apart: demand, end and primary energy, loads, hours, temperatures,
/// time constant.
[[nodiscard]] std::span<const Ergebniszeile> jahresergebnisse();

}  // namespace velmaris
