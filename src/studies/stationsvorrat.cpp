#include "studies/stationsvorrat.h"

#include <utility>

namespace velmaris {

Stationsvorrat::Stationsvorrat(std::filesystem::path programmordner, std::filesystem::path datenordner,
                               std::function<void(const Zweisprachig&)> warnen)
    : programmordner_(std::move(programmordner)),
      datenordner_(std::move(datenordner)),
      warnen_(std::move(warnen)) {}

const Stationsabbild& Stationsvorrat::station(const std::string& klimadatei) {
    Fach& ort = fach(klimadatei);
    std::call_once(ort.gelesen, [&] { lesen(ort, klimadatei); });
    if (ort.fehler) throw Dateifehler(*ort.fehler);
    return *ort.abbild;
}

Stationsvorrat::Fach& Stationsvorrat::fach(const std::string& klimadatei) {
    const std::scoped_lock sperre(schloss_);
    return faecher_[klimadatei];
}

void Stationsvorrat::lesen(Fach& fach, const std::string& klimadatei) {
    try {
        fach.abbild = std::make_unique<const Stationsabbild>(programmordner_, datenordner_, klimadatei);
    } catch (const Dateifehler& fehler) {
        fach.fehler = fehler;
        return;
    }
    if (!fach.abbild->warnung()) return;
    const std::scoped_lock sperre(schloss_);
    warnen_(*fach.abbild->warnung());
}

}  // namespace velmaris
