#pragma once

#include <filesystem>

namespace velmaris {

/// The folder of climate data below the one that a program reads from.
inline constexpr const char* klimaunterordner = "klima";

/// The folder that a program reads its climate data, pictures, help and samples from: its own where they lie
/// beside it, as in a folder that can be moved as a whole, or else `../share/velmaris`, as in an installation
/// that shares folders with other programs. Its own as well where they are in neither.
[[nodiscard]] std::filesystem::path programmordner_bestimmen(const std::filesystem::path& ordner_der_datei);

/// True for such a shared folder: it belongs to the installation, and no user changes it, not even one who
/// may.
[[nodiscard]] bool gemeinsamer_ordner(const std::filesystem::path& programmordner);

}  // namespace velmaris
