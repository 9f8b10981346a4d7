#pragma once

#include <QStringList>
#include <string_view>

namespace velmaris {

/// File dialog filters from pairs of text and pattern, all separated by "|"; several patterns of a pair are
/// separated by ";". Each result is the text with the patterns in parentheses behind it, where "*.*" stands
/// for every file. A text without a pattern is dropped.
[[nodiscard]] QStringList dateifilter(std::string_view filter);

}  // namespace velmaris
