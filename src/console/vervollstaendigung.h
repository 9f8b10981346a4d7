#pragma once

#include "toolkit/optionszeile.h"

#include <string>
#include <vector>

namespace velmaris {

/// The script by which bash completes the calls of a program: its options, the words and numbers that they
/// take, and files of the ending that each wants.
[[nodiscard]] std::string vervollstaendigung(const std::string& programm,
                                             const std::vector<Optionszeile>& worte);

}  // namespace velmaris
