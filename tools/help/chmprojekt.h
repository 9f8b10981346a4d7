#pragma once

#include "tools/help/inhalt.h"

#include <string>
#include <string_view>

namespace velmaris::hilfe {

// The three files that the help compiler takes beside the pages, UTF-8; they are written in windows-1252.

/// Name of the compiled file without its ending: Velmaris_d, Velmaris_e.
[[nodiscard]] std::string hilfename(std::string_view sprache);

/// The project (.hhp): options and list of files.
[[nodiscard]] std::string chm_projekt(const Inhalt& inhalt, std::string_view sprache);

/// The tree of contents (.hhc).
[[nodiscard]] std::string chm_inhalt(const Inhalt& inhalt);

/// The index of keywords (.hhk), in the order of the alphabet.
[[nodiscard]] std::string chm_stichworte(const Inhalt& inhalt);

}  // namespace velmaris::hilfe
