#pragma once

#include "project/klimaordner.h"
#include "toolkit/fehler.h"
#include "toolkit/plattform.h"

#include <optional>
#include <string>
#include <string_view>

namespace velmaris {

/// The name that is proposed for a station file: that of the source without drive, folders and extension.
[[nodiscard]] std::string vorgabename(std::string_view quellpfad);

/// Why a name (UTF-8, without extension) cannot be that of a station file on all systems and in a project,
/// nothing if it can.
[[nodiscard]] std::optional<Zweisprachig> namensfehler(std::string_view name);

/// The station file of that name (without extension).
[[nodiscard]] std::string stationsdatei(std::string_view name);

/// Asks for the name of a station file until it is a good one, and before an old file is overwritten.
/// `station` is the name of the place, `vorgabe` the name proposed. Returns the name with its extension,
/// nothing if the user gives up.
[[nodiscard]] std::optional<std::string> ziel_erfragen(Plattform& plattform, const std::string& sprache,
                                                       const Klimaordner& ordner, const std::string& station,
                                                       std::string vorgabe);

}  // namespace velmaris
