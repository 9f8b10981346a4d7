#include "toolkit/neue_datei.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <string>
#include <system_error>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
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

/// Makes a file that does not exist yet; nothing and the error number if that fails.
Strom anlegen(const fs::path& datei) {
#ifdef _WIN32
    // The runtime library that every Windows has does not know the "x" of "wbx".
    const int griff = _wopen(datei.c_str(), _O_CREAT | _O_EXCL | _O_WRONLY | _O_BINARY, _S_IREAD | _S_IWRITE);
    return Strom(griff < 0 ? nullptr : _fdopen(griff, "wb"));
#else
    return Strom(std::fopen(datei.c_str(), "wbx"));
#endif
}

Strom zum_aendern_oeffnen(const fs::path& datei) {
#ifdef _WIN32
    return Strom(_wfopen(datei.c_str(), L"r+b"));
#else
    return Strom(std::fopen(datei.c_str(), "r+b"));
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
    Strom strom = anlegen(datei);
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
    return (rechte & schreiben) != fs::perms::none && zum_aendern_oeffnen(datei) != nullptr;
}

}  // namespace velmaris
