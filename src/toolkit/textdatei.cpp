#include "toolkit/textdatei.h"

#include "toolkit/fehler.h"
#include "toolkit/neue_datei.h"
#include "toolkit/text.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
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

/// Where a file is put that was saved under a link: what the link leads to.
fs::path verfolgt(const fs::path& datei) {
    std::error_code fehler;
    const fs::path ziel = fs::weakly_canonical(datei, fehler);
    return fehler ? datei : ziel;
}

/// Refuses a target that must not be replaced by a file.
void ziel_pruefen(const fs::path& datei, const fs::path& ziel, const fs::file_status& bisher) {
    std::error_code fehler;
    if (fs::is_symlink(fs::symlink_status(ziel, fehler)))
        scheitern(datei, {"ist ein Verweis, der ins Leere führt", "is a link that leads nowhere"});
    if (fs::is_directory(bisher))
        scheitern(datei, {"ist ein Ordner, keine Datei", "is a folder, not a file"});
    if (!fs::exists(bisher)) return;
    if (!fs::is_regular_file(bisher))
        scheitern(datei, {"ist keine gewöhnliche Datei", "is not a regular file"});
    if (!ist_beschreibbar(ziel)) scheitern(datei, {"ist schreibgeschützt", "is write-protected"});
}

/// A name in the folder that nobody else uses, and far shorter than a file name may be.
fs::path eigener_name(const fs::path& ordner) {
    constexpr std::string_view ziffern = "0123456789abcdef";
    constexpr int stellen = 16;
    std::random_device zufall;
    std::string name = "velmaris_";
    for (int i = 0; i < stellen; ++i)
        name += ziffern[zufall() % ziffern.size()];
    return ordner / (name + ".neu~");
}

/// Writes the bytes into a neighbour of its own; returns its path.
fs::path nachbar_schreiben(const fs::path& datei, const fs::path& ziel, std::string_view bytes,
                           fs::perms rechte) {
    while (true) {
        fs::path neben = eigener_name(ziel.parent_path());
        const int grund = neue_datei(neben, bytes, rechte);
        if (grund == 0) return neben;
        if (grund != EEXIST) schreiben_scheitert(datei, grund);
    }
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
    const fs::path ziel = verfolgt(datei);
    const fs::file_status bisher = fs::status(ziel, fehler);
    ziel_pruefen(datei, ziel, bisher);
    const fs::path neben = nachbar_schreiben(datei, ziel, bytes, bisher.permissions());
    fs::rename(neben, ziel, fehler);
    if (!fehler) return;
    const int grund =
        fehler.default_error_condition().value();  // the number of the standard, not the system's
    fs::remove(neben, fehler);
    schreiben_scheitert(datei, grund);
}

bool datei_anlegen(const fs::path& datei, std::string_view bytes) {
    const int grund = neue_datei(datei, bytes);
    if (grund != 0 && grund != EEXIST) schreiben_scheitert(datei, grund);
    return grund == 0;
}

// What rights and attributes tell is not the whole truth on every system, so an empty folder is made and
// removed again; its name is not in use, else making it fails.
bool ordner_beschreibbar(const fs::path& ordner) {
    std::error_code fehler;
    const fs::path probe = eigener_name(ordner);
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
