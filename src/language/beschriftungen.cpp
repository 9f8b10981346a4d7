#include "language/beschriftungen.h"

#include "language/beschriftungstabellen.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace velmaris {
namespace {

using beschriftungstabellen::Fenster;

/// All windows in one list.
const std::vector<Fenster>& alle_fenster() {
    static const std::vector<Fenster> fenster = [] {
        std::vector<Fenster> alle;
        for (const auto tabelle : {beschriftungstabellen::eingabe(), beschriftungstabellen::ausgabe(),
                                   beschriftungstabellen::rahmen()})
            alle.insert(alle.end(), tabelle.begin(), tabelle.end());
        return alle;
    }();
    return fenster;
}

}  // namespace

std::span<const std::string_view> beschriftete_fenster() {
    static const std::vector<std::string_view> namen = [] {
        std::vector<std::string_view> alle;
        for (const Fenster& fenster : alle_fenster())
            alle.push_back(fenster.name);
        return alle;
    }();
    return namen;
}

std::span<const Beschriftung> beschriftungen(std::string_view fenster) {
    const auto& alle = alle_fenster();
    const auto treffer =
        std::find_if(alle.begin(), alle.end(), [&](const Fenster& f) { return f.name == fenster; });
    return treffer == alle.end() ? std::span<const Beschriftung>() : treffer->zeilen;
}

std::string beschriftung(std::string_view fenster, std::string_view feld, std::string_view sprache) {
    for (const Beschriftung& zeile : beschriftungen(fenster)) {
        if (zeile.feld == feld) return std::string(zeile.text.in(sprache));
    }
    throw std::out_of_range("no caption for " + std::string(fenster) + "." + std::string(feld));
}

std::string blosser_name(std::string_view text) {
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == ':'))
        text.remove_suffix(1);
    std::string name(text);
    if (const std::size_t stelle = name.find("&&"); stelle != std::string::npos) name.erase(stelle, 1);
    return name;
}

}  // namespace velmaris
