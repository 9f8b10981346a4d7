#include "toolkit/optionszeile.h"

#include <string_view>

namespace velmaris {
namespace {

constexpr std::string_view zwischen_sprachen = " / ";

}  // namespace

Zweisprachig zweisprachig(const std::string& zeile) {
    const std::size_t ort = zeile.find(zwischen_sprachen);
    if (ort == std::string::npos) return {zeile, zeile};
    return {zeile.substr(0, ort), zeile.substr(ort + zwischen_sprachen.size())};
}

std::string hilfetext(const std::string& aufruf, const std::vector<Optionszeile>& zeilen) {
    constexpr std::string_view anfang = "Aufruf / usage: ";
    std::string text(anfang);
    for (const char zeichen : aufruf) {
        text += zeichen;
        if (zeichen == '\n') text.append(anfang.size(), ' ');
    }
    text += "\n\n";
    for (const Optionszeile& zeile : zeilen) {
        text.append("  ").append(zeile.name).append(zeile.wert.empty() ? "" : " ").append(zeile.wert);
        text.append("\n        ").append(zeile.text.de).append(zwischen_sprachen).append(zeile.text.en);
        text += '\n';
    }
    return text;
}

}  // namespace velmaris
