#include "climate/stationsabbild.h"

#include "climate/klimadatei.h"

#include <memory>

namespace velmaris {

Stationsabbild::Stationsabbild(const std::filesystem::path& programmordner,
                               const std::filesystem::path& datenordner, const std::string& klimadatei) {
    const auto p = std::make_unique<Projekt>();
    p->AppPfad = programmordner;
    p->Datenordner = datenordner;
    p->Klimadatei = klimadatei;
    warnung_ = klimadatei_lesen(*p);
    Stationsname = p->Stationsname;
    Breite = p->Breite;
    Laengenkorrektur = p->Laengenkorrektur;
    Wetter = p->Wetter;
    Dachraum = p->Dachraum;
    for (int m = 1; m <= monate; ++m)
        Tage(m) = p->Monat(m).Tage;
    sonne = p->Strahlung.sonne;
    werte = p->Strahlung.werte;
}

void Stationsabbild::einsetzen(Projekt& p) const {
    p.Stationsname = Stationsname;
    p.Breite = Breite;
    p.Laengenkorrektur = Laengenkorrektur;
    p.Wetter = Wetter;
    p.Dachraum = Dachraum;
    for (int m = 1; m <= monate; ++m)
        p.Monat(m).Tage = Tage(m);
    ++p.Strahlung.station;
    p.Strahlung.sonne = sonne;
    p.Strahlung.werte = werte;
}

}  // namespace velmaris
