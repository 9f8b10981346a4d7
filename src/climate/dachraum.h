#pragma once

#include "project/c_glob.h"

namespace velmaris {

/// Fills the rows 0 to 2 of `Dachraum`: kind of the roof space, 25 characters, and reduction of the heat flow
/// through the flat roof. Row 3 stays as it is.
void dachraum_fuellen(Projekt& p);

}  // namespace velmaris
