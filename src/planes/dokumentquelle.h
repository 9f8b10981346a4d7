#pragma once

#include "documents/dokumentquelle.h"

namespace velmaris {

struct Haupt;

/// What the documents show of the program: its record, labels and the present choices of its lists. Labels
/// that are kept only while their plane is on the screen are written anew. The program must outlive it.
[[nodiscard]] Dokumentquelle dokumentquelle(Haupt& haupt);

}  // namespace velmaris
