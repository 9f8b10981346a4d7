#pragma once

#include "planes/Haupt.h"

#include <filesystem>
#include <memory>
#include <string>

namespace velmaris {

/// The whole program on a new project that is neither read from a station nor calculated, in the language
/// `sprache` ("d" or "e").
[[nodiscard]] std::unique_ptr<Haupt> programm_vorbereiten(Plattform& plattform,
                                                          const std::filesystem::path& programmordner,
                                                          const std::string& sprache);

/// The whole program on a project file, calculated, with all labels up to date; for programs without
/// a window. A file that cannot be read or has no known version is a Dateifehler.
[[nodiscard]] std::unique_ptr<Haupt> projekt_rechnen(Plattform& plattform,
                                                     const std::filesystem::path& programmordner,
                                                     const std::string& sprache, const std::string& datei);

}  // namespace velmaris
