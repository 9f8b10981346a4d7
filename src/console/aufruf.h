#pragma once

#include "toolkit/optionszeile.h"

#include <iosfwd>
#include <vector>

namespace velmaris {

/// Reads a call of the console program and carries it out; `argv` as main has it, the program's own name
/// first. Help and results go to `aus`, what is wrong with the call and all faults to `fehler`. Returns the
/// exit status: 0, 1 if something could not be done, 2 for a call that cannot be understood; nothing is
/// done then.
int aufrufen(int argc, const char* const* argv, std::ostream& aus, std::ostream& fehler);

/// All that such a call may hold, as its help tells it.
[[nodiscard]] std::vector<Optionszeile> worte_des_aufrufs();

}  // namespace velmaris
