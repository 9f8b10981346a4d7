#include "calc/hausmodell.h"

#include "calc/fassaden.h"
#include "calc/waermestroeme.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace velmaris {
namespace {

constexpr double aeusserer_uebergang = 20;  // W/(m2 K)
constexpr double sekunden = 3600;

/// Share of the diffuse radiation on a sloped roof plane. The model takes the cosine of the pitch in degrees
/// as if they were radians; this stands.
double dach_himmel(const Projekt& p) {
    const double k = std::cos(static_cast<double>(p.Dachneigung)) / 2 + 1;
    return k * 0.75 + 0.25;
}

void seite_dazu(Hausmodell& haus, const Sonnenseite& seite) {
    if (seite.huelle == 0 && seite.fenster == 0) return;
    haus.seiten[haus.anzahl++] = seite;
}

/// The west wall loses by the sun what the others gain; this stands.
void waende_dazu(Hausmodell& haus, const Projekt& p, double aufnahme) {
    const JeWandseite<Fassade> f = fassaden(p);
    const auto wand = [&](Wandseite i, const Ebenentabelle& ebene, double vorzeichen) {
        const double huelle = vorzeichen * aufnahme * f[i].k_wand * (f[i].f_giebel + f[i].f_wand);
        seite_dazu(haus, {Umgebung::wand, &ebene.faktor, huelle, f[i].sonnenflaeche()});
    };
    using enum Wandseite;
    wand(nord, p.Strahlung.wand_n, 1);
    wand(sued, p.Strahlung.wand_s, 1);
    wand(ost, p.Strahlung.wand_o, 1);
    wand(west, p.Strahlung.wand_w, -1);
}

void dach_dazu(Hausmodell& haus, const Projekt& p, double aufnahme) {
    const auto flaeche = [&](Umgebung umgebung, const Ebenentabelle& ebene, double groesse) {
        if (groesse > 0) seite_dazu(haus, {umgebung, &ebene.faktor, aufnahme * k_dach(p) * groesse, 0});
    };
    flaeche(Umgebung::schraegdach, p.Strahlung.dach_n, p.f_dach_n);
    flaeche(Umgebung::schraegdach, p.Strahlung.dach_s, p.f_dach_s);
    flaeche(Umgebung::schraegdach, p.Strahlung.dach_o, p.f_dach_o);
    flaeche(Umgebung::schraegdach, p.Strahlung.dach_w, p.f_dach_w);
    flaeche(Umgebung::flachdach, p.Strahlung.dach_flach, p.f_dach_flach * dachraumfaktor(p));
}

double transmission(const Projekt& p) {
    const double dach = static_cast<double>(p.f_dach_flach) * dachraumfaktor(p) + p.f_dach_n + p.f_dach_s +
                        p.f_dach_o + p.f_dach_w;
    return k_dach(p) * dach + wandverlust(p) + tuerverlust(p) + fensterverlust(p) +
           k_boden(p) * p.f_gd * p.Fx_ugd;
}

/// Radiation of a day as the planes see it, W/m2.
struct Tageslicht {
    Tagesgang::Stunden direkt;       ///< at normal incidence
    Tagesgang::Stunden wand;         ///< from sky and ground on a wall
    Tagesgang::Stunden schraegdach;  ///< from sky and ground on a sloped roof plane
    Tagesgang::Stunden flachdach;    ///< from the sky on the flat roof
    std::size_t morgen = stunden;    ///< first place with light
    std::size_t abend = 0;           ///< one past the last place with light

    [[nodiscard]] const Tagesgang::Stunden& um(Umgebung umgebung) const {
        if (umgebung == Umgebung::wand) return wand;
        return umgebung == Umgebung::schraegdach ? schraegdach : flachdach;
    }
};

/// A wall gets half of the sky, and the ground with albedo 0.25; both are lowered against the month balance.
/// Keep the order of the operations: many results lie in the middle between two 32-bit numbers.
Tageslicht tageslicht(std::span<const Wetterstunde, stunden> wetter, double dach_himmel) {
    Tageslicht licht{};
    for (std::size_t h = 0; h < stunden; ++h) {
        const double diffus = wetter[h].Diffus;
        const double direkt = wetter[h].Direkt;
        licht.direkt[h] = direkt;
        licht.wand[h] = (diffus * 0.5 + (diffus + direkt) * 0.125) * 0.7;
        licht.schraegdach[h] = diffus * dach_himmel;
        licht.flachdach[h] = diffus;
        if (diffus == 0 && direkt == 0) continue;
        licht.morgen = std::min(licht.morgen, h);
        licht.abend = h + 1;
    }
    return licht;
}

void sonne_dazu(Tagesgang& tag, const Sonnenseite& seite, const Tageslicht& licht,
                std::span<const float, stunden> faktor) {
    const Tagesgang::Stunden& umgebung = licht.um(seite.umgebung);
    for (std::size_t h = licht.morgen; h < licht.abend; ++h) {
        const double strahlung = f32(umgebung[h] + faktor[h] * licht.direkt[h]);
        tag.huelle[h] += seite.huelle * strahlung;
        tag.fenster[h] += seite.fenster * strahlung;
    }
}

}  // namespace

Hausmodell hausmodell(const Projekt& p) {
    Hausmodell haus;
    haus.transmission = transmission(p);
    haus.lueftung = lueftungskoeffizient(p);
    haus.innen = innere_leistung(p);
    haus.dach_himmel = dach_himmel(p);
    haus.rest = std::exp(-sekunden / p.tau);
    haus.antrieb = p.tau / static_cast<double>(p.Cwirk) * (1 - haus.rest);
    const double aufnahme = p.absfaktor / aeusserer_uebergang;
    waende_dazu(haus, p, aufnahme);
    dach_dazu(haus, p, aufnahme * p.cbk_hDach);
    return haus;
}

Tagesgang tagesgang(const Projekt& p, const Hausmodell& haus, int m, int d) {
    Tagesgang tag{};
    const std::span<const Wetterstunde, stunden> wetter = p.Wetter.tag(m, d);
    const Tageslicht licht = tageslicht(wetter, haus.dach_himmel);
    for (std::size_t i = 0; i < haus.anzahl; ++i)
        sonne_dazu(tag, haus.seiten[i], licht, haus.seiten[i].faktor->tag(m, d));
    for (std::size_t h = 0; h < stunden; ++h) {
        tag.Ta[h] = wetter[h].Ta;
        tag.leistung[h] =
            (haus.transmission + haus.lueftung) * tag.Ta[h] + tag.huelle[h] + tag.fenster[h] + haus.innen;
    }
    return tag;
}

}  // namespace velmaris
