#pragma once

#include "project/tabellen.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace velmaris {

/// What tells the columns of an import source apart. The first three are the user's choice in this order.
/// Between commas, a field may stand in double quotes: they are no part of it, and commas within are.
enum class Trennung { tabulator, linksbuendig, rechtsbuendig, komma };

/// Columns of a source that can be used.
inline constexpr int importspalten = 100;

/// Where the columns of a source with blanks between them lie, as a sample line shows it. Positions count
/// from 1; 0 stands for none.
struct Spaltenlage {
    /// Left-aligned columns: the place of a column's first character; right-aligned: the place behind its
    /// last one.
    Reihe<std::int16_t, 1, importspalten> Spaltenanfang;
    std::int16_t Spaltenzahl = 0;
};

/// The columns of a sample line, left-aligned or right-aligned. Columns that lie beyond what
/// `Spaltenanfang` can hold are left out.
[[nodiscard]] Spaltenlage Spalten_Festlegen(std::string_view musterzeile, Trennung trennung);

/// The n-th field (from 1) of a line with tabs between its fields; nothing if there are fewer fields.
[[nodiscard]] std::optional<std::string_view> StelleTab(std::string_view zeile, int n);

/// The n-th field (from 1) of a line with blanks between its fields; nothing if there is no such column. A
/// left-aligned field needs a line that reaches beyond the field's first character.
[[nodiscard]] std::optional<std::string_view> StelleLeer(std::string_view zeile, int n,
                                                         const Spaltenlage& lage, Trennung trennung);

/// Takes lines apart.
class Spaltenteiler {
  public:
    /// `musterzeile` shows the columns where blanks separate them, and how many there are.
    Spaltenteiler(Trennung trennung, std::string_view musterzeile);

    /// The n-th field (from 1) of a line, nothing if the line has none. Doubled quotes in quotes stay
    /// doubled.
    [[nodiscard]] std::optional<std::string_view> stelle(std::string_view zeile, int n) const;

    /// Number of columns of the sample line, 0..`importspalten`.
    [[nodiscard]] std::int16_t spaltenzahl() const { return lage_.Spaltenzahl; }

  private:
    Trennung trennung_;
    Spaltenlage lage_;
};

}  // namespace velmaris
