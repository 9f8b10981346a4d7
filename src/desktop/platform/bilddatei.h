#pragma once

#include <QImage>
#include <filesystem>

namespace velmaris {

/// The picture of a file; null if it is missing or cannot be read.
[[nodiscard]] QImage bild_lesen(const std::filesystem::path& datei);

/// The fine edition of a picture, ready to be scaled; null where there is none.
[[nodiscard]] QImage feines_bild_lesen(const std::filesystem::path& datei);

/// The picture smoothly brought to a height of `hoehe` units, with the device pixel ratio `verhaeltnis` set;
/// from the fine edition where the picture itself has too few pixels.
[[nodiscard]] QImage bild_in_hoehe(const std::filesystem::path& datei, double hoehe, double verhaeltnis);

}  // namespace velmaris
