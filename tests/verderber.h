#pragma once

#include <cstddef>
#include <random>
#include <string>

namespace velmaris::test {

/// Spoils texts by chance; the same seed spoils them in the same way again.
class Verderber {
  public:
    explicit Verderber(unsigned saat) : zufall_(saat) {}

    /// One of the numbers below `unter`, 0 for 0.
    std::size_t los(std::size_t unter) { return unter == 0 ? 0 : zufall_() % unter; }

    /// Makes one to six changes, half of them near the beginning: a byte, a stretch cut out, doubled or put
    /// in, seldom all behind a place cut off.
    [[nodiscard]] std::string verderbe(std::string text);

  private:
    std::minstd_rand zufall_;
};

}  // namespace velmaris::test
