#include "console/vervollstaendigung.h"

#include "project/feldtabelle.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace velmaris {
namespace {

constexpr int laengste_zahlenliste = 31;

/// The two bounds of a placeholder such as "1..7", nothing for any other one.
std::optional<std::pair<int, int>> zahlenbereich(const std::string& wert) {
    const std::size_t ort = wert.find("..");
    if (ort == std::string::npos) return std::nullopt;
    return std::pair(std::stoi(wert.substr(0, ort)), std::stoi(wert.substr(ort + 2)));
}

/// The words that a value can be, with blanks between them; empty if there are none or too many.
std::string auswahl(std::string wert) {
    if (const auto bereich = zahlenbereich(wert)) {
        std::string zahlen;
        if (bereich->second - bereich->first >= laengste_zahlenliste) return zahlen;
        for (int zahl = bereich->first; zahl <= bereich->second; ++zahl)
            zahlen += (zahlen.empty() ? "" : " ") + std::to_string(zahl);
        return zahlen;
    }
    if (wert.find('|') == std::string::npos) return {};
    std::replace(wert.begin(), wert.end(), '|', ' ');
    return wert;
}

/// The inputs of a project, each ready for its values.
std::string eingaben() {
    std::string namen;
    for (const Feldzeile& feld : felder()) {
        if (feld.art == Feldart::eingabe)
            namen.append(namen.empty() ? "" : " ").append(feld.name).append("=");
    }
    return namen;
}

/// What completes a value: a command of the shell.
std::string befehl(const std::string& wert) {
    if (const std::string worte = auswahl(wert); !worte.empty()) return "_velmaris_worte '" + worte + "'";
    if (wert == "NAME=WERTE") return "_velmaris_anfaenge '" + eingaben() + "'";
    if (wert == "ORDNER") return "_velmaris_dateien -d";
    if (wert == "DATEI") return "_velmaris_dateien -f";
    if (const std::size_t punkt = wert.find('.'); wert.starts_with("DATEI.") && punkt != std::string::npos)
        return "_velmaris_dateien -f '" + wert.substr(punkt + 1) + "'";
    return ":";
}

/// The names of an option, as `trenner` wants them kept apart.
std::string namen(std::string alle, std::string_view trenner) {
    const std::size_t komma = alle.find(',');
    if (komma != std::string::npos) alle.replace(komma, 1, trenner);
    return alle;
}

/// Matches words and files; of files only those of the ending, in either case, and the folders on the way.
constexpr const char* helfer = R"(# Made from the options of the program; do not edit.
_velmaris_worte() {
    mapfile -t COMPREPLY < <(compgen -W "$1" -- "$wort")
}

_velmaris_anfaenge() {
    compopt -o nospace
    _velmaris_worte "$1"
}

_velmaris_dateien() {
    compopt -o filenames
    mapfile -t COMPREPLY < <(
        if [ -z "${2-}" ]; then
            compgen "$1" -- "$wort"
        else
            compgen -d -- "$wort"
            compgen -f -- "$wort" | grep -iE "\.$2\$"
        fi | sort -u)
}

)";

}  // namespace

std::string vervollstaendigung(const std::string& programm, const std::vector<Optionszeile>& worte) {
    std::string faelle, optionen, operand = ":";
    for (const Optionszeile& zeile : worte) {
        if (zeile.ist_operand()) {
            operand = befehl(zeile.wert);
            continue;
        }
        optionen += (optionen.empty() ? "" : " ") + namen(zeile.name, " ");
        if (!zeile.wert.empty())
            faelle += "        " + namen(zeile.name, "|") + ") " + befehl(zeile.wert) + "; return ;;\n";
    }
    return helfer + ("_" + programm + "() {\n") +
           "    local wort=${COMP_WORDS[COMP_CWORD]} davor=${COMP_WORDS[COMP_CWORD - 1]}\n"
           "    [ \"$davor\" != = ] || davor=${COMP_WORDS[COMP_CWORD - 2]}\n"
           "    wort=${wort#=}\n"
           "    COMPREPLY=()\n    case $davor in\n" +
           faelle + "    esac\n    if [[ $wort == -* ]]; then\n        _velmaris_worte '" + optionen +
           "'\n    else\n        " + operand + "\n    fi\n}\ncomplete -F _" + programm + ' ' + programm +
           '\n';
}

}  // namespace velmaris
