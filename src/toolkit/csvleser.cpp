#include "toolkit/csvleser.h"

#include "toolkit/fehler.h"

#include <algorithm>

namespace velmaris {
namespace {

/// Moves the quoted cell at the beginning of `rest` into `zelle`; `rest` then begins behind its end.
void zelle_in_anfuehrung(std::string_view& rest, std::string& zelle) {
    rest.remove_prefix(1);
    for (;;) {
        const std::size_t ende = rest.find('"');
        if (ende == std::string_view::npos)
            throw Laufzeitfehler(
                {"ein Anführungszeichen wird nicht geschlossen", "a quotation mark is not closed"});
        zelle.append(rest.substr(0, ende));
        rest.remove_prefix(ende + 1);
        if (!rest.starts_with('"')) return;
        zelle += '"';
        rest.remove_prefix(1);
    }
}

}  // namespace

void Csvleser::zerlegen(std::string_view zeile, std::vector<std::string>& zellen) const {
    std::size_t anzahl = 0;
    for (bool weiter = true; weiter; ++anzahl) {
        if (anzahl == zellen.size()) zellen.emplace_back();
        std::string& zelle = zellen[anzahl];
        zelle.clear();
        if (zeile.starts_with('"')) zelle_in_anfuehrung(zeile, zelle);
        const std::size_t ende = std::min(zeile.find(trennung), zeile.size());
        zelle.append(zeile.substr(0, ende));
        weiter = ende < zeile.size();
        if (weiter) zeile.remove_prefix(ende + 1);
    }
    zellen.resize(anzahl);
}

std::string_view ohne_blanks(std::string_view text) {
    constexpr std::string_view blanks = " \t";
    const std::size_t anfang = text.find_first_not_of(blanks);
    if (anfang == std::string_view::npos) return {};
    return text.substr(anfang, text.find_last_not_of(blanks) - anfang + 1);
}

}  // namespace velmaris
