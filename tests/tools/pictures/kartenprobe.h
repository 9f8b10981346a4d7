#pragma once

#include "toolkit/zeichenflaeche.h"
#include "tools/csv.h"

#include <filesystem>
#include <string>
#include <vector>

namespace velmaris::test {

/// The folder of the facts.
std::filesystem::path datenordner();

/// The folder of the program, where the delivered data lie.
std::filesystem::path programmordner();

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

/// The rows of a table of the facts.
std::vector<Csvzeile> fakten(const std::string& name, const std::vector<std::string>& spalten);

}  // namespace velmaris::test
