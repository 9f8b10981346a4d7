#include "climate/planes/A_Klima.h"

#include "calc/gebaeudekennwerte.h"
#include "calc/waermestroeme.h"
#include "climate/jahreswerte.h"
#include "climate/regionen.h"
#include "toolkit/fehler.h"
#include "toolkit/zahlen.h"

#include <array>

namespace velmaris {
namespace {

constexpr int bereich_deutschland = 1;
constexpr double heizgrenze_der_gradtage = 12;
constexpr double raum_der_gradtage = 20;

/// Share of the roof's losses by `Dachraum_typ`. The simulation has its own table, with 0.5 in row 2.
double dachfaktor(int Dachraum_typ) {
    constexpr std::array<double, 3> faktoren{1, 0.8, 0.6};
    const bool vorhanden = Dachraum_typ >= 0 && Dachraum_typ < static_cast<int>(faktoren.size());
    return vorhanden ? faktoren[static_cast<std::size_t>(Dachraum_typ)] : 0;
}

/// Losses of the envelope with the reductions of roof space and floor, W/K.
double huellverlust(const Projekt& p) {
    return fassadenverlust(p) + dachfaktor(p.Dachraum_typ) * (k_dach(p) * p.f_gd) +
           k_boden(p) * p.f_gd * p.Fx_ugd;
}

std::string klimaname(const Projekt& p) {
    if (p.Klimaauswahl != bereich_deutschland) return p.Stationsname;
    const int region = region_der_station(p);
    return "Region " + (region > 0 ? std::string(klimaregion(region).text) : p.Stationsname);
}

[[noreturn]] void ohne_waermeverlust() {
    throw Laufzeitfehler(
        {"Es gibt keine Heizgrenztemperatur, denn das Gebäude verliert keine Wärme: Die Verluste durch "
         "Wände, "
         "Fenster, Tür, Dach, Boden und Lüftung ergeben zusammen 0. Bitte U-Werte, Luftwechsel und die Räume "
         "über und unter dem Gebäude prüfen.",
         "There is no heating limit temperature, since the building loses no heat: the losses through walls, "
         "windows, door, roof, floor and ventilation add up to 0. Please check the U values, the air change "
         "and the rooms above and below the building."});
}

}  // namespace

Heizgrenze heizgrenze(const Projekt& p) {
    const double verlust = lueftungskoeffizient(p) + huellverlust(p);
    if (verlust == 0) ohne_waermeverlust();
    Heizgrenze grenze;
    grenze.Temperatur = p.Troom - innere_leistung(p) / verlust;
    for (const double mittel : p.Strahlung.werte.Tagesmittel) {
        if (mittel < grenze.Temperatur) ++grenze.Heiztage;
        if (mittel < heizgrenze_der_gradtage) grenze.Heizgradtage += raum_der_gradtage - mittel;
    }
    return grenze;
}

void A_Klima::stationswerte_zeigen(const Projekt& p) {
    const Jahreswerte jahr = jahreswerte(p);
    const Monatswerte& warm = p.Monat(jahr.waermster_monat);
    const Monatswerte& kalt = p.Monat(jahr.kaeltester_monat);
    anz_klimaregion.schreibe(klimaname(p));
    anz_MaxMonatName.schreibe(warm.Name);
    anz_MaxMonatTemp.schreibe(muster(warm.Tmittel, 1));
    anz_MinMonatName.schreibe(kalt.Name);
    anz_MinMonatTemp.schreibe(muster(kalt.Tmittel, 1));
    anz_MittelJahrTemp.schreibe(muster(jahr.mittel, 1));
    anz_MaxJahrTemp.schreibe(muster(jahr.Ta_max, 1));
    anz_MinJahrTemp.schreibe(muster(jahr.Ta_min, 1));
}

void A_Klima::kennwerte_zeigen(const Projekt& p) {
    const Gebaeudekennwerte werte = gebaeudekennwerte(p);
    anz_tau.schreibe(muster(werte.tau, 1));
    anz_Vspez.schreibe(muster(werte.Vspez, 1));
    anz_Tspez.schreibe(muster(werte.Tspez, 1));
    anz_Umittel.schreibe(muster(werte.Umittel, 2));
    anz_TVspez.schreibe(muster(werte.TVspez, 1));
}

void A_Klima::Ausfuellen(const Projekt& p) {
    const double heizlast = p.Heizlast_max;
    const double kuehllast = p.Kuehllast_max;
    anz_Heizlast.schreibe(muster(heizlast, 1));
    anz_heizlast_spez.schreibe(muster(heizlast * 1000 / p.f_nutz, 1));
    anz_kuehllast.schreibe(muster(kuehllast, 1));
    anz_kuehllast_spez.schreibe(muster(kuehllast * 1000 / p.f_nutz, 1));
    heizgrenztemperatur(p);
}

void A_Klima::heizgrenztemperatur(const Projekt& p) {
    const Heizgrenze grenze = heizgrenze(p);
    anz_Heizgrenztemp.schreibe(muster(grenze.Temperatur, 1));
    anz_Heiztage.schreibe(std::to_string(grenze.Heiztage));
    anz_Heizgradtage.schreibe(muster(grenze.Heizgradtage, 0));
}

std::array<const Anzeige*, 20> A_Klima::anzeigen() const {
    return {
        &anz_klimaregion,    &anz_MaxMonatName,   &anz_MinMonatName,  &anz_MaxMonatTemp, &anz_MinMonatTemp,
        &anz_MittelJahrTemp, &anz_MaxJahrTemp,    &anz_MinJahrTemp,   &anz_tau,          &anz_Vspez,
        &anz_Tspez,          &anz_Umittel,        &anz_TVspez,        &anz_Heizlast,     &anz_heizlast_spez,
        &anz_kuehllast,      &anz_kuehllast_spez, &anz_Heizgrenztemp, &anz_Heiztage,     &anz_Heizgradtage};
}

}  // namespace velmaris
