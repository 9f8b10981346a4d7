#include "calc/heizgrenze.h"

#include "calc/waermestroeme.h"
#include "toolkit/fehler.h"

#include <array>

namespace velmaris {
namespace {

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

[[noreturn]] void ohne_waermeverlust() {
    throw Laufzeitfehler(
        {"Es gibt keine Heizgrenztemperatur, denn das Gebäude verliert keine Wärme: Die Verluste durch "
         "Wände, Fenster, Tür, Dach, Boden und Lüftung ergeben zusammen 0. Bitte U-Werte, Luftwechsel und "
         "die Räume über und unter dem Gebäude prüfen.",
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

}  // namespace velmaris
