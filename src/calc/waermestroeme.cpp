#include "calc/waermestroeme.h"

#include "calc/fassaden.h"
#include "toolkit/fehler.h"

#include <string>

namespace velmaris {

double luftwechsel(const Projekt& p) {
    return (1 - static_cast<double>(p.WRG)) * p.lw + p.infiltration;
}

double lueftungskoeffizient(const Projekt& p) {
    return luftwechsel(p) / 3600 * 1000 * 1.29 * p.v_luft;
}

double fassadenverlust(const Projekt& p) {
    double summe = 0;
    for (const Fassade& f : fassaden(p))
        summe += f.k_wand * f.f_wand;
    return summe + fensterverlust(p) + tuerverlust(p);
}

double wandverlust(const Projekt& p) {
    double summe = 0;
    for (const Fassade& f : fassaden(p))
        summe += f.k_wand * (f.f_giebel + f.f_wand);
    return summe;
}

double fensterverlust(const Projekt& p) {
    double summe = 0;
    for (const Fassade& f : fassaden(p))
        summe += f.k_fenster * f.f_fenster;
    return summe;
}

double tuerverlust(const Projekt& p) {
    return static_cast<double>(p.kt) * p.ft;
}

double k_dach(const Projekt& p) {
    return static_cast<double>(p.kd) + p.Waermebruecken;
}

double k_boden(const Projekt& p) {
    return static_cast<double>(p.kk) + p.Waermebruecken;
}

double dachflaeche(const Projekt& p) {
    return static_cast<double>(p.f_dach_n) + p.f_dach_flach + p.f_dach_s + p.f_dach_o + p.f_dach_w;
}

double dachraumfaktor(const Projekt& p) {
    const int zeile = p.Check_Dachgeschoss != 0 ? 0 : p.Dachraum_typ;
    if (zeile < 0 || zeile > 3) {
        const std::string nummer = std::to_string(zeile);
        throw Laufzeitfehler({"Die Art des Dachraums (" + nummer + ") gibt es nicht.",
                              "There is no kind of roof space with the number " + nummer + "."},
                             "Dachraum_typ");
    }
    return p.Dachraum(zeile).Faktor;
}

double einfacher_huellverlust(const Projekt& p) {
    return fassadenverlust(p) + (k_dach(p) + k_boden(p)) * p.f_gd;
}

double innere_leistung(const Projekt& p) {
    return static_cast<double>(p.f_nutz) * p.intg * 1000 / 8760;
}

}  // namespace velmaris
