#pragma once

#include <string>

namespace velmaris::hilfe {

/// A compiled help file without the two times of day that the compiler has put into it (in the head of the
/// file and in its object #SYSTEM), so that the same pages are the same bytes. A Laufzeitfehler if they are
/// not where they are expected.
[[nodiscard]] std::string ohne_zeitstempel(std::string bytes);

}  // namespace velmaris::hilfe
