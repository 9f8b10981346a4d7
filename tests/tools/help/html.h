#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris::test {

/// The finished pages of a language by their names (without ".html").
[[nodiscard]] std::map<std::string, std::string> hilfeseiten(const std::string& sprache);

/// A tag of a page.
struct Marke {
    std::string name;      ///< "p", "/p"
    std::string zusatz;    ///< its attributes
    std::size_t ende = 0;  ///< place behind it
};

/// All tags of a page in their order.
[[nodiscard]] std::vector<Marke> marken(const std::string& seite);

/// The values of an attribute on a page.
[[nodiscard]] std::vector<std::string> attribute(const std::string& seite, std::string_view name);

/// The texts of all elements of that tag, without the tags inside them.
[[nodiscard]] std::vector<std::string> elemente(const std::string& seite, std::string_view name);

/// The page without its tags.
[[nodiscard]] std::string reiner_text(std::string_view seite);

/// The text with each place of `alt` replaced.
[[nodiscard]] std::string ersetzt(std::string text, std::string_view alt, std::string_view neu);

}  // namespace velmaris::test
