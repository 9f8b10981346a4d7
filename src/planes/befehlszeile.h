#pragma once

#include "toolkit/optionszeile.h"

#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace velmaris {

/// What the command line of the desktop program asks for, read as one text: "d" or "e" chooses the language
/// of the run and starts at once, a path that ends in ".vel" (quoted or not) opens a project, what follows
/// the last "|" is the first folder of the file dialogs.
class Befehlszeile {
  public:
    explicit Befehlszeile(std::string text) : text_(std::move(text)) {}

    /// The language letter, which also asks for the fast start without the start window.
    [[nodiscard]] std::optional<std::string> sprache() const;

    /// The first folder of the file dialogs, nothing if the command line names none.
    [[nodiscard]] std::optional<std::filesystem::path> ordner() const;

    /// The project to open, in lower case; in its own spelling where only that exists.
    [[nodiscard]] std::optional<std::string> projekt() const;

  private:
    std::string text_;
};

/// How the desktop program is called, and all that its command line may hold, with the run that prints
/// without a window.
inline constexpr const char* aufruf_des_programms =
    "velmaris [d | e | PROJEKT.vel]\n"
    "velmaris --drucken DATEI.pdf [--sprache d|e] PROJEKT.vel";
[[nodiscard]] std::vector<Optionszeile> worte_der_befehlszeile();

}  // namespace velmaris
