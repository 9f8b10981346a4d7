#include "documents/umbruch.h"

#include <algorithm>
#include <array>
#include <utility>

namespace velmaris {
namespace {

using Liste = std::vector<std::string>;

constexpr std::string_view trennung = "- ";

/// The text in pieces that end behind a hyphen or a blank; the last one is what is left, maybe nothing.
std::vector<std::string_view> zerlegen(std::string_view text) {
    std::vector<std::string_view> stuecke;
    std::size_t anfang = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '-' && text[i] != ' ') continue;
        stuecke.push_back(text.substr(anfang, i + 1 - anfang));
        anfang = i + 1;
    }
    stuecke.push_back(text.substr(anfang));
    return stuecke;
}

/// True for what goes on behind a hyphen that stands for a part of a word, as in "Nah- oder Fernwärme".
bool aufzaehlung(std::string_view stueck) {
    constexpr std::array<std::string_view, 3> bindewoerter{"sowie", "und", "oder"};
    return std::any_of(bindewoerter.begin(), bindewoerter.end(),
                       [stueck](std::string_view wort) { return stueck.starts_with(wort); });
}

/// Joins neighbours while they fit on a line. `heilen` tells for a pair whether a hyphen between them goes.
template <class Heilen>
Liste zusammenfuegen(const std::vector<std::string_view>& stuecke, double breite, const Textmesser& messen,
                     Heilen heilen) {
    Liste zeilen;
    std::string zeile(stuecke.front());
    for (std::size_t i = 1; i < stuecke.size(); ++i) {
        const std::string_view naechstes = stuecke[i];
        if (!(messen(std::string(zeile).append(naechstes)) < breite)) {
            zeilen.push_back(std::exchange(zeile, std::string(naechstes)));
            continue;
        }
        if (zeile.ends_with(trennung) && heilen(zeile, naechstes))
            zeile.resize(zeile.size() - trennung.size());
        zeile += naechstes;
    }
    zeilen.push_back(std::move(zeile));
    return zeilen;
}

template <class Heilen>
Liste umbrechen(std::string_view text, double breite, const Textmesser& messen, Heilen heilen) {
    if (messen(text) < breite) return {std::string(text)};
    return zusammenfuegen(zerlegen(text), breite, messen, heilen);
}

}  // namespace

std::vector<std::string> schreibeZeile(std::string_view text, double breite, const Textmesser& messen) {
    return umbrechen(text, breite, messen,
                     [](std::string_view, std::string_view naechstes) { return !aufzaehlung(naechstes); });
}

std::vector<std::string> zeilen_umbrechen(std::string_view text, double breite, const Textmesser& messen) {
    return umbrechen(text, breite, messen, [](std::string_view zeile, std::string_view naechstes) {
        return !aufzaehlung(zeile) && !aufzaehlung(naechstes);
    });
}

}  // namespace velmaris
