#include "project/eigene_datei.h"

#include "toolkit/fehler.h"
#include "toolkit/textdatei.h"

#include <system_error>
#include <utility>

namespace velmaris {
namespace {

/// Where a path leads, whatever links and relative parts it has; empty if it cannot be followed.
std::filesystem::path ort(const std::filesystem::path& datei) {
    std::error_code fehler;
    const std::filesystem::path ganz = std::filesystem::absolute(datei, fehler);
    return fehler ? std::filesystem::path() : std::filesystem::weakly_canonical(ganz, fehler);
}

}  // namespace

void EigeneDatei::uebernehmen(const std::filesystem::path& datei, std::string bytes) {
    ort_ = ort(datei);
    stand_ = std::move(bytes);
    verbunden_ = true;
}

bool EigeneDatei::ist(const std::filesystem::path& datei) const {
    return !ort_.empty() && ort(datei) == ort_;
}

bool EigeneDatei::gehoert(const std::filesystem::path& datei) const {
    return verbunden_ && ist(datei);
}

bool EigeneDatei::fremd_geaendert(const std::filesystem::path& datei) const {
    std::error_code fehler;
    if (!ist(datei) || !std::filesystem::is_regular_file(ort_, fehler)) return false;
    try {
        return anfang_lesen(ort_, stand_.size() + 1) != stand_;
    } catch (const Dateifehler&) {
        return true;
    }
}

}  // namespace velmaris
