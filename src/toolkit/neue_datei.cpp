#include "toolkit/neue_datei.h"

#include "toolkit/systemstrom.h"

#include <cerrno>
#include <system_error>

namespace velmaris {
namespace {

namespace fs = std::filesystem;

bool alles_geschrieben(Systemstrom strom, std::string_view bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), strom.get()) != bytes.size()) return false;
    if (std::fflush(strom.get()) != 0 || !auf_die_platte(strom.get())) return false;
    return std::fclose(strom.release()) == 0;
}

int letzter_fehler() {
    return errno != 0 ? errno : EIO;
}

}  // namespace

int neue_datei(const fs::path& datei, std::string_view bytes, fs::perms rechte) {
    errno = 0;
    Systemstrom strom = neuer_strom(datei);
    if (!strom) return letzter_fehler();
    std::error_code fehler;
    if (rechte != fs::perms::unknown) fs::permissions(datei, rechte, fehler);
    errno = 0;
    if (alles_geschrieben(std::move(strom), bytes)) return 0;
    const int grund = letzter_fehler();
    fs::remove(datei, fehler);
    return grund;
}

bool ist_beschreibbar(const fs::path& datei) {
    constexpr fs::perms schreiben = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    std::error_code fehler;
    const fs::perms rechte = fs::status(datei, fehler).permissions();
    return (rechte & schreiben) != fs::perms::none && aenderbarer_strom(datei) != nullptr;
}

}  // namespace velmaris
