#include "climate/planes/kartenweg.h"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

using Richtung = Kartenweg::Richtung;

/// How far a way leads into a direction, and how far aside.
struct Zerlegt {
    double voran;
    double beiseite;
};

Zerlegt zerlege(Kartenpunkt von, Kartenpunkt nach, Richtung richtung) {
    const double rechts = nach.x - von.x, unten = nach.y - von.y;
    switch (richtung) {
        case Richtung::links:
            return {-rechts, std::abs(unten)};
        case Richtung::rechts:
            return {rechts, std::abs(unten)};
        case Richtung::oben:
            return {-unten, std::abs(rechts)};
        default:
            return {unten, std::abs(rechts)};
    }
}

/// Index of the nearest place in one of the four directions, or the place itself.
int naechster(const std::vector<Kartenpunkt>& orte, int von, Richtung richtung) {
    int gefunden = von;
    double weite = 0;
    for (int i = 0; i < static_cast<int>(orte.size()); ++i) {
        const Zerlegt weg =
            zerlege(orte[static_cast<std::size_t>(von)], orte[static_cast<std::size_t>(i)], richtung);
        if (weg.voran <= 0 || weg.beiseite > weg.voran) continue;
        const double entfernung = std::hypot(weg.voran, weg.beiseite);
        if (gefunden != von && entfernung >= weite) continue;
        gefunden = i;
        weite = entfernung;
    }
    return gefunden;
}

}  // namespace

void Kartenweg::beginne() {
    const int ende = static_cast<int>(karte_.orte().size()) - 1;
    deute(std::clamp(karte_.gewaehlt(), std::min(0, ende), ende));
}

void Kartenweg::gehe(Richtung richtung) {
    const std::vector<Kartenpunkt> orte = karte_.orte();
    const int ende = static_cast<int>(orte.size()) - 1;
    if (stelle_ < 0) return;
    switch (richtung) {
        case Richtung::vor:
            return deute(std::min(stelle_ + 1, ende));
        case Richtung::zurueck:
            return deute(std::max(stelle_ - 1, 0));
        case Richtung::anfang:
            return deute(0);
        case Richtung::ende:
            return deute(ende);
        default:
            deute(naechster(orte, stelle_, richtung));
    }
}

void Kartenweg::nimm() const {
    if (stelle_ >= 0) karte_.waehlen(stelle_);
}

void Kartenweg::beende() {
    deute(-1);
}

std::optional<Kartenpunkt> Kartenweg::ort() const {
    if (stelle_ < 0) return std::nullopt;
    return karte_.orte()[static_cast<std::size_t>(stelle_)];
}

std::string Kartenweg::name() const {
    return stelle_ < 0 ? std::string() : karte_.name(stelle_);
}

void Kartenweg::deute(int stelle) {
    stelle_ = stelle;
    karte_.zeigen(stelle);
}

}  // namespace velmaris
