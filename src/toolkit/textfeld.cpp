#include "toolkit/textfeld.h"

namespace velmaris {
namespace {

/// The bytes of the UTF-8 character that the text begins with.
std::string_view erstes_zeichen(std::string_view text) {
    std::size_t laenge = 1;
    while (laenge < text.size() && (static_cast<unsigned char>(text[laenge]) & 0xC0U) == 0x80U)
        ++laenge;
    return text.substr(0, laenge);
}

}  // namespace

void Textfeld::schreibe(std::string text) {
    text_ = std::move(text);
    melden();
}

void Textfeld::tippe(std::string_view text) {
    std::string behalten;
    std::size_t zahl = 0;
    while (!text.empty() && (hoechstens_ == 0 || zahl < hoechstens_)) {
        const std::string_view zeichen = erstes_zeichen(text);
        text.remove_prefix(zeichen.size());
        if (!erlaubt_.empty() && erlaubt_.find(zeichen) == std::string::npos) continue;
        behalten += zeichen;
        ++zahl;
    }
    schreibe(std::move(behalten));
    if (geaendert) geaendert();
}

void Textfeld::bestaetige() const {
    if (bestaetigt) bestaetigt();
}

}  // namespace velmaris
