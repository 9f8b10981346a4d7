#include "toolkit/kuerzen.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace velmaris {
namespace {

/// Where a UTF-8 text can be cut, from its start to the start of its last character.
std::vector<std::size_t> zeichengrenzen(std::string_view text) {
    std::vector<std::size_t> grenzen;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool folgebyte = (static_cast<unsigned char>(text[i]) & 0xC0U) == 0x80U;
        if (i == 0 || !folgebyte) grenzen.push_back(i);
    }
    return grenzen;
}

}  // namespace

std::string kuerzen(std::string_view text, double breite, const Textmesser& messen) {
    const auto passt = [&](std::string_view teil) { return messen(teil) <= breite; };
    if (text.empty() || passt(text)) return std::string(text);
    const auto gekuerzt = [text](std::size_t ende) {
        return std::string(text.substr(0, ende)).append(auslassung);
    };
    const std::vector<std::size_t> grenzen = zeichengrenzen(text);
    // What fits is short however long the text is, so the search begins at its start.
    std::size_t passend = 0;
    std::size_t zu_lang = 1;
    while (zu_lang < grenzen.size() && passt(gekuerzt(grenzen[zu_lang]))) {
        passend = zu_lang;
        zu_lang *= 2;
    }
    zu_lang = std::min(zu_lang, grenzen.size());
    while (passend + 1 < zu_lang) {
        const std::size_t mitte = passend + (zu_lang - passend) / 2;
        (passt(gekuerzt(grenzen[mitte])) ? passend : zu_lang) = mitte;
    }
    return gekuerzt(grenzen[passend]);
}

std::string kuerzen(std::string_view text, double breite, const Zeichenflaeche& bild) {
    return kuerzen(text, breite, [&bild](std::string_view teil) { return bild.textbreite(teil); });
}

}  // namespace velmaris
