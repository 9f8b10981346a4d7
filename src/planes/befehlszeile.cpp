#include "planes/befehlszeile.h"

#include "toolkit/text.h"
#include "toolkit/wort.h"

#include <string_view>
#include <system_error>

namespace velmaris {
namespace {

constexpr std::string_view endung = ".vel";

bool vorhanden(const std::string& datei) {
    std::error_code fehler;
    return std::filesystem::exists(pfad(datei), fehler);
}

}  // namespace

std::optional<std::string> Befehlszeile::sprache() const {
    if (bekannte_sprache(text_)) return text_;
    return std::nullopt;
}

std::optional<std::filesystem::path> Befehlszeile::ordner() const {
    if (zeichenzahl(text_) <= 1) return std::nullopt;
    const std::size_t strich = text_.rfind('|');
    return pfad(strich == std::string::npos ? text_ : text_.substr(strich + 1));
}

std::optional<std::string> Befehlszeile::projekt() const {
    if (zeichenzahl(text_) <= endung.size()) return std::nullopt;
    std::string eigene = text_;
    if (kleinschreiben(eigene).ends_with(std::string(endung) + "\"")) {
        eigene = eigene.substr(1, eigene.size() - 2);
    } else if (!kleinschreiben(eigene).ends_with(endung)) {
        return std::nullopt;
    }
    const std::string klein = kleinschreiben(eigene);
    return !vorhanden(klein) && vorhanden(eigene) ? eigene : klein;
}

std::vector<Optionszeile> worte_der_befehlszeile() {
    return {
        {"PROJEKT.vel", "", {"öffnet dieses Projekt", "opens this project"}},
        {"d, e",
         "",
         {"Deutsch oder Englisch, nur für diesen Lauf und ohne Startfenster",
          "German or English, for this run alone and without the start window"}},
        {"--drucken",
         "DATEI.pdf",
         {"druckt alle Seiten des Projekts als PDF, ohne ein Fenster",
          "prints all pages of the project as PDF, without a window"}},
        {"--sprache", "d|e", {"Sprache der gedruckten Seiten", "language of the printed pages"}},
        {"-h,--help", "", {"zeigt diese Hilfe", "shows this help"}},
    };
}

}  // namespace velmaris
