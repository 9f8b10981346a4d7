#pragma once

#include <map>
#include <string>
#include <vector>

namespace velmaris::test {

/// The finished pages of a language by their names (without ".html").
[[nodiscard]] std::map<std::string, std::string> hilfeseiten(const std::string& sprache);

/// All pieces of a text that stand between the one mark and the other, in their order.
[[nodiscard]] std::vector<std::string> zwischen(const std::string& text, const std::string& vorn,
                                                const std::string& hinten);

}  // namespace velmaris::test
