#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmaris {

/// The number that a text of an import source stands for: everything up to a blank and control characters
/// in front and blanks behind are dropped, with `dezimalkomma` each comma counts as a point. Nothing if the
/// rest is no plain decimal number (sign and exponent are allowed).
[[nodiscard]] std::optional<double> StringToReal(std::string_view text, bool dezimalkomma);

/// The number-to-text form with a zero before a point that would stand first (" 0.5", "-0.4").
[[nodiscard]] std::string RealToString(double wert);

/// Puts the zero before a point that stands first behind the blank or the minus sign.
[[nodiscard]] std::string mit_null(std::string zahl);

}  // namespace velmaris
