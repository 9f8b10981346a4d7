#pragma once

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velmaris {

/// Degrees to radians with the digits that the whole model uses.
inline constexpr double grad_in_bogen = 0.01745;

/// Sets the decimal mark of `muster`, once at the start of a program and before any other thread runs.
void dezimalzeichen_setzen(char zeichen);

/// The decimal mark in force; a point until `dezimalzeichen_setzen` has run.
[[nodiscard]] char dezimalzeichen();

/// The decimal mark of the environment's locale ("," or "."); leaves the locale of the process as it was.
[[nodiscard]] char dezimalzeichen_der_umgebung();

/// A number by a pattern with `stellen` decimals ("0", "0.0", "#0.0", "0.00" ...), at least one digit before
/// the mark. Rounds the exact binary value half away from zero; never shows a negative zero.
[[nodiscard]] std::string muster(double wert, int stellen);

/// A number, or a text, with its unit behind it: after a blank, but for degrees, and nothing without a unit.
[[nodiscard]] std::string mit_einheit(std::string_view text, std::string_view einheit);

/// The plain number-to-text form: a blank or a minus sign, a point whatever the locale, no zero before
/// the point, at most seven significant digits (" 5.2", " .2", "-15", " 1.5E+07").
[[nodiscard]] std::string zahltext(double wert);

/// A finite number with the fewest digits that give the 32-bit number back, with a point whatever the locale;
/// with an exponent only where it is very large or small ("0.1", "8760", "1e-07").
[[nodiscard]] std::string kuerzeste(float wert);

/// The numeric read that never fails: blanks are skipped, a sign, digits and one decimal point form
/// the number, the first other character ends it; without a digit the result is 0.
[[nodiscard]] double zahl_lesen(std::string_view text);

/// A number that must fill the whole text but for blanks around it, with an optional exponent;
/// nothing if the text is no such number or not finite.
[[nodiscard]] std::optional<double> zahl_pruefen(std::string_view text);

/// Int: rounding down to a whole number.
[[nodiscard]] inline double ganzzahl(double wert) {
    return std::floor(wert);
}

/// Rounding to the nearest whole number, a half to the even neighbour.
[[nodiscard]] inline double runden(double wert) {
    return std::nearbyint(wert);
}

/// The one way into a 16-bit integer: rounds a half to the even neighbour; a value beyond
/// -32768..32767 or not a number is a Laufzeitfehler that names `feld`.
[[nodiscard]] std::int16_t i16(double wert, std::string_view feld);

/// The one way into a stored 32-bit float.
[[nodiscard]] inline float f32(double wert) {
    return static_cast<float>(wert);
}

}  // namespace velmaris
