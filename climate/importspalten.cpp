#include "climate/importspalten.h"

#include <algorithm>
#include <limits>

namespace velmaris {
namespace {

constexpr std::size_t hoechste_position = std::numeric_limits<std::int16_t>::max();

std::optional<std::string_view> feld(std::string_view zeile, int n, char trenner) {
    for (int i = 1; i < n; ++i) {
        const std::size_t ende = zeile.find(trenner);
        if (ende == std::string_view::npos) return std::nullopt;
        zeile.remove_prefix(ende + 1);
    }
    return zeile.substr(0, zeile.find(trenner));
}

char trennzeichen(Trennung trennung) {
    return trennung == Trennung::komma ? ',' : '\t';
}

bool durch_leerzeichen(Trennung trennung) {
    return trennung == Trennung::linksbuendig || trennung == Trennung::rechtsbuendig;
}

std::int16_t felderzahl(std::string_view zeile, char trenner) {
    const auto trennungen = std::count(zeile.begin(), zeile.end(), trenner);
    return static_cast<std::int16_t>(std::min<std::ptrdiff_t>(trennungen + 1, importspalten));
}

/// The part of a line from a place (from 1) on; nothing is there behind the line's end.
std::string_view ab(std::string_view zeile, std::size_t von, std::size_t laenge = std::string_view::npos) {
    return zeile.substr(std::min(von - 1, zeile.size()), laenge);
}

std::string_view linksbuendiges_feld(std::string_view zeile, std::size_t von, std::size_t naechstes) {
    return naechstes > von ? ab(zeile, von, naechstes - von) : ab(zeile, von);
}

}  // namespace

Spaltenlage Spalten_Festlegen(std::string_view musterzeile, Trennung trennung) {
    Spaltenlage lage;
    std::size_t anfang = musterzeile.find_first_not_of(' ');
    while (anfang != std::string_view::npos && lage.Spaltenzahl < importspalten) {
        const std::size_t ende = std::min(musterzeile.find(' ', anfang), musterzeile.size());
        const std::size_t position = (trennung == Trennung::linksbuendig ? anfang : ende) + 1;
        if (position > hoechste_position) break;
        lage.Spaltenanfang(++lage.Spaltenzahl) = static_cast<std::int16_t>(position);
        anfang = musterzeile.find_first_not_of(' ', ende);
    }
    return lage;
}

std::optional<std::string_view> StelleTab(std::string_view zeile, int n) {
    return feld(zeile, n, '\t');
}

std::optional<std::string_view> StelleLeer(std::string_view zeile, int n, const Spaltenlage& lage,
                                           Trennung trennung) {
    if (n > lage.Spaltenzahl) return std::nullopt;
    const auto position = [&lage](int spalte) {
        return spalte >= 1 && spalte <= importspalten ? static_cast<std::size_t>(lage.Spaltenanfang(spalte))
                                                      : 0;
    };
    if (trennung == Trennung::linksbuendig) {
        if (zeile.size() <= position(n)) return std::nullopt;
        return linksbuendiges_feld(zeile, position(n), position(n + 1));
    }
    const std::size_t von = n == 1 ? 1 : position(n - 1);
    return ab(zeile, von, position(n) - von);
}

Spaltenteiler::Spaltenteiler(Trennung trennung, std::string_view musterzeile) : trennung_(trennung) {
    if (durch_leerzeichen(trennung)) {
        lage_ = Spalten_Festlegen(musterzeile, trennung);
    } else {
        lage_.Spaltenzahl = felderzahl(musterzeile, trennzeichen(trennung));
    }
}

std::optional<std::string_view> Spaltenteiler::stelle(std::string_view zeile, int n) const {
    if (durch_leerzeichen(trennung_)) return StelleLeer(zeile, n, lage_, trennung_);
    return feld(zeile, n, trennzeichen(trennung_));
}

}  // namespace velmaris
