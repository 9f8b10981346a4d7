#pragma once

#include "desktop/widgets/ebenenbau.h"
#include "planes/Start.h"

class QWidget;

namespace velmaris {

/// The start window, later the about box. Its picture is in the folder Grafiken of the program.
QWidget* startfenster(Start& start, const Ansichtsmittel& mittel,
                      const std::filesystem::path& programmordner);

/// Shows the language window and waits for the choice: "d" or "e", nothing if it was closed without one. The
/// two pictures are in the folder Grafiken of the program.
[[nodiscard]] std::optional<std::string> sprachfenster(const std::filesystem::path& programmordner);

}  // namespace velmaris
