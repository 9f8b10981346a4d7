#include "climate/import/importspalten.h"

#include <algorithm>
#include <limits>

namespace velmaris {
namespace {

constexpr std::string_view leerraum = " \t";
constexpr std::size_t hoechste_position = std::numeric_limits<std::int16_t>::max();

/// What stands in the double quotes around the first field of a text: the closing one has nothing but blanks
/// between it and the next comma or the end. Nothing if the field has no such pair within a sensible length.
std::optional<std::string_view> angefuehrt(std::string_view text) {
    constexpr std::size_t laengstes_feld = 1000;
    const std::size_t anfang = std::min(text.find_first_not_of(leerraum), text.size());
    const std::string_view ab_hier = text.substr(anfang, laengstes_feld);
    if (!ab_hier.starts_with('"')) return std::nullopt;
    for (std::size_t i = ab_hier.find('"', 1); i != std::string_view::npos; i = ab_hier.find('"', i + 1)) {
        const std::string_view dahinter = text.substr(anfang + i + 1);
        const std::size_t naechstes = dahinter.find_first_not_of(leerraum);
        if (naechstes == std::string_view::npos || dahinter[naechstes] == ',')
            return ab_hier.substr(1, i - 1);
        if (dahinter.front() == '"') ++i;
    }
    return std::nullopt;
}

/// Takes the first field off a line that has one; nothing is left behind the last field.
std::string_view abnehmen(std::optional<std::string_view>& rest, char trenner) {
    const std::string_view zeile = *rest;
    const auto innen = trenner == ',' ? angefuehrt(zeile) : std::nullopt;
    const std::size_t suche_ab =
        innen ? static_cast<std::size_t>(innen->data() + innen->size() - zeile.data()) : 0;
    const std::size_t ende = zeile.find(trenner, suche_ab);
    rest.reset();
    if (ende != std::string_view::npos) rest = zeile.substr(ende + 1);
    return innen ? *innen : zeile.substr(0, ende);
}

std::optional<std::string_view> feld(std::string_view zeile, int n, char trenner) {
    std::optional<std::string_view> rest = zeile;
    for (int i = 1; i < n && rest; ++i)
        abnehmen(rest, trenner);
    if (!rest) return std::nullopt;
    return abnehmen(rest, trenner);
}

char trennzeichen(Trennung trennung) {
    return trennung == Trennung::komma ? ',' : '\t';
}

bool durch_leerzeichen(Trennung trennung) {
    return trennung == Trennung::linksbuendig || trennung == Trennung::rechtsbuendig;
}

std::int16_t felderzahl(std::string_view zeile, char trenner) {
    std::int16_t zahl = 0;
    for (std::optional<std::string_view> rest = zeile; rest && zahl < importspalten; ++zahl)
        abnehmen(rest, trenner);
    return zahl;
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
