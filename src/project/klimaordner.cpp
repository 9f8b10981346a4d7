#include "project/klimaordner.h"

#include "toolkit/text.h"
#include "toolkit/textdatei.h"

#include <algorithm>
#include <system_error>

namespace velmaris {
namespace {

namespace fs = std::filesystem;

constexpr const char* unterordner = "klima";

bool ist_steuerzeichen(char zeichen) {
    return static_cast<unsigned char>(zeichen) < ' ' || zeichen == '\x7F';
}

/// As much of a name as a message can take.
std::string gekuerzt(std::string_view name) {
    constexpr std::size_t hoechstens = 80;
    return aus_windows1252(nach_windows1252(name).substr(0, hoechstens));
}

}  // namespace

Klimaordner::Klimaordner(const fs::path& programmordner, const fs::path& datenordner) {
    if (!datenordner.empty()) ordner_.push_back(datenordner / unterordner);
    ordner_.push_back(programmordner / unterordner);
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
    if (benutzerordner.empty()) return {};
    std::error_code fehler;
    const fs::path klima = programmordner / unterordner;
    const bool beschreibbar = ordner_beschreibbar(fs::is_directory(klima, fehler) ? klima : programmordner);
    return beschreibbar ? fs::path() : benutzerordner;
}

std::optional<Zweisprachig> klimanamensfehler(std::string_view name) {
    if (name.empty()) return Zweisprachig{"der Dateiname ist leer", "the file name is empty"};
    if (std::any_of(name.begin(), name.end(), ist_steuerzeichen)) {
        return Zweisprachig{"der Dateiname enthält Steuerzeichen",
                            "the file name contains control characters"};
    }
    const std::string zitat = "\"" + gekuerzt(name) + "\"";
    if (name.find_first_of("/\\:") != std::string_view::npos) {
        return Zweisprachig{zitat + " ist kein bloßer Dateiname, sondern ein Pfad",
                            zitat + " is no plain file name but a path"};
    }
    if (!kleinschreiben(name).ends_with(".met")) {
        return Zweisprachig{zitat + " ist keine Klimadatei (.met)", zitat + " is no climate file (.met)"};
    }
    return std::nullopt;
}

}  // namespace velmaris
