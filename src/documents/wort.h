#pragma once

#include <string_view>

namespace velmaris {

/// A text of the program in both languages, side by side.
struct Wort {
    std::string_view de;
    std::string_view en;

    /// English for "e", German for anything else.
    [[nodiscard]] constexpr std::string_view in(std::string_view sprache) const {
        return sprache == "e" ? en : de;
    }
};

}  // namespace velmaris
