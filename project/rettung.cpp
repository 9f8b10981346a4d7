#include "project/rettung.h"

#include "project/projektdatei.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"

#include <string>
#include <system_error>
#include <vector>

namespace velmaris {
namespace {

std::filesystem::path freier_name(const std::filesystem::path& ordner) {
    std::error_code fehler;
    std::filesystem::path datei = ordner / "Velmaris_Rettung.vel";
    for (int i = 2; std::filesystem::exists(datei, fehler); ++i) {
        datei = ordner / ("Velmaris_Rettung_" + std::to_string(i) + ".vel");
    }
    return datei;
}

std::vector<std::filesystem::path> ordner(const Projekt& p) {
    std::error_code fehler;
    std::vector<std::filesystem::path> alle;
    if (p.Datei != unbenannt && !p.Datei.empty()) alle.push_back(pfad(p.Datei).parent_path());
    const auto fluechtig = std::filesystem::temp_directory_path(fehler);
    if (!fehler) alle.push_back(fluechtig);
    return alle;
}

}  // namespace

std::optional<std::filesystem::path> projekt_retten(const Projekt& p) {
    for (const std::filesystem::path& ziel : ordner(p)) {
        try {
            const std::filesystem::path datei = freier_name(ziel);
            datei_ersetzen(datei, projekt_schreiben(p));
            return datei;
        } catch (const Dateifehler&) {
            continue;
        }
    }
    return std::nullopt;
}

}  // namespace velmaris
