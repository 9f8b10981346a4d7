#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// A piece of text of one style. Sizes in points.
struct Textstueck {
    std::string text;          ///< UTF-8; a tab is the character of that name
    std::string schrift = {};  ///< name of the font, empty for the reader's own
    double groesse = 12;
    bool fett = false;
    bool kursiv = false;
    bool unterstrichen = false;
    bool tiefgestellt = false;

    friend bool operator==(const Textstueck&, const Textstueck&) = default;
};

/// A paragraph. An empty one keeps its height by `groesse`.
struct Absatz {
    std::vector<Textstueck> stuecke;
    bool zentriert = false;
    bool neue_seite = false;             ///< begins a page
    std::vector<double> tabstopps = {};  ///< from the left margin, points
    double groesse = 12;                 ///< font size at the end of the paragraph, points
};

/// Reads Rich Text as far as the report uses it: fonts, sizes, bold, italic, underline, subscript, centred
/// paragraphs, tab stops, tabs, paragraphs, pages, escapes. Other control words and destinations are skipped,
/// and so is anything that is broken; no input is a fault. `rtf` is UTF-8; a byte given by its code (\'e4) is
/// one of windows-1252.
[[nodiscard]] std::vector<Absatz> rtf_lesen(std::string_view rtf);

}  // namespace velmaris
