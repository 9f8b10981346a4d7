#pragma once

#include "documents/dokumentquelle.h"
#include "toolkit/drucker.h"
#include "toolkit/wort.h"

#include <array>
#include <string>

namespace velmaris {

inline constexpr int druckausgaben = 7;

/// Which of the outputs 1..7 are to be printed, at the places 0..6.
using Druckauswahl = std::array<bool, druckausgaben>;

/// All seven of them.
inline constexpr Druckauswahl alles_drucken{true, true, true, true, true, true, true};

/// Number of pages of what is ticked, 0..8.
[[nodiscard]] int druckseitenzahl(const Druckauswahl& auswahl);

/// Day, month and year of today at this place, joined by points.
[[nodiscard]] std::string heutiges_datum();

/// Prints all pages that are ticked as one document, each in its frame, with this date. Nothing ticked prints
/// nothing and ends no document. A failure of the device is a Laufzeitfehler.
void Ausdrucken(Drucker& drucker, const Dokumentquelle& quelle, const Druckauswahl& auswahl,
                const std::string& datum);

}  // namespace velmaris
