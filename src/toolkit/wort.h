#pragma once

#include <string>
#include <string_view>

namespace velmaris {

/// True for the letters of a language, "d" and "e".
[[nodiscard]] constexpr bool bekannte_sprache(std::string_view buchstabe) {
    return buchstabe == "d" || buchstabe == "e";
}

/// True for the letter of English; any other letter speaks German.
[[nodiscard]] constexpr bool englisch(std::string_view buchstabe) {
    return buchstabe == "e";
}

/// The same in both languages, side by side.
template <class Inhalt>
struct Sprachpaar {
    Inhalt de;
    Inhalt en;

    /// What belongs to the language letter: English for "e", German for anything else.
    [[nodiscard]] constexpr const Inhalt& in(std::string_view buchstabe) const {
        return englisch(buchstabe) ? en : de;
    }
};

/// A text of the program's tables, which live as long as the program.
using Wort = Sprachpaar<std::string_view>;

/// A text that is put together at run time.
using Zweisprachig = Sprachpaar<std::string>;

}  // namespace velmaris
