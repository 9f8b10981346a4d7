#pragma once

#include "planes/scrolltabelle.h"
#include "toolkit/wort.h"

#include <string_view>
#include <variant>

namespace velmaris {

/// The position of a scroll field that is nearest to a number which was typed for its display, or why there
/// is none: the text is no number of that unit, or the number lies outside the range; either names the range.
/// The number has a point or a comma whatever the locale and may carry the unit, with or without blanks,
/// strokes and parentheses in it, and a caption with a colon before it.
[[nodiscard]] std::variant<int, Zweisprachig> eingabewert(const Scrollzeile& zeile, std::string_view text);

}  // namespace velmaris
