#pragma once

#include "toolkit/fehler.h"

#include <optional>
#include <string_view>

namespace velmaris {

/// Why a name cannot be that of a station file: it is a plain file name that ends in ".met", without a
/// folder, a drive or control characters. Nothing if it can.
[[nodiscard]] std::optional<Zweisprachig> klimanamensfehler(std::string_view name);

}  // namespace velmaris
