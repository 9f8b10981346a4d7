#include "tools/help/seitenbau.h"

#include "toolkit/fehler.h"
#include "toolkit/wort.h"
#include "tools/help/eingabentabelle.h"
#include "tools/help/katalogtabellen.h"

#include <algorithm>
#include <optional>

namespace velmaris::hilfe {
namespace {

constexpr std::string_view kommentar_anfang = "<!--";
constexpr std::string_view kommentar_ende = "-->";

std::string verweis(const Seite& seite) {
    return "<a href=\"" + seite.name + ".html\">" + seite.titel + "</a>";
}

std::string inhaltsverzeichnis(const Inhalt& inhalt) {
    std::string text;
    for (const Kapitel& kapitel : inhalt) {
        if (!kapitel.titel.empty()) text += "<p><b>" + kapitel.titel + "</b></p>\n";
        text += "<ul>\n";
        for (const Seite& seite : kapitel.seiten) {
            if (seite.name != "index") text += "<li>" + verweis(seite) + "</li>\n";
        }
        text += "</ul>\n";
    }
    return text;
}

std::string blaettern(const Inhalt& inhalt, const Seite& seite, std::string_view sprache) {
    constexpr std::string_view trenner = " &nbsp;|&nbsp; ";
    const std::vector<const Seite*> alle = alle_seiten(inhalt);
    const auto hier = std::find(alle.begin(), alle.end(), &seite);
    std::string text = "<hr>\n<p class=\"blaettern\">";
    if (hier != alle.begin()) text.append("&laquo; ").append(verweis(**(hier - 1))).append(trenner);
    text.append("<a href=\"index.html\">").append(Wort{"Inhalt", "Contents"}.in(sprache)).append("</a>");
    if (hier + 1 != alle.end()) text.append(trenner).append(verweis(**(hier + 1))).append(" &raquo;");
    return text + "</p>\n";
}

/// What stands in place of a mark, nothing for an unknown one.
std::optional<std::string> fuellung(std::string_view marke, const Inhalt& inhalt, const Seite& seite,
                                    std::string_view sprache) {
    const std::size_t luecke = marke.find(' ');
    const std::string_view wort = marke.substr(0, luecke);
    const std::string_view zusatz =
        luecke == std::string::npos ? std::string_view() : marke.substr(luecke + 1);
    if (wort == "inhalt") return inhaltsverzeichnis(inhalt);
    if (wort == "blaettern") return blaettern(inhalt, seite, sprache);
    if (wort == "eingaben") return eingabentabelle(zusatz, false, sprache);
    if (wort == "eingabenliste") return eingabentabelle(zusatz, true, sprache);
    if (wort == "richtwerte") return richtwerttabelle(zusatz, sprache);
    if (wort == "erklaerung") return erklaerung(seite.name, zusatz, sprache);
    if (wort == "fenstertypen") return fenstertypentabelle(sprache);
    if (wort == "heizsysteme") return heizsystemtabelle(sprache);
    if (wort == "projektdatei") return projektdateitabelle(sprache);
    return std::nullopt;
}

[[noreturn]] void unbekannt(const Seite& seite, std::string_view marke) {
    const std::string name(marke);
    throw Dateifehler(seite.name + ".html", {"unbekannte Marke: " + name, "unknown mark: " + name});
}

}  // namespace

std::string seite_bauen(const Inhalt& inhalt, const Seite& seite, std::string_view sprache) {
    std::string ergebnis;
    std::string_view rest = seite.text;
    for (;;) {
        const std::size_t anfang = rest.find(kommentar_anfang);
        ergebnis += rest.substr(0, anfang);
        if (anfang == std::string::npos) return ergebnis;
        rest.remove_prefix(anfang + kommentar_anfang.size());
        const std::size_t ende = rest.find(kommentar_ende);
        if (ende == std::string::npos || ende < 2) unbekannt(seite, rest);
        const std::string_view marke = rest.substr(1, ende - 2);  // a blank on either side
        const auto text = fuellung(marke, inhalt, seite, sprache);
        if (!text) unbekannt(seite, marke);
        ergebnis += *text;
        rest.remove_prefix(ende + kommentar_ende.size());
    }
}

}  // namespace velmaris::hilfe
