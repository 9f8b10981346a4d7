#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmaris::hilfe {

/// A table as it stands on a page. Cells are HTML.
class Tabelle {
  public:
    explicit Tabelle(const std::vector<std::string>& kopf);

    void zeile(const std::vector<std::string>& zellen);

    [[nodiscard]] std::string text() const { return text_ + "</table>\n"; }

  private:
    void reihe(std::string_view marke, const std::vector<std::string>& zellen);

    std::string text_;
};

}  // namespace velmaris::hilfe
