#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// Takes the lines of a table in CSV apart, a row a line.
struct Csvleser {
    char trennung = ',';

    /// The cells of a line without its end; quotation marks around a cell are taken off, doubled ones in it
    /// stand for one. A cell whose quotation mark is not closed is a Laufzeitfehler. `zellen` is used again,
    /// so that a long table takes no memory.
    void zerlegen(std::string_view zeile, std::vector<std::string>& zellen) const;
};

/// A text without the blanks around it.
[[nodiscard]] std::string_view ohne_blanks(std::string_view text);

}  // namespace velmaris
