#pragma once

#include "toolkit/zeichenflaeche.h"

#include <filesystem>
#include <string>
#include <vector>

namespace velmaris::test {

/// The folder of the facts.
std::filesystem::path datenordner();

/// A bitmap as read back from its file.
struct Bitmap {
    int breite = 0;
    int hoehe = 0;
    std::vector<Farbe> pixel;  ///< row by row from the top

    [[nodiscard]] Farbe bei(int x, int y) const;
};

/// Reads a delivered picture of the folder Grafiken; a header that is not that of an uncompressed bitmap of
/// 24 bits is an exception.
Bitmap grafik(const std::string& name);

/// The hue of a colour: its channels from the strongest to the weakest. Reds and yellows begin with r and
/// blues with b; "rgb" is warm, "bgr" cool.
std::string farbton(Farbe farbe);

}  // namespace velmaris::test
