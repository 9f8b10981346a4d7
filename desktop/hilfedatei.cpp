#include "desktop/hilfedatei.h"

#include "toolkit/fehler.h"
#include "toolkit/text.h"

#include <chm_lib.h>
#include <system_error>

namespace velmaris {
namespace {

/// No page or picture of a help file is larger; a damaged directory may say so.
constexpr LONGUINT64 groesstes_stueck = 64U << 20U;

Dateifehler beschaedigt(const std::filesystem::path& datei) {
    return {pfadtext(datei), {"Die Hilfedatei ist beschädigt.", "The help file is damaged."}};
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
    datei_.reset(chm_open(pfad_.c_str()));
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
