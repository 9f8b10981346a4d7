#include "tools/climate/stationsliste.h"

#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "toolkit/zahlen.h"
#include "tools/csv.h"

#include <cmath>
#include <map>

namespace velmaris::klimasatz {
namespace {

constexpr Grenzen breitenbereich{-90, 90};
constexpr Grenzen laengenbereich{-180, 180};
constexpr Grenzen hoehenbereich{-430, 6000};
constexpr Grenzen zonenbereich{-12, 14};
constexpr Grenzen temperaturbereich{-60, 50};
constexpr Grenzen spannenbereich{0.5, 30};
constexpr Grenzen strahlungsbereich{0, 400};

std::vector<std::string> verlangte_spalten() {
    std::vector<std::string> spalten{"name", "land", "datei", "breite_n", "laenge_o", "hoehe_m", "utc_h"};
    for (const char* gruppe : {"ta", "dtr", "ghi"}) {
        for (int m = 1; m <= monate; ++m)
            spalten.push_back(monatsspalte(gruppe, m));
    }
    return spalten;
}

/// A text that the station file can hold.
const std::string& text(const Csvzeile& zeile, std::string_view spalte) {
    const std::string& wert = zeile.text(spalte);
    if (aus_windows1252(nach_windows1252(wert)) != wert)
        zeile.ablehnen(spalte, {"Zeichen außerhalb von windows-1252", "character outside windows-1252"});
    return wert;
}

Monatswerte monatszahlen(const Csvzeile& zeile, const std::string& gruppe, Grenzen grenzen) {
    Monatswerte werte;
    for (int m = 1; m <= monate; ++m)
        werte(m) = zeile.zahl(monatsspalte(gruppe, m), grenzen);
    return werte;
}

/// The file name: lower case, in no folder, and not the name that the program passes over.
std::string dateiname(const Csvzeile& zeile) {
    const std::string feld = "datei";
    const std::string endung = ".met";
    const std::string& name = text(zeile, feld);
    const bool endet = name.size() > endung.size() && name.ends_with(endung);
    if (!endet || name.find_first_of("/\\:*?<>|") != std::string::npos || name == "klima.met")
        zeile.ablehnen(feld, {"kein Name einer Stationsdatei", "no name of a station file"});
    if (kleinschreiben(name) != name)
        zeile.ablehnen(feld, {"Großbuchstaben im Dateinamen", "capitals in the file name"});
    return name;
}

double zeitzone(const Csvzeile& zeile) {
    const std::string feld = "utc_h";
    const double zone = zeile.zahl(feld, zonenbereich);
    if (zone * 4 != std::floor(zone * 4))
        zeile.ablehnen(feld, {"keine vollen Viertelstunden", "no whole quarters of an hour"});
    return zone;
}

Stationsfakten station(const Csvzeile& zeile) {
    Stationsfakten s;
    s.name = text(zeile, "name");
    s.land = text(zeile, "land");
    s.datei = dateiname(zeile);
    s.breite_n = zeile.zahl("breite_n", breitenbereich);
    s.laenge_o = zeile.zahl("laenge_o", laengenbereich);
    s.hoehe_m = zeile.zahl("hoehe_m", hoehenbereich);
    s.utc_h = zeitzone(zeile);
    s.ta = monatszahlen(zeile, "ta", temperaturbereich);
    s.dtr = monatszahlen(zeile, "dtr", spannenbereich);
    s.ghi = monatszahlen(zeile, "ghi", strahlungsbereich);
    s.liste = zeile.datei();
    s.zeile = zeile.nummer();
    return s;
}

}  // namespace

Kopfzahlen kopfzahlen(const Stationsfakten& station) {
    int stellen = 0;
    while (stellen < 2 && zahl_lesen(muster(station.utc_h, stellen)) != station.utc_h)
        ++stellen;
    return {muster(station.breite_n, 3), muster(-station.laenge_o, 3), muster(-station.utc_h, stellen)};
}

Standort standort(const Stationsfakten& station) {
    const Kopfzahlen kopf = kopfzahlen(station);
    return {f32(zahl_lesen(kopf.breite) * grad_in_bogen),
            f32(-zahl_lesen(kopf.zeitzone) * 15 + zahl_lesen(kopf.laenge))};
}

std::string monatsspalte(const std::string& gruppe, int m) {
    return gruppe + (m < 10 ? "_0" : "_") + std::to_string(m);
}

std::vector<Stationsfakten> stationsliste(std::string_view text, const std::string& datei) {
    std::vector<Stationsfakten> stationen;
    std::map<std::string, int> zeile_der_datei;
    for (const Csvzeile& zeile : csv_lesen(text, datei, verlangte_spalten())) {
        stationen.push_back(station(zeile));
        const auto [erste, neu] = zeile_der_datei.emplace(stationen.back().datei, zeile.nummer());
        if (neu) continue;
        const std::string wo = std::to_string(erste->second);
        zeile.ablehnen("datei", {erste->first + " steht schon in Zeile " + wo,
                                 erste->first + " stands in line " + wo + " already"});
    }
    return stationen;
}

std::vector<Stationsfakten> stationsliste_lesen(const std::filesystem::path& datei) {
    return stationsliste(bytes_lesen(datei, hoechste_quellgroesse), pfadtext(datei));
}

}  // namespace velmaris::klimasatz
