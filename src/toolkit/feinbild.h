#pragma once

#include <filesystem>
#include <string>

namespace velmaris {

/// How many pixels of the fine edition of a delivered picture lie along a pixel of the picture itself.
inline constexpr int feinheit_der_bilder = 4;

/// The file of the fine edition of a picture, for drawings that are enlarged.
[[nodiscard]] inline std::filesystem::path feines_bild(const std::filesystem::path& bild) {
    std::filesystem::path datei = bild.parent_path() / bild.stem();
    datei += "@" + std::to_string(feinheit_der_bilder);
    return datei += bild.extension();
}

}  // namespace velmaris
