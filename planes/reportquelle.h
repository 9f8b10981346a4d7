#pragma once

#include "documents/reportquelle.h"

namespace velmaris {

struct Haupt;

/// What the documents show of the program: its record, labels and the present choices of its lists. The
/// record and the planes must outlive it.
[[nodiscard]] Reportquelle reportquelle(Haupt& haupt);

}  // namespace velmaris
