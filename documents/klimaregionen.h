#pragma once

#include "project/c_glob.h"

#include <array>
#include <string_view>

namespace velmaris {

/// The German climate region (1..12) of a project in the scope of Germany, 0 for any other station.
[[nodiscard]] int region_des_projekts(const Projekt& p);

/// What the documents call a climate region, on two lines of which the second may be empty. In German only.
using Regionszeilen = std::array<std::string_view, 2>;

/// The lines of region 1..12, each with its leading blank.
[[nodiscard]] const Regionszeilen& regionszeilen(int region);

}  // namespace velmaris
