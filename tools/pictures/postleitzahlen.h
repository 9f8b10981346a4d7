#pragma once

#include <filesystem>
#include <string>

namespace velmaris::bilder {

/// The post code table plz.txt from a table with the columns prefix and region: for each prefix 000..999 in
/// order a line "ppp;rr" with the region 1..12 right-aligned in columns 5 and 6, 0 for a prefix that is not
/// in use. Lines end in CR LF. A prefix that is missing, doubled or out of order is a Dateifehler.
[[nodiscard]] std::string postleitzahlen_text(const std::filesystem::path& datei);

}  // namespace velmaris::bilder
