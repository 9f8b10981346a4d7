#include "climate/import/importquelle.h"

#include "climate/import/importspalten.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"

#include <algorithm>
#include <new>

namespace velmaris {
namespace {

constexpr std::size_t hoechste_groesse = std::size_t{512} << 20U;
constexpr std::size_t hoechste_zeilenzahl = 1'000'000;
constexpr std::string_view bytefolgezeichen = "\xEF\xBB\xBF";

bool enthaelt(std::string_view text, std::string_view teil) {
    return text.find(teil) != std::string_view::npos;
}

bool nennt_einen_ort(std::string_view zeile) {
    const Spaltenteiler teiler(Trennung::komma, {});
    return teiler.stelle(zeile, 1) == "LOCATION" && teiler.stelle(zeile, 2);
}

/// Cuts without leaving a part of a UTF-8 character.
std::string_view gekuerzt(std::string_view bytes, std::size_t hoechstens) {
    bytes = bytes.substr(0, hoechstens);
    for (int i = 0; i < 3 && !bytes.empty() && static_cast<unsigned char>(bytes.back()) >= 0x80; ++i)
        bytes.remove_suffix(1);
    return bytes;
}

}  // namespace

Importquelle::Importquelle(std::string bytes) : bytes_(std::move(bytes)) {
    std::size_t anfang = bytes_.starts_with(bytefolgezeichen) ? bytefolgezeichen.size() : 0;
    while (anfang < bytes_.size() && anfang_.size() < hoechste_zeilenzahl) {
        anfang_.push_back(anfang);
        anfang = std::min(bytes_.find('\n', anfang), bytes_.size() - 1) + 1;
    }
}

std::string_view Importquelle::zeile(int n) const {
    if (n < 1 || n > zeilenzahl()) return {};
    const std::string_view ab_hier =
        std::string_view(bytes_).substr(anfang_[static_cast<std::size_t>(n) - 1]);
    std::string_view zeile = ab_hier.substr(0, ab_hier.find('\n'));
    if (zeile.ends_with('\r')) zeile.remove_suffix(1);
    return zeile;
}

Importquelle quelle_lesen(const std::filesystem::path& datei) {
    try {
        return Importquelle(bytes_lesen(datei, hoechste_groesse));
    } catch (const std::bad_alloc&) {
        throw Dateifehler(pfadtext(datei), kein_speicher());
    }
}

Quellform quellform(const Importquelle& quelle) {
    if (nennt_einen_ort(quelle.zeile(1))) return Quellform::epw;
    const std::string_view namen = quelle.zeile(4);
    if (enthaelt(namen, "Ta") && (enthaelt(namen, "G_Gh") || enthaelt(namen, "G_Dh")))
        return Quellform::meteonorm;
    return Quellform::frei;
}

std::string quelltext(std::string_view bytes, std::size_t hoechstens) {
    const bool zu_lang = bytes.size() > hoechstens;
    if (zu_lang) bytes = gekuerzt(bytes, hoechstens);
    std::string text = ist_utf8(bytes) ? std::string(bytes) : aus_windows1252(bytes);
    std::replace_if(
        text.begin(), text.end(),
        [](char z) { return (static_cast<unsigned char>(z) < ' ' && z != '\t') || z == '\x7F'; }, ' ');
    return zu_lang ? text + "..." : text;
}

}  // namespace velmaris
