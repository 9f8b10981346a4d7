#pragma once

#include "climate/planes/A_Klima.h"
#include "energy/katalog_werte.h"
#include "project/feldtabelle.h"
#include "toolkit/csv.h"

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace velmaris {

/// A text of the climate plane, by its place among them.
struct Klimatext {
    std::size_t stelle = 0;
};

/// A result of a row under its name in the output of all values.
struct Ergebnis {
    std::string name;
    std::variant<const Feldzeile*, const Monatszeile*, const Kennwertzeile*, Klimatext> quelle;
};

/// What a calculated row holds.
struct Rechenstand {
    const Projekt& p;
    const Kennwerte& kennwerte;
    const A_Klima* klima;  ///< filled where a `Klimatext` is wanted
};

/// The results that a study gives where none are named, as `ergebnisse_lesen` takes them.
inline constexpr std::string_view hauptergebnisse =
    "qhs_sum,Kuehlbedarf,q_HE_Energietraeger,q_HE_Strom,q_PE_Energietraeger,q_PE_Strom,"
    "Heizlast_max,Kuehllast_max,Stunden_kalt,Stunden_komfort,Stunden_heiss";

/// Results by their names with commas between them; a monthly name stands for its year. An unknown name, one
/// that has no value of the year, and one that is there twice are a Laufzeitfehler.
[[nodiscard]] std::vector<Ergebnis> ergebnisse_lesen(std::string_view namen);

/// True if one of them is a text of the climate plane.
[[nodiscard]] bool brauchen_klima(const std::vector<Ergebnis>& ergebnisse);

/// The value of a result as a number; not a number for a text.
[[nodiscard]] float ergebniswert(const Ergebnis& ergebnis, const Rechenstand& stand);

/// True unless the result is a text.
[[nodiscard]] bool ist_zahl(const Ergebnis& ergebnis);

/// Writes the value of a result as a cell: a number with the fewest digits that give it back.
void ergebnis_schreiben(Csvtext& tabelle, const Ergebnis& ergebnis, const Rechenstand& stand);

}  // namespace velmaris
