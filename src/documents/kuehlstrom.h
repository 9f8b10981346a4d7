#pragma once

namespace velmaris {

/// Primary energy factor of the electricity for cooling.
inline constexpr double f_p_Kuehlstrom = 3.0;

}  // namespace velmaris
