#pragma once

#include "project/c_glob.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace velmaris {

/// Where a quantity of the record lives.
using Feldzeiger = std::variant<float Projekt::*, std::int16_t Projekt::*, std::string Projekt::*>;

/// What a quantity is to the program.
enum class Feldart {
    eingabe,      ///< input, stored in the project file unless its line is 0
    geometrie,    ///< derived geometry
    kennwert,     ///< parameter of building or station
    jahressumme,  ///< year sum of the monthly balance
    energie,      ///< end and primary energy
    last          ///< largest load
};

/// One quantity of the record: its name, its place, its line in a project file (from 1, 0 = not stored).
struct Feldzeile {
    std::string_view name;
    Feldzeiger zeiger;
    Feldart art;
    int zeile;
};

/// All quantities of the record that are single values; the one table that drives the project file,
/// its error messages and the console's output.
[[nodiscard]] std::span<const Feldzeile> felder();

/// The row of the quantity that stands in that line of a project file.
[[nodiscard]] const Feldzeile& feld_der_zeile(int zeile);

/// The row of a name, nullptr if the record has no such quantity.
[[nodiscard]] const Feldzeile* feld_suchen(std::string_view name);

/// Where a quantity of a month lives.
using Monatszeiger =
    std::variant<float Monatswerte::*, std::int16_t Monatswerte::*, std::string Monatswerte::*>;

/// How the year's value of a quantity follows from those of its months.
enum class Jahresart { keine, summe, mittel };

/// One quantity of the month record: its name, its place, its unit (empty for a text or a plain number).
struct Monatszeile {
    std::string_view name;
    Monatszeiger zeiger;
    std::string_view einheit = {};
    Jahresart jahr = Jahresart::keine;
};

/// All quantities of the month record, in its order.
[[nodiscard]] std::span<const Monatszeile> monatsfelder();

}  // namespace velmaris
