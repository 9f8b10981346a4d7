#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <utility>

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

}  // namespace velmaris
