#pragma once

#include <random>
#include <string>
#include <vector>

namespace velmaris::test {

/// The 69 lines of a project file with random values that its controls can be set to and that do not change
/// one another.
[[nodiscard]] std::vector<std::string> zufallszeilen(std::mt19937& zufall);

}  // namespace velmaris::test
