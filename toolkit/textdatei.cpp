#include "toolkit/textdatei.h"

#include "toolkit/fehler.h"
#include "toolkit/text.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fstream>
#include <limits>
#include <system_error>

namespace velmaris {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void scheitern(const fs::path& datei, const Zweisprachig& text) {
    throw Dateifehler(pfadtext(datei), text);
}

[[noreturn]] void lesen_scheitert(const fs::path& datei) {
    std::error_code fehler;
    if (fs::is_directory(datei, fehler)) {
        scheitern(datei, {"ist ein Ordner, keine Datei", "is a folder, not a file"});
    }
    if (!fs::exists(datei, fehler)) scheitern(datei, {"Datei nicht gefunden", "file not found"});
    scheitern(datei, {"Datei kann nicht gelesen werden", "file cannot be read"});
}

[[noreturn]] void schreiben_scheitert(const fs::path& datei, int grund) {
    if (grund == ENOSPC) scheitern(datei, {"der Datenträger ist voll", "the disk is full"});
    if (grund == EACCES || grund == EPERM)
        scheitern(datei, {"Datei kann nicht geschrieben werden (keine Berechtigung)",
                          "file cannot be written (no permission)"});
    if (grund == EROFS)
        scheitern(datei, {"Datei kann nicht geschrieben werden (schreibgeschützter Datenträger)",
                          "file cannot be written (write-protected disk)"});
    std::error_code fehler;
    if (grund == ENOENT && !fs::exists(fs::absolute(datei, fehler).parent_path(), fehler))
        scheitern(datei, {"Datei kann nicht geschrieben werden (den Ordner gibt es nicht)",
                          "file cannot be written (there is no such folder)"});
    const std::string system =
        grund != 0 ? " (" + std::generic_category().message(grund) + ")" : std::string();
    scheitern(datei, {"Datei kann nicht geschrieben werden" + system, "file cannot be written" + system});
}

/// Writes and closes a file; the error number of the system on failure, 0 on success.
int schreiben(const fs::path& datei, std::string_view bytes) {
    errno = 0;
    std::ofstream strom(datei, std::ios::binary | std::ios::trunc);
    strom.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    strom.close();
    if (strom) return 0;
    return errno != 0 ? errno : EIO;
}

fs::path nachbar(const fs::path& datei) {
    fs::path neben = datei;
    neben += ".neu~";
    return neben;
}

}  // namespace

std::string anfang_lesen(const fs::path& datei, std::size_t hoechstens) {
    std::error_code fehler;
    if (fs::is_directory(datei, fehler)) lesen_scheitert(datei);
    std::ifstream strom(datei, std::ios::binary);
    if (!strom) lesen_scheitert(datei);
    std::string bytes;
    const auto groesse = fs::file_size(datei, fehler);
    if (!fehler) bytes.reserve(std::min<std::uintmax_t>(groesse, hoechstens));
    constexpr std::size_t stueck = 65536;
    while (strom && bytes.size() < hoechstens) {
        const std::size_t bisher = bytes.size();
        const std::size_t mehr = std::min(stueck, hoechstens - bisher);
        bytes.resize(bisher + mehr);
        strom.read(bytes.data() + bisher, static_cast<std::streamsize>(mehr));
        bytes.resize(bisher + static_cast<std::size_t>(strom.gcount()));
    }
    if (strom.bad()) lesen_scheitert(datei);
    return bytes;
}

std::string bytes_lesen(const fs::path& datei) {
    return anfang_lesen(datei, std::numeric_limits<std::size_t>::max());
}

void datei_ersetzen(const fs::path& datei, std::string_view bytes) {
    std::error_code fehler;
    fs::path ziel = fs::weakly_canonical(datei, fehler);
    if (fehler) ziel = datei;
    const fs::file_status bisher = fs::status(ziel, fehler);
    if (fs::is_directory(bisher))
        scheitern(datei, {"ist ein Ordner, keine Datei", "is a folder, not a file"});
    if (fs::exists(bisher) && !fs::is_regular_file(bisher)) {
        if (const int grund = schreiben(ziel, bytes); grund != 0) schreiben_scheitert(datei, grund);
        return;
    }
    const fs::path neben = nachbar(ziel);
    if (const int grund = schreiben(neben, bytes); grund != 0) {
        fs::remove(neben, fehler);
        schreiben_scheitert(datei, grund);
    }
    if (fs::exists(bisher)) fs::permissions(neben, bisher.permissions(), fehler);
    fs::rename(neben, ziel, fehler);
    if (fehler) {
        const int grund = fehler.value();
        fs::remove(neben, fehler);
        schreiben_scheitert(datei, grund);
    }
}

void dateigrenze_melden() {
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

std::optional<std::string_view> Zeilenleser::naechste() {
    if (rest_.empty()) return std::nullopt;
    ++zeile_;
    const std::size_t ende = rest_.find('\n');
    std::string_view zeile = rest_.substr(0, ende);
    rest_.remove_prefix(ende == std::string_view::npos ? rest_.size() : ende + 1);
    if (!zeile.empty() && zeile.back() == '\r') zeile.remove_suffix(1);
    return zeile;
}

std::optional<std::string_view> Listenleser::naechster() {
    if (rest_.empty()) return std::nullopt;
    if (neue_zeile_) ++zeile_;
    const std::size_t ende = rest_.find_first_of(",\n");
    std::string_view posten = rest_.substr(0, ende);
    neue_zeile_ = ende == std::string_view::npos || rest_[ende] == '\n';
    rest_.remove_prefix(ende == std::string_view::npos ? rest_.size() : ende + 1);
    while (!posten.empty() && (posten.front() == ' ' || posten.front() == '\t'))
        posten.remove_prefix(1);
    if (neue_zeile_ && !posten.empty() && posten.back() == '\r') posten.remove_suffix(1);
    return posten;
}

std::string_view spalten(std::string_view zeile, std::size_t von, std::size_t bis) {
    if (zeile.size() < von) return {};
    return zeile.substr(von - 1, bis - von + 1);
}

}  // namespace velmaris
