#pragma once

#include "desktop/widgets/ebenenbau.h"
#include "planes/Start.h"

class QWidget;

namespace velmaris {

/// The start window, later the about box. `beenden` is run when it is closed while the program is not up yet.
QWidget* startfenster(Start& start, const Haupt& haupt, const Ansichtsmittel& mittel,
                      std::function<void()> beenden);

/// Shows the language window and waits for the choice: "d" or "e", nothing if it was closed without one. The
/// two pictures are in the folder Grafiken of the program.
[[nodiscard]] std::optional<std::string> sprachfenster(const std::filesystem::path& programmordner);

}  // namespace velmaris
