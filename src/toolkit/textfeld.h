#pragma once

#include "toolkit/felder.h"

#include <functional>
#include <string>
#include <string_view>

namespace velmaris {

/// A field for a line of text.
class Textfeld : public Feld {
  public:
    /// `erlaubt` lists the characters that the user can type, empty for all; `hoechstens` is the largest
    /// number of characters, 0 for no limit.
    explicit Textfeld(std::string feldname, std::string erlaubt = {}, std::size_t hoechstens = 0)
        : Feld(std::move(feldname)), erlaubt_(std::move(erlaubt)), hoechstens_(hoechstens) {}

    [[nodiscard]] const std::string& text() const { return text_; }

    /// Puts a text into the field as it stands; runs no handler.
    void schreibe(std::string text);

    /// What the user made of the text by typing or pasting: characters that are not allowed and those beyond
    /// the limit are dropped, then the handler runs.
    void tippe(std::string_view text);

    /// The Enter key.
    void bestaetige() const;

    /// The control's handlers.
    std::function<void()> geaendert;
    std::function<void()> bestaetigt;

  private:
    std::string erlaubt_;
    std::size_t hoechstens_;
    std::string text_;
};

}  // namespace velmaris
