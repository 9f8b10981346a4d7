#include "tools/pictures/postleitzahlen.h"

#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "tools/csv.h"
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
    const auto zeilen =
        csv_lesen(bytes_lesen(datei, hoechste_quellgroesse), pfadtext(datei), {"prefix", "region"});
    if (zeilen.size() != anzahl)
        throw Dateifehler(pfadtext(datei), {"nicht 1000 Anfänge von Postleitzahlen", "not 1000 prefixes"});
    std::string ergebnis;
    for (std::size_t i = 0; i < anzahl; ++i) {
        const std::string& anfang = zeilen[i].text("prefix");
        if (anfang != dreistellig(i))
            zeilen[i].ablehnen("prefix",
                               {anfang + " steht nicht der Reihe nach", anfang + " is not in order"});
        const int region = zeilen[i].ganzzahl("region", {0, regionen_anzahl});
        ergebnis += anfang + ";" + rechtsbuendig(std::to_string(region), 2) + "\r\n";
    }
    return ergebnis;
}

}  // namespace velmaris::bilder
