#include "climate/stationslisten.h"

#include "climate/klimadatei.h"
#include "project/klimaname.h"
#include "project/klimaordner.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <system_error>

namespace velmaris {
namespace {

namespace fs = std::filesystem;

bool auf_der_europakarte(const Station& station) {
    const Kartenpunkt ort = station.ort;
    return ort.x >= 0 && ort.x <= europagroesse.breite - 1 && ort.y >= 0 && ort.y <= europagroesse.hoehe - 1;
}

bool ist_stationsdatei(const std::string& name) {
    return !klimanamensfehler(name) && kleinschreiben(name) != "klima.met";
}

/// Adds the stations of a folder but those whose name is there already.
void dateien_hinzufuegen(std::map<std::string, fs::path>& dateien, const fs::path& ordner) {
    std::error_code fehler;
    for (fs::directory_iterator eintrag(ordner, fehler), ende; !fehler && eintrag != ende;
         eintrag.increment(fehler)) {
        std::error_code ohne_art;
        std::string name = pfadtext(eintrag->path().filename());
        if (ist_stationsdatei(name) && eintrag->is_regular_file(ohne_art))
            dateien.emplace(std::move(name), eintrag->path());
    }
}

std::optional<Stationskopf> kopf(const fs::path& datei) {
    try {
        return stationskopf_lesen(datei);
    } catch (const Dateifehler&) {
        return std::nullopt;
    }
}

}  // namespace

bool sortiert_vor(std::string_view name, std::string_view anderer) {
    return nach_windows1252(name) < nach_windows1252(anderer);
}

Stationslisten stationslisten_lesen(const std::vector<fs::path>& ordner) {
    // By name: the order in which a folder lists its files is the system's own.
    std::map<std::string, fs::path> dateien;
    for (const fs::path& einer : ordner)
        dateien_hinzufuegen(dateien, einer);
    Stationslisten listen;
    std::vector<Station> europa;
    for (const auto& [datei, ort] : dateien) {
        const auto station = kopf(ort);
        if (!station) continue;
        const std::string name = station->name.empty() ? datei : station->name;
        listen.Welt.push_back({name, datei, weltpunkt(station->breite, -station->laenge)});
        europa.push_back({name, datei, europapunkt(station->breite, -station->laenge)});
    }
    for (std::vector<Station>* liste : {&listen.Welt, &europa}) {
        std::stable_sort(liste->begin(), liste->end(),
                         [](const Station& a, const Station& b) { return sortiert_vor(a.name, b.name); });
    }
    std::copy_if(europa.begin(), europa.end(), std::back_inserter(listen.Europa), auf_der_europakarte);
    return listen;
}

int stationsindex(const std::vector<Station>& stationen, std::string_view datei) {
    const auto treffer = std::find_if(stationen.begin(), stationen.end(),
                                      [datei](const Station& station) { return station.datei == datei; });
    return treffer == stationen.end() ? -1 : static_cast<int>(treffer - stationen.begin());
}

std::vector<std::string> stationsnamen(const std::vector<Station>& stationen) {
    std::vector<std::string> namen;
    namen.reserve(stationen.size());
    for (const Station& station : stationen)
        namen.push_back(station.name);
    return namen;
}

}  // namespace velmaris
