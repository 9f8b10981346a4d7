#include "project/rettung.h"

#include "project/projektdatei.h"
#include "toolkit/fehler.h"
#include "toolkit/textdatei.h"

#include <memory>
#include <string>
#include <system_error>
#include <vector>

namespace velmaris {
namespace {

std::filesystem::path rettungsname(int nummer) {
    return nummer == 1 ? "Velmaris_Rettung.vel" : "Velmaris_Rettung_" + std::to_string(nummer) + ".vel";
}

/// Folders for a rescue file, the best first.
std::vector<std::filesystem::path> ordner(const Sitzung& sitzung) {
    std::error_code fehler;
    std::vector<std::filesystem::path> alle;
    if (!sitzung.projektdatei.empty()) alle.push_back(sitzung.projektdatei.parent_path());
    const auto fluechtig = std::filesystem::temp_directory_path(fehler);
    if (!fehler) alle.push_back(fluechtig);
    return alle;
}

std::filesystem::path unter_freiem_namen(const std::filesystem::path& ziel, const std::string& text) {
    for (int nummer = 1;; ++nummer) {
        std::filesystem::path datei = ziel / rettungsname(nummer);
        if (datei_anlegen(datei, text)) return datei;
    }
}

}  // namespace

void Rettung::rechnung_beginnt() {
    if (s_.p.FormLoadGuard == 0) gelungen_ = false;
}

void Rettung::rechnung_gelungen() {
    if (s_.p.FormLoadGuard != 0) return;
    letzter_ = s_.p;
    gelungen_ = true;
}

std::optional<std::filesystem::path> Rettung::letzten_stand_retten() const {
    if (!letzter_) return std::nullopt;
    return retten(*letzter_);
}

std::optional<std::filesystem::path> Rettung::projekt_retten() const {
    return gelungen_ && s_.p.FormLoadGuard == 0 ? retten(s_.p) : letzten_stand_retten();
}

std::optional<std::filesystem::path> Rettung::retten(const Eingaben& eingaben) const {
    const auto p = std::make_unique<Projekt>();
    static_cast<Eingaben&>(*p) = eingaben;
    const std::string text = projekt_schreiben(*p);
    for (const std::filesystem::path& ziel : ordner(s_)) {
        try {
            return unter_freiem_namen(ziel, text);
        } catch (const Dateifehler&) {
            continue;
        }
    }
    return std::nullopt;
}

}  // namespace velmaris
