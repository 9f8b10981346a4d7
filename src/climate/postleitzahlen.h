#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace velmaris {

/// Looks up the climate region of a German post code by its first three characters in the table plz.txt, a
/// list of items "ppp;rr": 1..12, 0 for a prefix that is not in use, nothing for one that the table lacks or
/// gives a region that does not exist. A table that cannot be read is a Dateifehler.
[[nodiscard]] std::optional<int> region_der_postleitzahl(const std::filesystem::path& tabelle,
                                                         std::string_view plz);

}  // namespace velmaris
