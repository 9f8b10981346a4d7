#pragma once

#include "toolkit/felder.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// An entry of the main menu with what hangs below it. A separator has no entry of its own.
struct Menueknoten {
    std::unique_ptr<Menuepunkt> punkt;  ///< empty for a separator
    std::vector<Menueknoten> kinder;
};

/// The menu of the main window: its tree, captions and check marks. What an entry does is set by the program.
class Hauptmenue {
  public:
    /// Builds the tree with the captions of the language and the language's check mark.
    explicit Hauptmenue(std::string_view sprache);

    [[nodiscard]] const std::vector<Menueknoten>& menues() const { return menues_; }

    /// The entry of a name; a name that the menu does not have is a std::out_of_range.
    [[nodiscard]] Menuepunkt& punkt(std::string_view name);

  private:
    std::vector<Menueknoten> menues_;
};

}  // namespace velmaris
