#include "calc/stundensimulation.h"

#include "calc/hausmodell.h"
#include "calc/summe.h"
#include "calc/zeitkonstante.h"
#include "climate/strahlung.h"
#include "toolkit/fehler.h"
#include "toolkit/zahlen.h"

#include <algorithm>

namespace velmaris {
namespace {

constexpr double joule_je_kwh = 3600000;

/// The indoor temperatures on their way through the year, degC.
struct Raumtemperaturen {
    double frei;   ///< without plant
    double regel;  ///< with heating and cooling
};

/// What one hour of the day is driven by.
struct Stundenlage {
    double Ta;       ///< degC
    double huelle;   ///< sun on the opaque envelope, W
    double fenster;  ///< sun through the windows, W
};

void monat_leeren(Monatswerte& monat) {
    monat.Kuehlbedarf = monat.Kuehlgradstunden = 0;
    monat.Stunden_kalt = monat.Stunden_heiss = monat.Stunden_komfort = 0;
    monat.Kuehl_solar = monat.Kuehl_intern = monat.Kuehl_trans = monat.Kuehl_lueft = 0;
}

/// Lifts the controlled temperature to the set point; the energy of the hour, kWh.
float heizen(Projekt& p, double& regel) {
    if (!(f32(regel) < p.Troom)) return 0;
    const float q = f32((p.Troom - regel) * p.Cwirk / joule_je_kwh);
    p.Heizlast_max = std::max(p.Heizlast_max, q);
    regel = p.Troom;
    return q;
}

/// Shares a cooling energy out over its causes, which are taken against the room before it is cooled.
void kuehlung_aufteilen(Monatswerte& monat, const Hausmodell& haus, const Stundenlage& lage, double regel,
                        double qk) {
    const double gefaelle = lage.Ta - regel;
    const double trans = std::max(0.0, haus.transmission * gefaelle + lage.huelle);
    const double lueft = std::max(0.0, haus.lueftung * gefaelle);
    const double summe = lage.fenster + haus.innen + trans + lueft;
    if (summe == 0) {
        throw Laufzeitfehler(
            {"Das Gebäude wird wärmer als die Überwärmungsgrenze, obwohl es keinerlei Gewinne hat; sein "
             "Kühlbedarf lässt sich keiner Ursache zuordnen. Die Überwärmungsgrenze oder die internen "
             "Gewinne sind zu niedrig.",
             "The building gets warmer than the overheating limit although it has no gains of any kind, so "
             "that its cooling demand has no cause. The overheating limit or the internal gains are too "
             "low."});
    }
    dazu(monat.Kuehl_intern, qk * haus.innen / summe);
    dazu(monat.Kuehl_solar, qk * lage.fenster / summe);
    dazu(monat.Kuehl_trans, qk * trans / summe);
    dazu(monat.Kuehl_lueft, qk * lueft / summe);
    dazu(monat.Kuehlbedarf, qk);
}

/// Lowers the controlled temperature to the overheating limit; the energy of the hour, kWh.
float kuehlen(Projekt& p, Monatswerte& monat, const Hausmodell& haus, const Stundenlage& lage,
              double& regel) {
    if (!(f32(regel) > p.Tueber)) return 0;
    const double qk = (regel - p.Tueber) * p.Cwirk / joule_je_kwh;
    kuehlung_aufteilen(monat, haus, lage, regel, qk);
    p.Kuehllast_max = std::max(p.Kuehllast_max, f32(qk));
    regel = p.Tueber;
    return f32(qk);
}

/// Counts the hour into its temperature band; above the limit also its degree hours.
void band_zaehlen(const Projekt& p, Monatswerte& monat, double frei) {
    const float t = f32(frei);
    if (t > p.Tueber) {
        dazu(monat.Kuehlgradstunden, frei - p.Tueber);
        ++monat.Stunden_heiss;
    } else if (t >= p.Troom) {
        ++monat.Stunden_komfort;
    } else {
        ++monat.Stunden_kalt;
    }
}

void tag_simulieren(Projekt& p, const Hausmodell& haus, int m, int d, Raumtemperaturen& t) {
    const Tagesgang tag = tagesgang(p, haus, m, d);
    Monatswerte& monat = p.Monat(m);
    const auto T_frei = p.T_frei.tag(m, d);
    const auto T_regel = p.T_regel.tag(m, d);
    const auto Q_heiz = p.Q_heiz.tag(m, d);
    const auto Q_kuehl = p.Q_kuehl.tag(m, d);
    for (std::size_t h = 0; h < stunden; ++h) {
        const double stoss = haus.antrieb * tag.leistung[h];
        t.frei = stoss + haus.rest * t.frei;
        t.regel = stoss + haus.rest * t.regel;
        // Both plants look at the same temperature: a limit below the set point runs both in one hour.
        Q_heiz[h] = heizen(p, t.regel);
        Q_kuehl[h] = kuehlen(p, monat, haus, {tag.Ta[h], tag.huelle[h], tag.fenster[h]}, t.regel);
        T_frei[h] = f32(t.frei);
        T_regel[h] = f32(t.regel);
        band_zaehlen(p, monat, t.frei);
    }
}

void monat_simulieren(Projekt& p, const Hausmodell& haus, int m, Raumtemperaturen& t) {
    monat_leeren(p.Monat(m));
    for (int d = 1; d <= tage_im_monat[static_cast<std::size_t>(m)]; ++d)
        tag_simulieren(p, haus, m, d, t);
}

}  // namespace

void stundensimulation(Projekt& p) {
    zeitkonstante_berechnen(p);
    ebenen_bereitstellen(p);
    p.Heizlast_max = p.Kuehllast_max = 0;
    const Hausmodell haus = hausmodell(p);
    Raumtemperaturen t{p.Troom, p.Troom};
    monat_simulieren(p, haus, monate, t);  // warm-up
    for (int m = 1; m <= monate; ++m)
        monat_simulieren(p, haus, m, t);
}

}  // namespace velmaris
