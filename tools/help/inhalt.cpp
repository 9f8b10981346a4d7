#include "tools/help/inhalt.h"

#include "toolkit/fehler.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "toolkit/wort.h"

#include <algorithm>

namespace velmaris::hilfe {
namespace {

namespace fs = std::filesystem;

std::string_view ohne_rand(std::string_view text) {
    while (text.starts_with(' '))
        text.remove_prefix(1);
    while (text.ends_with(' '))
        text.remove_suffix(1);
    return text;
}

/// What stands between two marks of the page, without blanks around it.
std::string zwischen(const fs::path& datei, std::string_view text, std::string_view vorn,
                     std::string_view hinten) {
    const std::size_t anfang = text.find(vorn);
    const std::size_t ende =
        anfang == std::string::npos ? std::string::npos : text.find(hinten, anfang + vorn.size());
    if (ende == std::string::npos) {
        const std::string marke(vorn);
        throw Dateifehler(pfadtext(datei), {"es fehlt " + marke, marke + " is missing"});
    }
    return std::string(ohne_rand(text.substr(anfang + vorn.size(), ende - anfang - vorn.size())));
}

std::vector<std::string> geteilt(std::string_view liste, char zeichen) {
    std::vector<std::string> teile;
    for (;;) {
        const std::size_t ende = liste.find(zeichen);
        teile.emplace_back(ohne_rand(liste.substr(0, ende)));
        if (ende == std::string::npos) return teile;
        liste.remove_prefix(ende + 1);
    }
}

Seite seite_lesen(const fs::path& datei) {
    std::string text = bytes_lesen(datei, hoechste_quellgroesse);
    const std::string stichworte = zwischen(datei, text, R"(<meta name="keywords" content=")", "\">");
    std::string titel = zwischen(datei, text, "<title>", "</title>");
    return {pfadtext(datei.stem()), std::move(titel), geteilt(stichworte, ';'), std::move(text)};
}

void vollstaendigkeit_pruefen(const Inhalt& inhalt, const fs::path& ordner) {
    const std::vector<const Seite*> genannte = alle_seiten(inhalt);
    for (const auto& eintrag : fs::directory_iterator(ordner)) {
        const std::string name = pfadtext(eintrag.path().stem());
        const bool genannt = std::any_of(genannte.begin(), genannte.end(),
                                         [&name](const Seite* seite) { return seite->name == name; });
        if (!genannt) {
            throw Dateifehler(pfadtext(eintrag.path()),
                              {"steht nicht im Inhalt", "is not in the table of contents"});
        }
    }
}

}  // namespace

Inhalt inhalt_lesen(const fs::path& ordner, const std::string& sprache) {
    const std::string liste = bytes_lesen(ordner / "inhalt.txt", hoechste_quellgroesse);
    const fs::path seitenordner = ordner / sprache;
    Inhalt inhalt(1);
    Zeilenleser leser(liste);
    while (const auto zeile = leser.naechste()) {
        if (zeile->starts_with('#')) {
            const std::vector<std::string> titel = geteilt(zeile->substr(1), '|');
            inhalt.push_back({Zweisprachig{titel.front(), titel.back()}.in(sprache), {}});
        } else if (!ohne_rand(*zeile).empty()) {
            inhalt.back().seiten.push_back(
                seite_lesen(seitenordner / pfad(std::string(ohne_rand(*zeile)) + ".html")));
        }
    }
    vollstaendigkeit_pruefen(inhalt, seitenordner);
    return inhalt;
}

std::vector<const Seite*> alle_seiten(const Inhalt& inhalt) {
    std::vector<const Seite*> seiten;
    for (const Kapitel& kapitel : inhalt) {
        for (const Seite& seite : kapitel.seiten)
            seiten.push_back(&seite);
    }
    return seiten;
}

}  // namespace velmaris::hilfe
