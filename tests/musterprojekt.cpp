#include "tests/musterprojekt.h"

#include "climate/dachraum.h"
#include "climate/sonne.h"
#include "climate/strahlung.h"
#include "planes/neues_projekt.h"
#include "toolkit/zahlen.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace velmaris::test {
namespace {

constexpr double zwei_pi = 6.283185307179586;

/// Share of the sky that is clear on day n, 0..1.
double klarheit(int n) {
    constexpr std::array<double, 11> reihe{0.9, 0.2, 0.0, 0.6, 1.0, 0.4, 0.1, 0.8, 0.7, 0.3, 0.5};
    return reihe[static_cast<std::size_t>(n) % reihe.size()];
}

double lufttemperatur(double breite, int n, int h) {
    const double jahresmittel = 27 - 0.36 * std::fabs(breite);
    const double jahresgang = -0.2 * breite * std::cos(zwei_pi * (n - 20) / tage_im_jahr);
    const double tagesgang = -(2 + 3 * klarheit(n)) * std::cos(zwei_pi * (h - 3) / stunden);
    return jahresmittel + jahresgang + tagesgang + 2 * (klarheit(n + 3) - 0.5);
}

Wetterstunde wetterstunde(const Standort& ort, double breite, int n, int h) {
    Wetterstunde w;
    w.Ta = f32(lufttemperatur(breite, n, h));
    const double luftmasse = direktfaktor_horizontal(ort, n, h - 0.5);
    if (luftmasse == 0) return w;
    w.Direkt = f32(950 * std::exp(-0.15 * luftmasse) * klarheit(n));
    w.Diffus = f32((60 + 180 * (1 - klarheit(n))) / std::sqrt(luftmasse));
    return w;
}

void station_fertigstellen(Projekt& p) {
    for (int m = 1; m <= monate; ++m)
        p.Monat(m).Tage = i16(tage_im_monat[static_cast<std::size_t>(m)], "Tage");
    dachraum_fuellen(p);
    station_uebernehmen(p);
    monatsstrahlung_berechnen(p);
}

}  // namespace

const std::vector<Musterort>& musterorte() {
    static const std::vector<Musterort> orte{{"temperate", 49.75, 8.37}, {"coast", 53.6, -2.5},
                                             {"polar", 78.2, -0.6},      {"subtropics", 30.1, 1.4},
                                             {"equator", 0.0, 0.0},      {"south", -33.9, -3.8}};
    return orte;
}

std::unique_ptr<Projekt> musterprojekt(const Musterort& ort) {
    auto p = std::make_unique<Projekt>();
    neue_eingaben(*p);
    p->Aussenwandart = p->Innenwandart = 1;
    p->Sprache = "d";
    p->Breite = f32(ort.breite * grad_in_bogen);
    p->Laengenkorrektur = f32(ort.laengenkorrektur);
    const Standort standort{p->Breite, p->Laengenkorrektur};
    fuer_jede_stunde(
        [&](int m, int d, int h, int n) { p->Wetter(m, d, h) = wetterstunde(standort, ort.breite, n, h); });
    station_fertigstellen(*p);
    return p;
}

void gleiches_wetter(Projekt& p, const Wetterstunde& wetter) {
    fuer_jede_stunde([&](int m, int d, int h, int) { p.Wetter(m, d, h) = wetter; });
    station_fertigstellen(p);
}

const std::vector<Musterhaus>& musterhaeuser() {
    static const std::vector<Musterhaus> haeuser{
        {"new project", [](Projekt&) {}},
        {"glass house",
         [](Projekt& p) {
             p.fs = p.fw = p.fo = 90;
             p.verschs = p.verschw = p.verscho = 0;
             p.Aussenwandart = p.Innenwandart = 2;
             p.orient = -35;
         }},
        {"ridge north-south",
         [](Projekt& p) {
             p.Check_Dachgeschoss = p.Option_Dachfirst = 1;
             p.hd = 3.5F;
             p.ft = 2.2F;
             p.Dachraum_typ = 2;
         }},
        {"ridge east-west",
         [](Projekt& p) {
             p.Check_Dachgeschoss = 1;
             p.Option_Dachfirst = 2;
             p.l = 14;
             p.orient = 30;
             p.absfaktor = 0.9F;
         }},
        {"terraced house",
         [](Projekt& p) {
             p.awo = p.aww = 0;
             p.l = 6;
             p.ag = 3;
             p.h = 8;
             p.Aussenwandart = p.Innenwandart = 0;
             p.lw = 0.4F;
             p.WRG = 0.8F;
             p.infiltration = 0.1F;
             p.ugd_typ = 3;
             p.Dachraum_typ = 1;
             p.cbk_hDach = 0;
         }},
        {"limit below set point",
         [](Projekt& p) {
             p.Tueber = 19;
             p.Troom = 21;
             p.kwn = p.kws = p.kwo = p.kww = 1.4F;
             p.ugd_typ = 4;
         }},
    };
    return haeuser;
}

}  // namespace velmaris::test
