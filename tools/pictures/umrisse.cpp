#include "tools/pictures/umrisse.h"

#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "tools/csv.h"

#include <algorithm>

namespace velmaris::bilder {
namespace {

using Zeilen = std::vector<Csvzeile>;
using Spalten = std::vector<std::string>;

/// Reads a table of points in degrees whose lines or rings are told apart by the columns `schluessel`, and
/// calls `tu` with the first row of each, the last one and the points.
template <class Tu>
void punktfolgen_lesen(const std::filesystem::path& datei, const Spalten& schluessel, Tu&& tu) {
    Spalten spalten = schluessel;
    spalten.insert(spalten.end(), {"lon", "lat"});
    const Zeilen zeilen = csv_lesen(bytes_lesen(datei, hoechste_quellgroesse), pfadtext(datei), spalten);
    for (auto beginn = zeilen.begin(); beginn != zeilen.end();) {
        const auto anders = [&](const Csvzeile& zeile) {
            return std::ranges::any_of(
                schluessel, [&](const std::string& s) { return zeile.text(s) != beginn->text(s); });
        };
        const auto ende = std::find_if(beginn, zeilen.end(), anders);
        Ring punkte;
        for (auto zeile = beginn; zeile != ende; ++zeile)
            punkte.push_back({zeile->zahl("lon", {-180, 180}), zeile->zahl("lat", {-90, 90})});
        tu(*beginn, *(ende - 1), punkte);
        beginn = ende;
    }
}

void geschlossen_verlangen(const Csvzeile& letzte, const Ring& ring) {
    if (ring.size() < 4 || ring.front() != ring.back())
        letzte.ablehnen("lon", {"der Ring ist nicht geschlossen", "the ring is not closed"});
}

}  // namespace

std::array<Flaeche, regionen_anzahl> regionen_lesen(const std::filesystem::path& datei) {
    std::array<Flaeche, regionen_anzahl> regionen;
    punktfolgen_lesen(datei, {"region", "teil", "ring"},
                      [&](const Csvzeile& erste, const Csvzeile& letzte, const Ring& ring) {
                          const int region = erste.ganzzahl("region", {1, regionen_anzahl});
                          geschlossen_verlangen(letzte, ring);
                          regionen.at(static_cast<std::size_t>(region - 1)).push_back(ring);
                      });
    return regionen;
}

Flaeche umriss_lesen(const std::filesystem::path& datei) {
    Flaeche flaeche;
    punktfolgen_lesen(datei, {"ring"}, [&](const Csvzeile&, const Csvzeile& letzte, const Ring& ring) {
        geschlossen_verlangen(letzte, ring);
        flaeche.push_back(ring);
    });
    return flaeche;
}

std::vector<Strecke> linien_lesen(const std::filesystem::path& datei) {
    Flaeche linien;
    punktfolgen_lesen(datei, {"linie"}, [&](const Csvzeile& erste, const Csvzeile&, const Ring& punkte) {
        if (punkte.size() < 2)
            erste.ablehnen("linie", {"die Linie hat nur einen Punkt", "the line has one point only"});
        linien.push_back(punkte);
    });
    return strecken(linien);
}

}  // namespace velmaris::bilder
