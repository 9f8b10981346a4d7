#include "tests/tools/help/html.h"

#include "tests/hilfen.h"

namespace velmaris::test {

namespace fs = std::filesystem;

std::map<std::string, std::string> hilfeseiten(const std::string& sprache) {
    std::map<std::string, std::string> seiten;
    for (const auto& eintrag : fs::directory_iterator(fs::path(VELMARIS_HILFESEITEN) / sprache)) {
        const fs::path& datei = eintrag.path();
        if (datei.extension() == ".html") seiten[datei.stem().string()] = inhalt(datei);
    }
    return seiten;
}

std::vector<Marke> marken(const std::string& seite) {
    std::vector<Marke> alle;
    for (std::size_t i = seite.find('<'); i != std::string::npos; i = seite.find('<', i + 1)) {
        const std::size_t ende = seite.find('>', i);
        if (ende == std::string::npos) break;
        const std::string innen = seite.substr(i + 1, ende - i - 1);
        const std::size_t luecke = innen.find_first_of(" \n");
        alle.push_back(
            {innen.substr(0, luecke), luecke == std::string::npos ? "" : innen.substr(luecke), ende + 1});
    }
    return alle;
}

std::vector<std::string> attribute(const std::string& seite, std::string_view name) {
    const std::string vorn = std::string(name) + "=\"";
    std::vector<std::string> werte;
    for (const Marke& marke : marken(seite)) {
        const std::size_t i = marke.zusatz.find(vorn);
        if (i == std::string::npos) continue;
        const std::size_t anfang = i + vorn.size();
        werte.push_back(marke.zusatz.substr(anfang, marke.zusatz.find('"', anfang) - anfang));
    }
    return werte;
}

std::vector<std::string> elemente(const std::string& seite, std::string_view name) {
    const std::string schluss = "</" + std::string(name) + ">";
    std::vector<std::string> texte;
    for (const Marke& marke : marken(seite)) {
        if (marke.name != name) continue;
        const std::size_t ende = seite.find(schluss, marke.ende);
        texte.push_back(reiner_text(std::string_view(seite).substr(marke.ende, ende - marke.ende)));
    }
    return texte;
}

std::string reiner_text(std::string_view seite) {
    std::string text;
    bool in_marke = false;
    for (const char c : seite) {
        if (c == '<') in_marke = true;
        if (!in_marke) text += c;
        if (c == '>') in_marke = false;
    }
    return text;
}

std::string ersetzt(std::string text, std::string_view alt, std::string_view neu) {
    for (std::size_t i = text.find(alt); i != std::string::npos; i = text.find(alt, i + neu.size()))
        text.replace(i, alt.size(), neu);
    return text;
}

}  // namespace velmaris::test
