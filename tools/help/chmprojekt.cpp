#include "tools/help/chmprojekt.h"

#include "toolkit/text.h"
#include "toolkit/wort.h"

#include <array>
#include <map>
#include <utility>

namespace velmaris::hilfe {
namespace {

constexpr std::string_view kopf = R"(<!DOCTYPE HTML PUBLIC "-//IETF//DTD HTML//EN">
<html><head></head><body>
<ul>
)";
constexpr std::string_view fuss = "</ul>\n</body></html>\n";

/// An entry of tree or index; `ziel` is a page's name, empty for a heading.
std::string eintrag(std::string_view name, std::string_view ziel) {
    std::string text = R"(<li><object type="text/sitemap"><param name="Name" value=")";
    text.append(name).append("\">");
    if (!ziel.empty()) text.append(R"(<param name="Local" value=")").append(ziel).append(".html\">");
    return text + "</object>\n";
}

std::string eintraege(const Kapitel& kapitel) {
    std::string text;
    for (const Seite& seite : kapitel.seiten)
        text += eintrag(seite.titel, seite.name);
    return text;
}

/// Small letters, and vowels without their dots, so that umlauts stand where a reader looks for them.
std::string ordnungswort(const std::string& wort) {
    using Laut = std::pair<std::string_view, std::string_view>;
    constexpr std::array<Laut, 4> grundlaute{{{"ä", "a"}, {"ö", "o"}, {"ü", "u"}, {"ß", "ss"}}};
    std::string text = kleinschreiben(wort);
    for (const auto& [laut, grundlaut] : grundlaute) {
        for (std::size_t i = text.find(laut); i != std::string::npos; i = text.find(laut, i))
            text.replace(i, laut.size(), grundlaut);
    }
    return text;
}

}  // namespace

std::string hilfename(std::string_view sprache) {
    return "Velmaris_" + std::string(sprache);
}

std::string chm_projekt(const Inhalt& inhalt, std::string_view sprache) {
    const std::string name = hilfename(sprache);
    // The compiler leaves a byte of its binary index to chance; the index as text is enough.
    std::string text = "[OPTIONS]\nCompatibility=1.1 or later\nCompiled file=" + name +
                       ".chm\nContents file=" + name + ".hhc\nBinary Index=No\nIndex file=" + name +
                       ".hhk\nDefault topic=index.html\nFull-text search=Yes\nLanguage=";
    text += Wort{"0x407 Deutsch (Deutschland)\nTitle=Velmaris Hilfe",
                 "0x409 English (United States)\nTitle=Velmaris Help"}
                .in(sprache);
    text += "\n\n[FILES]\n";
    for (const Seite* seite : alle_seiten(inhalt))
        text += seite->name + ".html\n";
    return text + "stil.css\n";
}

std::string chm_inhalt(const Inhalt& inhalt) {
    std::string text(kopf);
    for (const Kapitel& kapitel : inhalt) {
        if (kapitel.titel.empty()) {
            text += eintraege(kapitel);
        } else {
            text += eintrag(kapitel.titel, {}) + "<ul>\n" + eintraege(kapitel) + "</ul>\n";
        }
    }
    return text.append(fuss);
}

std::string chm_stichworte(const Inhalt& inhalt) {
    std::multimap<std::string, std::pair<std::string, std::string>> worte;
    for (const Seite* seite : alle_seiten(inhalt)) {
        for (const std::string& wort : seite->stichworte)
            worte.emplace(ordnungswort(wort), std::pair(wort, seite->name));
    }
    std::string text(kopf);
    for (const auto& [schluessel, stichwort] : worte)
        text += eintrag(stichwort.first, stichwort.second);
    return text.append(fuss);
}

}  // namespace velmaris::hilfe
