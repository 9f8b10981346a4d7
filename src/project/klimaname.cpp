#include "project/klimaname.h"

#include "toolkit/text.h"

#include <algorithm>
#include <string>

namespace velmaris {
namespace {

bool ist_steuerzeichen(char zeichen) {
    return static_cast<unsigned char>(zeichen) < ' ' || zeichen == '\x7F';
}

/// As much of a name as a message can take.
std::string gekuerzt(std::string_view name) {
    constexpr std::size_t hoechstens = 80;
    return aus_windows1252(nach_windows1252(name).substr(0, hoechstens));
}

}  // namespace

std::optional<Zweisprachig> klimanamensfehler(std::string_view name) {
    if (name.empty()) return Zweisprachig{"der Dateiname ist leer", "the file name is empty"};
    if (std::any_of(name.begin(), name.end(), ist_steuerzeichen)) {
        return Zweisprachig{"der Dateiname enthält Steuerzeichen",
                            "the file name contains control characters"};
    }
    const std::string zitat = "\"" + gekuerzt(name) + "\"";
    if (name.find_first_of("/\\:") != std::string_view::npos) {
        return Zweisprachig{zitat + " ist kein bloßer Dateiname, sondern ein Pfad",
                            zitat + " is no plain file name but a path"};
    }
    if (!kleinschreiben(name).ends_with(".met")) {
        return Zweisprachig{zitat + " ist keine Klimadatei (.met)", zitat + " is no climate file (.met)"};
    }
    return std::nullopt;
}

}  // namespace velmaris
