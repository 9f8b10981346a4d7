#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris::bilder {

/// A comma-separated table with one head line. Strict: the head must be exactly the expected one, and every
/// row must have as many fields. Whatever is wrong is a Dateifehler that names file, line and field.
class Tabelle {
  public:
    /// Reads a file whose head line holds these column names in this order.
    Tabelle(const std::filesystem::path& datei, std::vector<std::string> spalten);

    [[nodiscard]] std::size_t zeilen() const { return zeilen_.size(); }

    /// A field as it stands; row and column from 0, the head not counted.
    [[nodiscard]] const std::string& text(std::size_t zeile, std::size_t spalte) const;

    /// A field as a number between the bounds, both included.
    [[nodiscard]] double zahl(std::size_t zeile, std::size_t spalte, double von, double bis) const;

    /// A field as a whole number between the bounds, both included.
    [[nodiscard]] int ganzzahl(std::size_t zeile, std::size_t spalte, int von, int bis) const;

    /// Ends the reading with a Dateifehler at this field.
    [[noreturn]] void ablehnen(std::size_t zeile, std::size_t spalte, std::string_view de,
                               std::string_view en) const;

  private:
    std::string datei_;
    std::vector<std::string> spalten_;
    std::vector<std::vector<std::string>> zeilen_;
};

}  // namespace velmaris::bilder
