#include "climate/planes/stationskarte.h"

#include "toolkit/zahlen.h"

#include <cmath>
#include <filesystem>

namespace velmaris {
namespace {

constexpr double punktradius = 2;
constexpr Kartenpunkt neben_dem_bild{-10, -10};
constexpr int ziehungen = 250;
constexpr double klicktoleranz = 3;

void punkt_zeichnen(Zeichenflaeche& bild, Kartenpunkt ort, Farbe farbe) {
    bild.kreis(ort.x, ort.y, punktradius, farbe, farbe);
}

}  // namespace

std::optional<Farbe> gezeigte_kartenfarbe(const Bildfeld& karte, double x, double y) {
    if (!karte.lies_punkt || karte.bild().empty() || !std::filesystem::exists(karte.bild()))
        return std::nullopt;
    return karte.lies_punkt(x, y);
}

void Stationskarte::verbinden() {
    karte.zeichnen = [this](Zeichenflaeche& bild) { zeichnen(bild); };
    karte.maus_bewegt = [this](double x, double y) { maus_bewegt(x, y); };
    karte.maus_geklickt = [this](double x, double y) { maus_geklickt(x, y); };
}

void Stationskarte::zeichnen(Zeichenflaeche& bild) const {
    for (const Station& station : stationen)
        punkt_zeichnen(bild, ort(station), farben::gelb);
    const int index = liste.index();
    const bool gewaehlt = index >= 0 && index < static_cast<int>(stationen.size());
    punkt_zeichnen(bild, gewaehlt ? ort(stationen[static_cast<std::size_t>(index)]) : neben_dem_bild,
                   farben::rot);
}

void Stationskarte::maus_bewegt(double x, double y) const {
    const auto unter_der_maus = farbe_bei(x, y);
    const bool auf_punkt = unter_der_maus == farben::gelb || unter_der_maus == farben::rot;
    const Station* station = auf_punkt ? ausgeloste_station(x, y) : nullptr;
    MausRegion.schreibe(station != nullptr ? station->name : std::string());
}

void Stationskarte::maus_geklickt(double x, double y) const {
    if (farbe_bei(x, y) != farben::gelb) return;
    int treffer = -1;
    for (int i = 0; i < static_cast<int>(stationen.size()); ++i) {
        const Station& station = stationen[static_cast<std::size_t>(i)];
        if (nahe(station, x, y, klicktoleranz) && !sortiert_vor(MausRegion.text(), station.name)) treffer = i;
    }
    if (treffer >= 0) liste.setze(treffer);
}

Kartenweg Stationskarte::weg() const {
    const auto orte = [this] {
        std::vector<Kartenpunkt> alle;
        for (const Station& station : stationen)
            alle.push_back(ort(station));
        return alle;
    };
    return Kartenweg({.orte = orte,
                      .gewaehlt = [this] { return liste.index(); },
                      .name = [this](int stelle) { return stationen[static_cast<std::size_t>(stelle)].name; },
                      .zeigen = [this](int stelle) { zeigen(stelle); },
                      .waehlen = [this](int stelle) { liste.setze(stelle); }});
}

void Stationskarte::zeigen(int stelle) const {
    if (stelle < 0) return MausRegion.schreibe({});
    const Station& station = stationen[static_cast<std::size_t>(stelle)];
    MausRegion.schreibe(station.name);
    if (in_sicht) in_sicht(station);
}

const Station* Stationskarte::ausgeloste_station(double x, double y) const {
    const auto zahl = static_cast<double>(stationen.size());
    for (int i = 0; i < ziehungen && !stationen.empty(); ++i) {
        const Station& station = stationen.at(static_cast<std::size_t>(ganzzahl(plattform.zufall() * zahl)));
        if (nahe(station, x, y, toleranz)) return &station;
    }
    return nullptr;
}

Kartenpunkt Stationskarte::ort(const Station& station) const {
    return {station.ort.x * massstab, station.ort.y * massstab};
}

bool Stationskarte::nahe(const Station& station, double x, double y, double reichweite) const {
    const Kartenpunkt punkt = ort(station);
    return std::abs(x - punkt.x) < reichweite && std::abs(y - punkt.y) < reichweite;
}

std::optional<Farbe> Stationskarte::farbe_bei(double x, double y) const {
    return farbe ? farbe(karte, x, y) : std::nullopt;
}

}  // namespace velmaris
