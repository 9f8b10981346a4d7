#include "toolkit/neue_datei.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <string>
#include <system_error>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace velmaris {
namespace {

namespace fs = std::filesystem;

struct Schliesser {
    void operator()(std::FILE* strom) const { std::fclose(strom); }
};
using Strom = std::unique_ptr<std::FILE, Schliesser>;

Strom oeffnen(const fs::path& datei, const char* art) {
#ifdef _WIN32
    return Strom(_wfopen(datei.c_str(), fs::path(art).c_str()));
#else
    return Strom(std::fopen(datei.c_str(), art));
#endif
}

/// Waits until what was written is on the disk; a disk that cannot be waited for counts as done.
bool auf_die_platte(std::FILE* strom) {
#ifdef _WIN32
    return _commit(_fileno(strom)) == 0;
#else
    return fsync(fileno(strom)) == 0 || errno == EINVAL || errno == ENOTSUP;
#endif
}

bool alles_geschrieben(Strom strom, std::string_view bytes) {
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
    Strom strom = oeffnen(datei, "wbx");
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
    return (rechte & schreiben) != fs::perms::none && oeffnen(datei, "r+b") != nullptr;
}

}  // namespace velmaris
