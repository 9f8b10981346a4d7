#pragma once

#include "toolkit/zeichenflaeche.h"

#include <string>
#include <string_view>

namespace velmaris {

/// A text as content or attribute value of HTML and SVG: & < > " become references.
[[nodiscard]] std::string maskiert(std::string_view text);

/// " name="inhalt"", with the blank in front; the content stands as it is given.
[[nodiscard]] std::string attribut(std::string_view name, std::string_view inhalt);

/// An element around its content, which stands as it is given; without a class if that is empty.
[[nodiscard]] std::string element(std::string_view name, std::string_view inhalt,
                                  std::string_view klasse = {});

/// A colour as "#rrggbb".
[[nodiscard]] std::string farbtext(Farbe farbe);

}  // namespace velmaris
