#include "tools/pictures/umrisse.h"

#include "tools/pictures/csv.h"

#include <utility>

namespace velmaris::bilder {
namespace {

Punkt ort(const Tabelle& tabelle, std::size_t zeile, std::size_t spalte) {
    return {tabelle.zahl(zeile, spalte, -180, 180), tabelle.zahl(zeile, spalte + 1, -90, 90)};
}

bool gleich(const Tabelle& tabelle, std::size_t a, std::size_t b, std::size_t spalten) {
    for (std::size_t s = 0; s < spalten; ++s) {
        if (tabelle.text(a, s) != tabelle.text(b, s)) return false;
    }
    return true;
}

/// The ring that begins at row `zeile` and goes on while the first `schluessel` columns stay the same;
/// `zeile` moves behind it. The position stands in the columns `spalte` and `spalte` + 1.
Ring ring_lesen(const Tabelle& tabelle, std::size_t& zeile, std::size_t schluessel, std::size_t spalte) {
    const std::size_t beginn = zeile;
    Ring ring;
    for (; zeile < tabelle.zeilen() && gleich(tabelle, beginn, zeile, schluessel); ++zeile)
        ring.push_back(ort(tabelle, zeile, spalte));
    if (ring.size() < 4 || ring.front() != ring.back())
        tabelle.ablehnen(zeile - 1, spalte, "Ring ist nicht geschlossen", "the ring is not closed");
    return ring;
}

}  // namespace

std::array<Flaeche, regionen_anzahl> regionen_lesen(const std::filesystem::path& datei) {
    const Tabelle tabelle(datei, {"region", "teil", "ring", "punkt", "lon", "lat"});
    std::array<Flaeche, regionen_anzahl> regionen;
    for (std::size_t zeile = 0; zeile < tabelle.zeilen();) {
        const int region = tabelle.ganzzahl(zeile, 0, 1, regionen_anzahl);
        regionen.at(static_cast<std::size_t>(region - 1)).push_back(ring_lesen(tabelle, zeile, 3, 4));
    }
    return regionen;
}

Flaeche umriss_lesen(const std::filesystem::path& datei, const std::vector<std::string>& merkmale) {
    std::vector<std::string> spalten{"ring"};
    spalten.insert(spalten.end(), merkmale.begin(), merkmale.end());
    spalten.insert(spalten.end(), {"lon", "lat"});
    const Tabelle tabelle(datei, std::move(spalten));
    Flaeche flaeche;
    for (std::size_t zeile = 0; zeile < tabelle.zeilen();)
        flaeche.push_back(ring_lesen(tabelle, zeile, 1, 1 + merkmale.size()));
    return flaeche;
}

std::vector<Strecke> linien_lesen(const std::filesystem::path& datei) {
    const Tabelle tabelle(datei, {"linie", "lon", "lat"});
    std::vector<Strecke> strecken;
    for (std::size_t zeile = 0; zeile < tabelle.zeilen();) {
        const std::size_t beginn = zeile;
        for (++zeile; zeile < tabelle.zeilen() && gleich(tabelle, beginn, zeile, 1); ++zeile)
            strecken.push_back({ort(tabelle, zeile - 1, 1), ort(tabelle, zeile, 1)});
        if (zeile - beginn < 2)
            tabelle.ablehnen(beginn, 0, "Linie hat nur einen Punkt", "the line has one point only");
    }
    return strecken;
}

}  // namespace velmaris::bilder
