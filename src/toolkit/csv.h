#pragma once

#include <string>
#include <string_view>

namespace velmaris {

/// A table under construction as RFC 4180 has it: commas between the cells, CR LF behind each row, quotation
/// marks around a cell that needs them. In UTF-8, a row a line: control characters and bytes that are no
/// UTF-8 become the replacement character.
class Csvtext {
  public:
    void zelle(std::string_view text);

    /// A number with the fewest digits that give it back, with a decimal point.
    void zelle(float zahl);

    void zeilenende();

    [[nodiscard]] const std::string& text() const { return text_; }

  private:
    void trennen();

    std::string text_;
    bool in_der_zeile_ = false;
};

}  // namespace velmaris
