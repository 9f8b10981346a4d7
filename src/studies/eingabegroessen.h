#pragma once

#include "planes/eingabeebenen.h"
#include "planes/eingabehinweise.h"
#include "planes/scrolltabelle.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace velmaris {

/// An input as the planes name it and show its value.
struct Eingabegroesse {
    std::string groesse;  ///< name of the quantity in the record
    const Eingabehinweis& hinweis;
    std::optional<std::size_t> fassade;  ///< 0..3, north, south, east, west; of inputs that each of them has
    const Scrollzeile* regler;           ///< of a number; nothing for a choice
    Wort name;                           ///< without the facade

    /// What the planes of a record say, without the unit; a choice that says nothing is "-".
    std::function<std::string(const Eingabeebenen&)> wert;

    /// The name with its facade; a property of windows that are the same is one of all facades.
    [[nodiscard]] std::string bezeichnung(std::string_view sprache, bool gleiche_fenster = false) const;

    /// The unit; a choice has none.
    [[nodiscard]] std::string einheit() const;

    /// True for a property of windows, which are the same at all facades or not; their share is none.
    [[nodiscard]] bool fenstereigenschaft() const;

    /// True if windows that are the same have it from the south side.
    [[nodiscard]] bool folgt_dem_sueden() const;
};

/// An input that was changed, with what the planes show of it.
struct Eingabeaenderung {
    std::string name;
    std::string von;
    std::string nach;
    std::string einheit;
};

/// The first ones by name with both values, the others by number.
[[nodiscard]] std::string aufzaehlung(std::span<const Eingabeaenderung> aenderungen,
                                      std::string_view sprache);

/// All inputs in the order of the help.
[[nodiscard]] std::span<const Eingabegroesse> eingabegroessen();

/// The input behind a quantity of the record, nothing for a quantity that the planes do not show.
[[nodiscard]] const Eingabegroesse* eingabegroesse(std::string_view groesse);

/// A number of the record in what the planes show of it.
[[nodiscard]] double reglerwert(const Scrollzeile& regler, const Projekt& p);

/// What the planes show where a project asks for that number: the slider's nearest position, also beyond its
/// ends. Nothing for what is no number.
[[nodiscard]] std::optional<double> gefragter_reglerwert(const Scrollzeile& regler, std::string_view zahl);

}  // namespace velmaris
