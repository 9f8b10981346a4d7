#pragma once

#include "studies/vergleich.h"

#include <string>

namespace velmaris {

/// The comparison as one HTML page that needs nothing else: tables, a sentence for each variant, and the
/// charts as inline SVG at scales that all projects share; the temperatures are those of the month (1..12).
/// A project whose energy flows do not fit a diagram is a Laufzeitfehler.
[[nodiscard]] std::string vergleichsseite(Projektreihe projekte, const Vergleich& vergleich, int monat);

}  // namespace velmaris
