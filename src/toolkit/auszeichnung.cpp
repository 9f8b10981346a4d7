#include "toolkit/auszeichnung.h"

namespace velmaris {

std::string maskiert(std::string_view text) {
    std::string ergebnis;
    for (const char zeichen : text) {
        switch (zeichen) {
            case '&':
                ergebnis += "&amp;";
                break;
            case '<':
                ergebnis += "&lt;";
                break;
            case '>':
                ergebnis += "&gt;";
                break;
            case '"':
                ergebnis += "&quot;";
                break;
            default:
                ergebnis.push_back(zeichen);
        }
    }
    return ergebnis;
}

std::string attribut(std::string_view name, std::string_view inhalt) {
    return std::string(" ").append(name).append("=\"").append(inhalt).append("\"");
}

std::string element(std::string_view name, std::string_view inhalt, std::string_view klasse) {
    std::string text = "<" + std::string(name);
    if (!klasse.empty()) text += attribut("class", klasse);
    return text.append(">").append(inhalt).append("</").append(name).append(">");
}

std::string farbtext(Farbe farbe) {
    constexpr std::string_view ziffern = "0123456789abcdef";
    std::string text = "#";
    for (const unsigned anteil : {farbe.r, farbe.g, farbe.b}) {
        text.push_back(ziffern[anteil / 16]);
        text.push_back(ziffern[anteil % 16]);
    }
    return text;
}

}  // namespace velmaris
