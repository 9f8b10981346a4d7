#include "console/handbuch.h"

#include <algorithm>

namespace velmaris {
namespace {

/// Text that the formatter takes as it stands: its signs stand for themselves, wherever a line begins.
std::string woertlich(std::string_view text) {
    std::string roff;
    for (const char zeichen : text) {
        const bool am_anfang = roff.empty() || roff.back() == '\n';
        if (am_anfang && (zeichen == '.' || zeichen == '\'')) roff += "\\&";
        if (zeichen == '\\') {
            roff += "\\e";
        } else if (zeichen == '-') {
            roff += "\\-";
        } else {
            roff += zeichen;
        }
    }
    return roff;
}

std::string ueberschrift(std::string_view titel) {
    return ".SH " + woertlich(titel) + '\n';
}

std::string zeilenroff(const Optionszeile& zeile, std::string_view sprache) {
    const std::string text = woertlich(zeile.text.in(sprache)) + '\n';
    if (zeile.name.empty()) return ".PP\n" + text;
    std::string begriff = "\\fB" + woertlich(zeile.name) + "\\fR";
    if (!zeile.wert.empty()) begriff += " \\fI" + woertlich(zeile.wert) + "\\fR";
    return ".TP\n" + begriff + '\n' + text;
}

std::string aufrufroff(const Handbuch& handbuch, std::string_view sprache) {
    std::string roff = ".nf\n";
    std::string_view rest = handbuch.aufruf.in(sprache);
    while (!rest.empty()) {
        const std::size_t ende = std::min(rest.find('\n'), rest.size());
        const std::string_view angaben = rest.substr(0, ende).substr(handbuch.programm.size());
        roff += "\\fB" + woertlich(handbuch.programm) + "\\fR" + woertlich(angaben) + '\n';
        rest.remove_prefix(std::min(ende + 1, rest.size()));
    }
    return roff + ".fi\n";
}

}  // namespace

std::string handbuchseite(const Handbuch& handbuch, std::string_view version, std::string_view sprache) {
    constexpr Wort name{"BEZEICHNUNG", "NAME"}, uebersicht{"ÜBERSICHT", "SYNOPSIS"};
    std::string roff = ".TH " + handbuch.programm + R"( 1 "" "Velmaris )" + std::string(version) + "\"\n";
    roff += ueberschrift(name.in(sprache));
    roff += woertlich(handbuch.programm) + " \\- " + woertlich(handbuch.zweck.in(sprache)) + '\n';
    roff += ueberschrift(uebersicht.in(sprache)) + aufrufroff(handbuch, sprache);
    for (const Handbuchteil& teil : handbuch.teile) {
        roff += ueberschrift(teil.titel.in(sprache));
        for (const Optionszeile& zeile : teil.zeilen)
            roff += zeilenroff(zeile, sprache);
    }
    return roff;
}

}  // namespace velmaris
