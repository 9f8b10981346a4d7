#pragma once

#include "documents/print/blatt.h"

#include <array>
#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace velmaris {

/// The month names of the printed pages, fixed for both languages: as heads of the half years of a table, and
/// as one line under a diagram whose months are 8 mm wide.
inline constexpr std::array<Wort, 2> monate_der_tabellen{{
    {"  Jan.   Feb.   Mär.   Apr.    Mai   Jun.", "  Jan.   Feb.   Mar.   Apr.    May   Jun."},
    {"  Jul.   Aug.   Sep.   Okt.   Nov.   Dez.", "  Jul.   Aug.   Sep.   Oct.   Nov.   Dec."},
}};
inline constexpr Wort monate_der_diagramme{
    "  Jan.   Feb.   Mär.   Apr.    Mai    Jun.    Jul.    Aug.   Sep.   Okt.   Nov.   Dez.",
    "  Jan.   Feb.   Mar.   Apr.    May   Jun.    Jul.    Aug.   Sep.   Oct.   Nov.   Dec."};

/// The words of a line of names.
[[nodiscard]] std::vector<std::string_view> worte(std::string_view zeile);

/// A row of a table by months: its name, its value in month 1..12 and that of the year.
struct Tabellenzeile {
    std::string name;
    std::function<double(int)> monat;
    std::optional<double> jahr;
    int stellen = 1;
};

/// How a table by months looks.
struct Tabellenform {
    Wort einheit = {};           ///< over the names of the rows
    std::array<Wort, 2> jahr{};  ///< head of the last column, on two lines
    double zeilenhoehe = 4.6;
    double schrift = 9;
};

/// Prints the half years one under the other, the year behind the second, from y down. Returns the y of
/// the last rule.
double monatstabelle_drucken(Blatt& blatt, double y, const Tabellenform& form,
                             std::span<const Tabellenzeile> zeilen);

}  // namespace velmaris
