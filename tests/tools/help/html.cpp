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

std::vector<std::string> zwischen(const std::string& text, const std::string& vorn,
                                  const std::string& hinten) {
    std::vector<std::string> stuecke;
    for (std::size_t i = text.find(vorn); i != std::string::npos; i = text.find(vorn, i)) {
        i += vorn.size();
        stuecke.push_back(text.substr(i, text.find(hinten, i) - i));
    }
    return stuecke;
}

}  // namespace velmaris::test
