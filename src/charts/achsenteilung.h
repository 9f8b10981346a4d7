#pragma once

#include <string>
#include <vector>

namespace velmaris {

/// The round numbers of an axis: multiples of 1, 2 or 5 times a power of ten.
class Achsenteilung {
  public:
    /// The finest one of which at most `hoechstens` steps cover the range from `von` to `bis`, both finite; a
    /// range of no length counts as one of its number's size.
    Achsenteilung(double von, double bis, int hoechstens);

    [[nodiscard]] double schritt() const { return vielfaches(1); }

    /// The multiples around the range, and those inside of it.
    [[nodiscard]] double unten() const;
    [[nodiscard]] double oben() const;
    [[nodiscard]] std::vector<double> striche() const;

    /// A multiple with as many decimals as all of them need.
    [[nodiscard]] std::string zahl(double strich) const;

  private:
    [[nodiscard]] double vielfaches(double n) const;

    double von_;
    double bis_;
    int ziffer_ = 1;    ///< 1, 2 or 5
    int exponent_ = 0;  ///< of ten
};

}  // namespace velmaris
