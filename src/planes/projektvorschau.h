#pragma once

#include <filesystem>
#include <string>

namespace velmaris {

/// One line on a project file in the language `sprache`, calculated apart from any open project: length and
/// width, floors, station and heat demand, or why the file cannot be opened. Empty for a file of another
/// ending than ".vel".
[[nodiscard]] std::string projektvorschau(const std::filesystem::path& programmordner,
                                          const std::string& sprache, const std::filesystem::path& datei);

}  // namespace velmaris
