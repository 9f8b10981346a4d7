#pragma once

#include "toolkit/optionszeile.h"
#include "toolkit/wort.h"

#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// A part of a manual page: its title and its rows. A row without a name is a paragraph.
struct Handbuchteil {
    Wort titel;
    std::vector<Optionszeile> zeilen;
};

/// The manual page of a program.
struct Handbuch {
    std::string programm;
    Wort zweck;
    Wort aufruf;  ///< a line for each way of calling it, each begins with its name
    std::vector<Handbuchteil> teile;
};

/// Those of the two programs; their options are the ones of the help.
[[nodiscard]] std::vector<Handbuch> handbuecher();

/// A manual page as `man` reads it (UTF-8).
[[nodiscard]] std::string handbuchseite(const Handbuch& handbuch, std::string_view version,
                                        std::string_view sprache);

}  // namespace velmaris
