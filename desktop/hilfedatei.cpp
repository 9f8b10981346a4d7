#include "desktop/hilfedatei.h"

#include "toolkit/fehler.h"
#include "toolkit/text.h"

#include <array>
#include <chm_lib.h>
#include <cstdint>
#include <fstream>
#include <system_error>

namespace velmaris {
namespace {

/// No page or picture of a help file is larger; a damaged directory may say so.
constexpr LONGUINT64 groesstes_stueck = 64U << 20U;

Dateifehler beschaedigt(const std::filesystem::path& datei) {
    return {pfadtext(datei), {"Die Hilfedatei ist beschädigt.", "The help file is damaged."}};
}

/// A number of eight bytes, the lowest first; nothing beyond the end of the file.
std::optional<std::uint64_t> zahl_an(std::ifstream& datei, std::uint64_t ort) {
    std::array<char, 8> bytes{};
    datei.seekg(static_cast<std::streamoff>(ort));
    if (!datei.read(bytes.data(), bytes.size())) return std::nullopt;
    std::uint64_t wert = 0;
    for (std::size_t i = bytes.size(); i-- > 0;)
        wert = wert << 8U | static_cast<unsigned char>(bytes.at(i));
    return wert;
}

/// The head of a help file tells where its length stands; a file that was cut off is shorter than that.
bool hat_seine_laenge(const std::filesystem::path& name) {
    constexpr std::uint64_t ort_des_ersten_abschnitts = 0x38;
    constexpr std::uint64_t laenge_im_abschnitt = 8;
    std::ifstream datei(name, std::ios::binary);
    const auto abschnitt = zahl_an(datei, ort_des_ersten_abschnitts);
    if (!abschnitt) return false;
    const auto laenge = zahl_an(datei, *abschnitt + laenge_im_abschnitt);
    std::error_code fehler;
    return laenge == std::filesystem::file_size(name, fehler);
}

}  // namespace

void Hilfedatei::Schliessen::operator()(chmFile* datei) const {
    chm_close(datei);
}

Hilfedatei::Hilfedatei(std::filesystem::path datei) : pfad_(std::move(datei)) {
    std::error_code fehler;
    if (!std::filesystem::is_regular_file(pfad_, fehler)) {
        throw Dateifehler(pfadtext(pfad_),
                          {"Die Hilfedatei wurde nicht gefunden.", "The help file was not found."});
    }
    if (hat_seine_laenge(pfad_)) datei_.reset(chm_open(pfad_.c_str()));
    if (!datei_) throw beschaedigt(pfad_);
}

std::optional<std::string> Hilfedatei::lies(const std::string& name) const {
    chmUnitInfo ort{};
    if (chm_resolve_object(datei_.get(), name.c_str(), &ort) != CHM_RESOLVE_SUCCESS) return std::nullopt;
    if (ort.length > groesstes_stueck) throw beschaedigt(pfad_);
    std::string bytes(ort.length, '\0');
    const LONGINT64 gelesen =
        chm_retrieve_object(datei_.get(), &ort, reinterpret_cast<unsigned char*>(bytes.data()), 0,
                            static_cast<LONGINT64>(ort.length));
    if (gelesen != static_cast<LONGINT64>(ort.length)) throw beschaedigt(pfad_);
    return bytes;
}

}  // namespace velmaris
