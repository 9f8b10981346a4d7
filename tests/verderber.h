#pragma once

#include <algorithm>
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

    /// Puts up to four equal bytes in place of a stretch, one to six times and half of them near the
    /// beginning; seldom cuts off the rest.
    [[nodiscard]] std::string verderbe(std::string text) {
        for (std::size_t male = 1 + los(6); male > 0; --male) {
            const std::size_t ort = los(los(2) == 0 ? std::min<std::size_t>(text.size(), 400) : text.size());
            const char byte = los(2) == 0 ? "\t\n\r ,.-\"9eE"[los(12)] : static_cast<char>(los(256));
            text.replace(ort, los(20), los(5), byte);
        }
        if (los(6) == 0) text.resize(los(text.size()));
        return text;
    }

  private:
    std::minstd_rand zufall_;
};

}  // namespace velmaris::test
