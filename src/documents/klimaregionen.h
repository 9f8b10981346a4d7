#pragma once

#include <array>
#include <string_view>

namespace velmaris {

/// What the documents call a climate region, on two lines. In German only.
using Regionszeilen = std::array<std::string_view, 2>;

/// The lines of region 1..12, each with its leading blank.
[[nodiscard]] const Regionszeilen& regionszeilen(int region);

}  // namespace velmaris
