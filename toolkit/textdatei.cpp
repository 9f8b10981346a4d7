#include "toolkit/textdatei.h"

#include "toolkit/fehler.h"
#include "toolkit/text.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fstream>
#include <random>
#include <system_error>

namespace velmaris {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void scheitern(const fs::path& datei, const Zweisprachig& text) {
    throw Dateifehler(pfadtext(datei), text);
}

[[noreturn]] void lesen_scheitert(const fs::path& datei) {
    scheitern(datei, {"Datei kann nicht gelesen werden", "file cannot be read"});
}

/// Opening a pipe would wait for its writer, and a device may never end; so they are not opened at all.
void nur_regulaere(const fs::path& datei) {
    std::error_code fehler;
    const fs::file_status art = fs::status(datei, fehler);
    if (fs::is_regular_file(art)) return;
    if (fs::is_directory(art)) scheitern(datei, {"ist ein Ordner, keine Datei", "is a folder, not a file"});
    if (art.type() == fs::file_type::not_found) scheitern(datei, {"Datei nicht gefunden", "file not found"});
    if (!fs::status_known(art) || art.type() == fs::file_type::unknown) lesen_scheitert(datei);
    scheitern(datei, {"ist keine gewöhnliche Datei und wird nicht gelesen",
                      "is not a regular file and is not read"});
}

std::string groesse_in_worten(std::size_t bytes) {
    constexpr std::size_t kb = 1024;
    if (bytes % (kb * kb) == 0) return std::to_string(bytes / (kb * kb)) + " MB";
    return std::to_string(bytes / kb) + " KB";
}

[[noreturn]] void schreiben_scheitert(const fs::path& datei, int grund) {
    if (grund == ENOSPC) scheitern(datei, {"der Datenträger ist voll", "the disk is full"});
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
    nur_regulaere(datei);
    std::ifstream strom(datei, std::ios::binary);
    if (!strom) lesen_scheitert(datei);
    std::string bytes;
    std::error_code fehler;
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

std::string bytes_lesen(const fs::path& datei, std::size_t hoechstens) {
    std::string bytes = anfang_lesen(datei, hoechstens + 1);
    if (bytes.size() > hoechstens) {
        const std::string grenze = groesse_in_worten(hoechstens);
        scheitern(datei, {"die Datei ist größer als " + grenze + " und wird nicht gelesen",
                          "the file is larger than " + grenze + " and is not read"});
    }
    return bytes;
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

// What rights and attributes tell is not the whole truth on every system, so an empty folder is made and
// removed again; its name is not in use, else making it fails.
bool ordner_beschreibbar(const fs::path& ordner) {
    std::error_code fehler;
    std::random_device zufall;
    const fs::path probe = ordner / (".velmaris-" + std::to_string(zufall()));
    if (!fs::create_directory(probe, fehler)) return false;
    fs::remove(probe, fehler);
    return true;
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

}  // namespace velmaris
