#pragma once

#include "project/tabellen.h"

#include <string>
#include <string_view>

namespace velmaris {

inline constexpr int heizsysteme = 9;              ///< rows of the catalogue, `Heizsystem` 1..9
inline constexpr int uebergaben = 2;               ///< transfers of a row, `Uebergabe` 1..2
inline constexpr int energietraeger_je_zeile = 4;  ///< carriers of a row, `Energietraeger` 1..4

/// One heating system with what may go with it; an empty text stands for a choice that is not on offer.
struct Heizsystemzeile {
    std::string Bezeichnung;
    Reihe<std::string, 1, uebergaben> Uebergabe;  ///< 1 radiators, 2 floor heating
    Reihe<std::string, 1, energietraeger_je_zeile> Energietraeger;
};

using Heizsystemkatalog = Reihe<Heizsystemzeile, 1, heizsysteme>;

/// The catalogue of heating systems in the language given: English for "e", else German.
[[nodiscard]] Heizsystemkatalog katalog_laden(std::string_view sprache);

/// True for the electric heatings without a transfer system (8 and 9): any `Uebergabe` counts as 1 there.
[[nodiscard]] bool ohne_uebergabe(int system);

/// A heating system outside 1..9, a transfer outside 1..2, a carrier outside 1..4 and a carrier
/// that the system does not offer are a Laufzeitfehler that names `Heizsystem`, `Uebergabe` or
/// `Energietraeger`.
void kombination_pruefen(int system, int uebergabe, int energietraeger);

}  // namespace velmaris
