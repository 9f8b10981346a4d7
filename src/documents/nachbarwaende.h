#pragma once

#include "project/c_glob.h"

#include <string>
#include <string_view>

namespace velmaris {

/// The walls that adjoin a heated neighbour, by name and joined by commas; empty without any.
[[nodiscard]] std::string nachbarwaende(const Projekt& p, std::string_view sprache);

}  // namespace velmaris
