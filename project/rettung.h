#pragma once

#include "project/c_glob.h"

#include <filesystem>
#include <optional>

namespace velmaris {

/// Keeps what the user had typed when a fault ends the program: writes a project file of a name not yet in
/// use
/// ("Velmaris_Rettung.vel", "Velmaris_Rettung_2.vel" ...) beside the project, or in the folder for temporary
/// files if that cannot be written. Returns its path, nothing if neither folder takes it.
[[nodiscard]] std::optional<std::filesystem::path> projekt_retten(const Projekt& p);

}  // namespace velmaris
