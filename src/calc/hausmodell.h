#pragma once

#include "project/c_glob.h"

#include <array>
#include <cstddef>

namespace velmaris {

/// What a plane gets of the sky and the ground besides the direct light.
enum class Umgebung { wand, schraegdach, flachdach };

/// A plane under the sun: how the radiation on it (W/m2) becomes power in the house.
struct Sonnenseite {
    Umgebung umgebung = Umgebung::wand;
    const Stundentabelle<float>* faktor = nullptr;  ///< incidence factors, kept in the record
    double huelle = 0;                              ///< what its opaque part lets in, W per W/m2
    double fenster = 0;                             ///< what its windows let in, W per W/m2
};

/// The house of the hourly simulation with all that depends on the inputs folded into coefficients. It refers
/// to the incidence factors of the record it was made from, which must outlive it unchanged.
///
/// The driving power of an hour: P = (HT + HV) Ta + sum U A s I + sum AW I (1 - fS) (1 - fF) g + Pi
/// P power and Pi internal gains, W; HT transmission, HV ventilation, W/K; Ta outdoor air, degC; U with its
/// surcharge for heat bridges, W/(m2 K); A opaque area, flat ceilings times the roof space factor, AW
/// windows, m2; I radiation on the plane, W/m2; s = `absfaktor` / 20, m2 K/W; fS shading, fF frame share, g
/// value, 0..1. Source: U A s I is the sol-air temperature of the ASHRAE Handbook, Fundamentals, without its
/// long-wave term; the sign of the west wall and the shares of the sky are this model's own.
struct Hausmodell {
    double transmission = 0;            ///< W/K
    double lueftung = 0;                ///< W/K
    double innen = 0;                   ///< internal gains, W
    double antrieb = 0;                 ///< rise of the temperature in an hour per power, K/W
    double rest = 0;                    ///< share of its temperature that the house keeps over an hour
    double dach_himmel = 0;             ///< share of the diffuse radiation that a sloped roof plane gets
    std::array<Sonnenseite, 9> seiten;  ///< the first `anzahl` are in use
    std::size_t anzahl = 0;
};

/// Needs areas, `tau`, `Cwirk` and valid incidence factors.
[[nodiscard]] Hausmodell hausmodell(const Projekt& p);

/// Hours 1..24 of a day at the places 0..23, W; `Ta` in degC.
struct Tagesgang {
    using Stunden = std::array<double, stunden>;
    Stunden Ta;
    Stunden huelle;    ///< sun on the opaque envelope
    Stunden fenster;   ///< sun through the windows
    Stunden leistung;  ///< all that drives the temperature
};

[[nodiscard]] Tagesgang tagesgang(const Projekt& p, const Hausmodell& haus, int m, int d);

}  // namespace velmaris
