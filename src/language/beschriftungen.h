#pragma once

#include "toolkit/wort.h"

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace velmaris {

/// The fixed caption of one control in both languages. German is the design of the windows; a menu entry has
/// its access key behind an "&". A unit with a blank inside a word pair ("kWh m² a") is drawn as a
/// fraction, its first word over the rest.
struct Beschriftung {
    constexpr Beschriftung(std::string_view name, std::string_view de, std::string_view en)
        : feld(name), text{de, en} {}

    std::string_view feld;  ///< name of the control; an option carries the number behind its group's name
    Wort text;
};

/// The name that stands for a window's own title in its captions.
inline constexpr std::string_view fenstertitel = "Titel";

/// Names of the windows that have captions.
[[nodiscard]] std::span<const std::string_view> beschriftete_fenster();

/// All captions of a window, empty for a window without any.
[[nodiscard]] std::span<const Beschriftung> beschriftungen(std::string_view fenster);

/// The caption of one control: English for "e", the German design for anything else. A control without
/// a caption is a std::out_of_range that names it.
[[nodiscard]] std::string beschriftung(std::string_view fenster, std::string_view feld,
                                       std::string_view sprache);

/// A caption as the bare name of a quantity: no blanks around it, no colon at its end, one ampersand for two.
[[nodiscard]] std::string blosser_name(std::string_view text);

/// Puts the captions of a window onto its labels or buttons, found by their names; errors as in
/// `beschriftung`.
template <class Feldart>
void beschriften(std::string_view fenster, std::string_view sprache, std::initializer_list<Feldart*> felder) {
    for (Feldart* feld : felder)
        feld->schreibe(beschriftung(fenster, feld->name, sprache));
}

}  // namespace velmaris
