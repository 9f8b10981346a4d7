#pragma once

#include "studies/jahresergebnisse.h"
#include "studies/schritt.h"
#include "toolkit/wort.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// The results by which steps are measured: heat and cooling demand, primary energy together, and for heating
/// and cooling. The first three have a chart. All in kWh/(m2 a).
inline constexpr std::size_t messgroessen = 5;
inline constexpr std::size_t bildgroessen = 3;
[[nodiscard]] const Ergebniszeile& messgroesse(std::size_t i);

/// One value for each of them.
using Messwerte = std::array<double, messgroessen>;

/// Decimals of an effect that are shown; what they show as nothing counts as no effect.
inline constexpr int wirkungsstellen = 2;
inline constexpr double kleinste_wirkung = 0.005;

/// An input one step away from the base, all else as it was.
struct Schritt {
    std::optional<Richtung> richtung;  ///< nothing for what keeps the input from both
    std::string nach;                  ///< what the input says then; empty without a step
    std::optional<double> zahl;        ///< the same of a number
    std::optional<Messwerte> werte;    ///< the results, nothing without a step that can be calculated
    std::string hinweis;               ///< why there is no step, or what else it moved
};

/// What the steps of an input do.
struct Eingabewirkung {
    std::string name;
    std::string einheit;
    std::string von;                ///< what it says in the base
    std::optional<double> zahl;     ///< the same of a number
    std::vector<Schritt> schritte;  ///< down and up, as far as there is something to tell
};

/// The inputs of a project varied one at a time.
struct Empfindlichkeit {
    std::string projekt;  ///< name of the file
    std::string station;  ///< which stays
    std::string sprache;
    Messwerte basis{};
    std::vector<Eingabewirkung> eingaben;  ///< in the order of the planes

    /// What a step adds to a result of the base; nothing for one that could not be calculated.
    [[nodiscard]] std::optional<double> wirkung(const Schritt& schritt, std::size_t groesse) const;

    /// The larger one of the effects of an input, whatever their signs.
    [[nodiscard]] double groesste_wirkung(const Eingabewirkung& eingabe, std::size_t groesse) const;

    /// The inputs with an effect on a result, the largest first; those that show the same number stay in the
    /// order of the planes.
    [[nodiscard]] std::vector<const Eingabewirkung*> nach_wirkung(std::size_t groesse) const;

    /// The inputs that can be stepped, but without an effect on a result.
    [[nodiscard]] std::vector<const Eingabewirkung*> ohne_wirkung(std::size_t groesse) const;
};

/// The word for a step, "nach oben" or "up"; empty for none.
[[nodiscard]] std::string_view richtungswort(const Schritt& schritt, std::string_view sprache);

/// Takes each input of an opened project one small step down and one up, one at a time, as the planes do it,
/// and calculates what a project that is saved then and opened again gives. A base that cannot be calculated
/// is a Laufzeitfehler or a Dateifehler.
[[nodiscard]] Empfindlichkeit empfindlichkeit(const Projekt& basis);

/// The figures for spreadsheets: a row for the base and for each step, in the order of the planes; as RFC
/// 4180 has it.
[[nodiscard]] std::string empfindlichkeit_csv(const Empfindlichkeit& e);

}  // namespace velmaris
