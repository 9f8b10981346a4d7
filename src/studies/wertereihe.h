#pragma once

#include "project/feldtabelle.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// The largest number of rows of a study.
inline constexpr std::uint64_t hoechste_zeilenzahl = 1'000'000'000;

/// The input of a name that a project file holds. Any other name is a Laufzeitfehler.
[[nodiscard]] const Feldzeile& eingabe_suchen(std::string_view name);

/// The values that one input runs through: a list, or equal steps.
class Wertereihe {
  public:
    /// From "NAME=FROM:TO:STEP" or "NAME=a,b,c". FROM and TO belong to the range, TO as far as the steps hit
    /// it; a negative step runs downwards. An unknown name, a text where a number belongs, an empty value, a
    /// step of 0 or away from TO, and too many steps are a Laufzeitfehler.
    explicit Wertereihe(std::string_view text);

    [[nodiscard]] const Feldzeile& feld() const { return *feld_; }
    [[nodiscard]] std::uint64_t anzahl() const { return anzahl_; }

    /// Value i (from 0) as a project file takes it.
    [[nodiscard]] std::string wert(std::uint64_t i) const;

  private:
    void schritte_lesen(std::string_view text);
    void liste_lesen(std::string_view text);

    const Feldzeile* feld_;
    std::vector<std::string> liste_;
    double von_ = 0;
    double schritt_ = 0;
    std::uint64_t anzahl_ = 0;
};

}  // namespace velmaris
