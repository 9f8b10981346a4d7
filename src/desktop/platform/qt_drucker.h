#pragma once

#include "documents/planes/Drucken.h"
#include "toolkit/drucker.h"

#include <memory>

namespace velmaris {

/// Begins a document on A4 paper. The frame of the pages is laid out for 200 mm of width, so their origin
/// lies 5 mm inside the sheet. A printer that cannot be used is a Laufzeitfehler at once. A PDF file is
/// written at the end, whole or not at all; its failure is a Dateifehler.
[[nodiscard]] std::unique_ptr<Drucker> qt_drucker(const Druckziel& ziel);

}  // namespace velmaris
