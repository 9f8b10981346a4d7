#include "toolkit/systemstrom.h"

#include <cerrno>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#else
#include <unistd.h>
#endif

namespace velmaris {

namespace fs = std::filesystem;

#ifdef _WIN32

Systemstrom neuer_strom(const fs::path& datei) {
    // The runtime library that every Windows has does not know the "x" of "wbx".
    const int griff = _wopen(datei.c_str(), _O_CREAT | _O_EXCL | _O_WRONLY | _O_BINARY, _S_IREAD | _S_IWRITE);
    return Systemstrom(griff < 0 ? nullptr : _fdopen(griff, "wb"));
}

Systemstrom aenderbarer_strom(const fs::path& datei) {
    return Systemstrom(_wfopen(datei.c_str(), L"r+b"));
}

bool auf_die_platte(std::FILE* strom) {
    return _commit(_fileno(strom)) == 0;
}

bool ist_terminal(std::FILE* strom) {
    return _isatty(_fileno(strom)) != 0;
}

#else

Systemstrom neuer_strom(const fs::path& datei) {
    return Systemstrom(std::fopen(datei.c_str(), "wbx"));
}

Systemstrom aenderbarer_strom(const fs::path& datei) {
    return Systemstrom(std::fopen(datei.c_str(), "r+b"));
}

bool auf_die_platte(std::FILE* strom) {
    return fsync(fileno(strom)) == 0 || errno == EINVAL || errno == ENOTSUP;
}

bool ist_terminal(std::FILE* strom) {
    return isatty(fileno(strom)) != 0;
}

#endif

}  // namespace velmaris
