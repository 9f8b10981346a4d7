#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// Layouts of import sources that are known by themselves.
enum class Quellform {
    frei,       ///< any other text; the user tells what is where
    meteonorm,  ///< hourly text of Meteonorm: four head lines, tabs
    epw,        ///< EnergyPlus weather file: eight head lines, commas
};

/// The text of an import source and its lines, which end at LF or CR LF. A byte order mark at the
/// beginning does not belong to the text, and neither do lines behind the millionth.
class Importquelle {
  public:
    Importquelle() = default;
    explicit Importquelle(std::string bytes);

    [[nodiscard]] const std::string& bytes() const { return bytes_; }
    [[nodiscard]] int zeilenzahl() const { return static_cast<int>(anfang_.size()); }

    /// The n-th line (from 1) without its end, empty behind the last one.
    [[nodiscard]] std::string_view zeile(int n) const;

  private:
    std::string bytes_;
    std::vector<std::size_t> anfang_;  ///< places of the lines in the bytes
};

/// Reads a source whole. A file that cannot be read, is larger than any year of hours (512 MB) or than the
/// memory that is left is a Dateifehler.
[[nodiscard]] Importquelle quelle_lesen(const std::filesystem::path& datei);

/// The layout by which a source names itself: an EnergyPlus file in its first line ("LOCATION"), a
/// Meteonorm file by the column names of its fourth.
[[nodiscard]] Quellform quellform(const Importquelle& quelle);

/// A text of a source for display, UTF-8: taken as UTF-8 if it is that, else as windows-1252. Control
/// characters but tabs become blanks; what lies beyond `hoechstens` bytes becomes "...".
[[nodiscard]] std::string quelltext(std::string_view bytes, std::size_t hoechstens = 1000);

}  // namespace velmaris
