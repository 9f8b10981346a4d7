#pragma once

#include "project/c_glob.h"

#include <filesystem>
#include <string_view>
#include <vector>

namespace velmaris {

/// Where climate data and the language file lie: the folder "klima" beside the program and, where that cannot
/// be written, one of the user's own, which is read first and written to.
class Klimaordner {
  public:
    /// `datenordner` as in `datenordner_bestimmen`.
    Klimaordner(const std::filesystem::path& programmordner, const std::filesystem::path& datenordner);
    explicit Klimaordner(const Projekt& p) : Klimaordner(p.AppPfad, p.Datenordner) {}

    /// The folders in the order in which they are read.
    [[nodiscard]] const std::vector<std::filesystem::path>& alle() const { return ordner_; }

    /// The file of that name (UTF-8) in the first folder that has it; its path beside the program where none
    /// has.
    [[nodiscard]] std::filesystem::path datei(std::string_view name) const;

    /// Where a file of that name is written.
    [[nodiscard]] std::filesystem::path ziel(std::string_view name) const;

    /// Writes a file whole or not at all and returns its path; the user's folder is made for it. A failure is
    /// a Dateifehler.
    std::filesystem::path schreiben(std::string_view name, std::string_view bytes) const;

  private:
    std::vector<std::filesystem::path> ordner_;
};

/// The folder of the user that takes what the program stores, empty while the folder "klima" beside the
/// program (that of the program itself, where there is no "klima") can be written and is no shared one.
/// `benutzerordner` is the platform's place for it, empty if there is none.
[[nodiscard]] std::filesystem::path datenordner_bestimmen(const std::filesystem::path& programmordner,
                                                          const std::filesystem::path& benutzerordner);

}  // namespace velmaris
