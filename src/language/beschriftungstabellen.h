#pragma once

#include "language/beschriftungen.h"

namespace velmaris::beschriftungstabellen {

/// The captions of one window.
struct Fenster {
    std::string_view name;
    std::span<const Beschriftung> zeilen;
};

/// Input planes with their button bar.
[[nodiscard]] std::span<const Fenster> eingabe();

/// Output planes with their button bar, the report and the zoom window.
[[nodiscard]] std::span<const Fenster> ausgabe();

/// Main window and dialogs.
[[nodiscard]] std::span<const Fenster> rahmen();

}  // namespace velmaris::beschriftungstabellen
