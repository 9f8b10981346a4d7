#include "documents/umbruch.h"

#include <cstddef>

namespace velmaris {
namespace {

using Liste = std::vector<std::string>;

constexpr std::string_view trennung = "- ";

/// The text in pieces that end behind a hyphen or a blank; the last one is what is left, maybe nothing.
Liste zerlegen(std::string_view text) {
    Liste stuecke;
    std::size_t anfang = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '-' && text[i] != ' ') continue;
        stuecke.emplace_back(text.substr(anfang, i + 1 - anfang));
        anfang = i + 1;
    }
    stuecke.emplace_back(text.substr(anfang));
    return stuecke;
}

bool aufzaehlung(std::string_view stueck) {
    return stueck.starts_with("sowie") || stueck.starts_with("und");
}

/// Joins neighbours while they fit on a line. `heilen` tells for a pair whether a hyphen between them goes.
template <class Heilen>
Liste zusammenfuegen(Liste stuecke, double breite, const Textmesser& messen, Heilen heilen) {
    std::size_t i = 0;
    while (i + 1 < stuecke.size()) {
        std::string& zeile = stuecke[i];
        const std::string& naechstes = stuecke[i + 1];
        if (!(messen(zeile + naechstes) < breite)) {
            ++i;
            continue;
        }
        if (zeile.ends_with(trennung) && heilen(zeile, naechstes))
            zeile.resize(zeile.size() - trennung.size());
        zeile += naechstes;
        stuecke.erase(stuecke.begin() + static_cast<std::ptrdiff_t>(i) + 1);
    }
    return stuecke;
}

template <class Heilen>
Liste umbrechen(std::string_view text, double breite, const Textmesser& messen, Heilen heilen) {
    if (messen(text) < breite) return {std::string(text)};
    return zusammenfuegen(zerlegen(text), breite, messen, heilen);
}

}  // namespace

std::vector<std::string> schreibeZeile(std::string_view text, double breite, const Textmesser& messen) {
    return umbrechen(text, breite, messen, [](const std::string&, const std::string& naechstes) {
        return !aufzaehlung(naechstes);
    });
}

std::vector<std::string> zeilen_umbrechen(std::string_view text, double breite, const Textmesser& messen) {
    return umbrechen(text, breite, messen,
                     [](const std::string& zeile, const std::string&) { return !aufzaehlung(zeile); });
}

}  // namespace velmaris
