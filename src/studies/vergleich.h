#pragma once

#include "planes/Haupt.h"

#include <memory>
#include <span>
#include <string>
#include <vector>

namespace velmaris {

/// An input that is not the same in all projects, as the planes show it.
struct Eingabevergleich {
    std::string name;
    std::string einheit;
    bool zahl = false;               ///< of a scroll field, as opposed to a choice
    std::vector<std::string> werte;  ///< one for each project
};

/// A result of all projects.
struct Ergebnisvergleich {
    std::string name;
    std::string einheit;
    int stellen = 0;            ///< decimals that are shown
    std::vector<double> werte;  ///< one for each project

    /// What project i (0 is the base) has more than the base, and the same in per cent of the base; not a
    /// number where the base has nothing.
    [[nodiscard]] double abweichung(std::size_t i) const { return werte[i] - werte[0]; }
    [[nodiscard]] double prozent(std::size_t i) const;
};

/// Projects beside each other; the first one is the base.
struct Vergleich {
    std::vector<std::string> projekte;  ///< names of the files, without folder where they differ so
    std::vector<Eingabevergleich> eingaben;
    std::vector<Ergebnisvergleich> ergebnisse;
    std::vector<std::string> saetze;  ///< for each project but the base: what changed and what it did
};

inline constexpr std::size_t kleinster_vergleich = 2;
inline constexpr std::size_t groesster_vergleich = 12;

using Projektreihe = std::span<const std::unique_ptr<Haupt>>;

/// Compares calculated projects, 2 to 12 of one language.
[[nodiscard]] Vergleich vergleichen(Projektreihe projekte);

/// A number with its sign, also a plus.
[[nodiscard]] std::string mit_vorzeichen(double wert, int stellen);

/// The figures for spreadsheets: a row for each input that differs and for each result, with columns for the
/// projects, the differences to the base and per cent; as RFC 4180 has it.
[[nodiscard]] std::string vergleich_csv(const Vergleich& vergleich, std::string_view sprache);

}  // namespace velmaris
