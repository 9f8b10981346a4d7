#pragma once

#include "toolkit/fehler.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// Bounds of a number, both included.
struct Grenzen {
    double von;
    double bis;
};

/// Name of a table and the places of its columns.
struct Csvkopf {
    std::string datei;
    std::map<std::string, std::size_t, std::less<>> spalten;
};

/// A row of a table. Its fields are asked for by the name of their column, which must be one of those that
/// the reading demanded.
class Csvzeile {
  public:
    /// Takes the line `nummer` (from 1) apart. Another number of fields than the head has is a Dateifehler.
    Csvzeile(std::shared_ptr<const Csvkopf> kopf, std::string_view text, int nummer);

    [[nodiscard]] const std::string& datei() const { return kopf_->datei; }
    [[nodiscard]] int nummer() const { return nummer_; }

    /// A field as it stands. An empty one, a blank at its edge and a quotation mark are a Dateifehler.
    [[nodiscard]] const std::string& text(std::string_view spalte) const;

    /// A field as a number within the bounds.
    [[nodiscard]] double zahl(std::string_view spalte, Grenzen grenzen) const;

    /// A field as a whole number within the bounds.
    [[nodiscard]] int ganzzahl(std::string_view spalte, Grenzen grenzen) const;

    /// Ends the reading with a Dateifehler that names file, line and field.
    [[noreturn]] void ablehnen(std::string_view spalte, const Zweisprachig& grund) const;

  private:
    std::shared_ptr<const Csvkopf> kopf_;
    std::vector<std::string> felder_;
    int nummer_;
};

/// Reads a comma-separated table strictly: UTF-8, one head line that names the columns, no quoting. The
/// columns may stand in any order, and others than the demanded ones may stand there too. A demanded column
/// that is missing, a name that stands there twice, a row of another number of fields and a table without
/// rows are a Dateifehler with `datei`, line and column. There is at least one row.
[[nodiscard]] std::vector<Csvzeile> csv_lesen(std::string_view text, const std::string& datei,
                                              const std::vector<std::string>& verlangte_spalten);

}  // namespace velmaris
