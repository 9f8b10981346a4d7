#include "project/klimaordner.h"

#include "toolkit/programmordner.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"

#include <algorithm>
#include <system_error>

namespace velmaris {
namespace {

namespace fs = std::filesystem;

}  // namespace

Klimaordner::Klimaordner(const fs::path& programmordner, const fs::path& datenordner) {
    if (!datenordner.empty()) ordner_.push_back(datenordner / klimaunterordner);
    ordner_.push_back(programmordner / klimaunterordner);
}

fs::path Klimaordner::datei(std::string_view name) const {
    std::error_code fehler;
    const auto ort = std::find_if(ordner_.begin(), ordner_.end() - 1, [&](const fs::path& ordner) {
        return fs::exists(ordner / pfad(name), fehler);
    });
    return *ort / pfad(name);
}

fs::path Klimaordner::ziel(std::string_view name) const {
    return ordner_.front() / pfad(name);
}

fs::path Klimaordner::schreiben(std::string_view name, std::string_view bytes) const {
    std::error_code fehler;
    if (ordner_.size() > 1) fs::create_directories(ordner_.front(), fehler);
    fs::path datei = ziel(name);
    datei_ersetzen(datei, bytes);
    return datei;
}

fs::path datenordner_bestimmen(const fs::path& programmordner, const fs::path& benutzerordner) {
    if (benutzerordner.empty() || gemeinsamer_ordner(programmordner)) return benutzerordner;
    std::error_code fehler;
    const fs::path klima = programmordner / klimaunterordner;
    const bool beschreibbar = ordner_beschreibbar(fs::is_directory(klima, fehler) ? klima : programmordner);
    return beschreibbar ? fs::path() : benutzerordner;
}

}  // namespace velmaris
