#include "toolkit/csv.h"

#include "toolkit/text.h"
#include "toolkit/zahlen.h"

namespace velmaris {
namespace {

std::string verdoppelt(std::string_view text) {
    std::string ergebnis;
    for (const char zeichen : text)
        ergebnis.append(zeichen == '"' ? 2 : 1, zeichen);
    return ergebnis;
}

}  // namespace

void Csvtext::trennen() {
    if (in_der_zeile_) text_ += ',';
    in_der_zeile_ = true;
}

void Csvtext::zelle(std::string_view text) {
    trennen();
    const std::string inhalt = lesbar(text);
    if (inhalt.find_first_of(",\"") == std::string::npos) {
        text_ += inhalt;
    } else {
        text_.append("\"").append(verdoppelt(inhalt)).append("\"");
    }
}

void Csvtext::zelle(float zahl) {
    trennen();
    text_ += kuerzeste(zahl);
}

void Csvtext::zeilenende() {
    text_ += "\r\n";
    in_der_zeile_ = false;
}

}  // namespace velmaris
