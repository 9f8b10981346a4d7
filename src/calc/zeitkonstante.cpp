#include "calc/zeitkonstante.h"

#include "calc/waermestroeme.h"
#include "toolkit/fehler.h"
#include "toolkit/zahlen.h"

#include <cmath>

namespace velmaris {
namespace {

constexpr double luftkapazitaet = 1290;  // J/(m3 K)

/// Surface of the inner walls: the walls of all whole rooms less the four sides of the house, m2. Negative
/// for a small building.
double innenwandflaeche(const Projekt& p) {
    const double l = p.l;
    const double b = p.b;
    return ganzzahl(p.f_nutz / 10.0) * 4 * std::sqrt(10.0) * 2.6 - (l + l) * p.h - (b + b) * p.h;
}

/// Heat capacity of walls, ceilings and floors, J/K; rounded to 32 bits after each step.
float baukapazitaet(const Projekt& p) {
    const double ca = waermekapazitaet(p.Aussenwandart, 0);
    const double ci = waermekapazitaet(p.Innenwandart, ca);
    const double l = p.l;
    const double b = p.b;
    const double ag = p.ag;
    float c = f32(p.f_wand * ca);
    c = f32(c + innenwandflaeche(p) * ci);
    c = f32(c + (ag + ag) * p.f_gd * ci);
    c = f32(c + i16(1 - p.awn, "awn") * l * p.h * ci);
    c = f32(c + i16(1 - p.aws, "aws") * l * p.h * ci);
    c = f32(c + i16(1 - p.awo, "awo") * b * p.h * ci);
    return f32(c + i16(1 - p.aww, "aww") * b * p.h * ci);
}

[[noreturn]] void zu_kleines_inneres(const Projekt& p) {
    const std::string nutz = muster(p.f_nutz, 1);
    throw Laufzeitfehler(
        {"Die Wärmekapazität des Gebäudes ist negativ: Bei einer Nutzfläche von " + nutz +
             " m² ist das Innere zu klein für seine Außenwände. Bitte Länge, Breite, Höhe und Geschosszahl "
             "prüfen.",
         "The heat capacity of the building is negative: with a usable floor of " + nutz +
             " m² the interior is too small for its outer walls. Please check length, width, height and "
             "number of floors."});
}

[[noreturn]] void ohne_waermeverlust() {
    throw Laufzeitfehler(
        {"Das Gebäude verliert keine Wärme: Transmissions- und Lüftungsverluste ergeben zusammen 0. Bitte "
         "U-Werte und Luftwechsel prüfen.",
         "The building loses no heat: transmission and ventilation losses add up to 0. Please check the U "
         "values and the air change."});
}

}  // namespace

double waermekapazitaet(int zeile, double sonst) {
    switch (zeile) {
        case 0:
            return 105000;
        case 1:
            return 65000;
        case 2:
            return 25000;
        default:
            return sonst;
    }
}

void zeitkonstante_berechnen(Projekt& p) {
    const float c = baukapazitaet(p);
    const double ht = einfacher_huellverlust(p);
    const float hv = f32(lueftungskoeffizient(p));
    p.Cwirk = f32(p.v_luft * luftkapazitaet + c);
    if (p.Cwirk < 0) zu_kleines_inneres(p);
    if (ht + hv == 0) ohne_waermeverlust();
    p.tau = f32(p.Cwirk / (ht + hv));
}

double kapazitaet_je_volumen(const Projekt& p) {
    return static_cast<double>(p.Cwirk) / p.v_geb / 3600;
}

}  // namespace velmaris
