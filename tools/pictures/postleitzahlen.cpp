#include "tools/pictures/postleitzahlen.h"

#include "toolkit/fehler.h"
#include "toolkit/text.h"
#include "tools/pictures/csv.h"
#include "tools/pictures/umrisse.h"

namespace velmaris::bilder {
namespace {

std::string dreistellig(std::size_t zahl) {
    const std::string ziffern = std::to_string(zahl);
    return std::string(3 - ziffern.size(), '0') + ziffern;
}

}  // namespace

std::string postleitzahlen_text(const std::filesystem::path& datei) {
    constexpr std::size_t anzahl = 1000;
    const Tabelle tabelle(datei, {"prefix", "region"});
    if (tabelle.zeilen() != anzahl) {
        throw Dateifehler(pfadtext(datei), {"nicht 1000 Anfänge von Postleitzahlen", "not 1000 prefixes"});
    }
    std::string ergebnis;
    for (std::size_t zeile = 0; zeile < anzahl; ++zeile) {
        const std::string& anfang = tabelle.text(zeile, 0);
        if (anfang != dreistellig(zeile)) {
            tabelle.ablehnen(zeile, 0, "nicht der Reihe nach", "not in order");
        }
        const int region = tabelle.ganzzahl(zeile, 1, 0, regionen_anzahl);
        ergebnis += anfang + ";" + rechtsbuendig(std::to_string(region), 2) + "\r\n";
    }
    return ergebnis;
}

}  // namespace velmaris::bilder
