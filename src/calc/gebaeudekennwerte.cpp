#include "calc/gebaeudekennwerte.h"

#include "calc/fassaden.h"
#include "calc/waermestroeme.h"

namespace velmaris {
namespace {

/// Area of the envelope that `einfacher_huellverlust` counts, m2.
double einfache_huellflaeche(const Projekt& p) {
    double summe = p.ft;
    for (const Fassade& f : fassaden(p))
        summe += f.f_wand + f.f_fenster;
    return summe + p.f_gd + p.f_gd;
}

}  // namespace

Gebaeudekennwerte gebaeudekennwerte(const Projekt& p) {
    const double luft = lueftungskoeffizient(p);
    const double huelle = einfacher_huellverlust(p);
    return {.tau = p.tau / 3600.0,
            .Vspez = luft,
            .Tspez = wandverlust(p) + fensterverlust(p) + tuerverlust(p) + dachflaeche(p) * k_dach(p) +
                     k_boden(p) * p.f_gd,
            .Umittel = huelle / einfache_huellflaeche(p),
            .TVspez = huelle + luft};
}

}  // namespace velmaris
