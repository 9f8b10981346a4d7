#pragma once

#include "project/c_glob.h"

#include <string>

namespace velmaris {

/// Specific heat capacity of a construction, J/(m2 K): row 0 heavy, 1 medium, 2 light; `sonst` for
/// any other row.
[[nodiscard]] double waermekapazitaet(int zeile, double sonst);

/// Reduces the building to its effective heat capacity `Cwirk` (J/K) and its time constant `tau` (s) from the
/// areas of the record. The interior is imagined as square rooms of 10 m2, 2.6 m high.
/// Laufzeitfehler if the capacity comes out negative (an interior too small for its outer walls) or if the
/// building loses no heat at all.
void zeitkonstante_berechnen(Projekt& p);

/// What the building plane shows of the capacity, by the names of its display fields.
struct SpeicherTexte {
    std::string Cwirk_anz;  ///< per volume, Wh/(m3 K)
    std::string cges_anz;   ///< of the whole building, kWh/K
};

[[nodiscard]] SpeicherTexte speicher_texte(const Projekt& p);

/// A shape of the frame `Traegheit`, in the plane's units of 15 to the pixel; y grows downward.
struct Gewicht {
    double hoehe = 0;
    double oben = 0;
};

/// The stacked weight on its base line at 1500; the second stands on the first with an overlap of 10.
struct Gewichte {
    Gewicht Gewicht1;
    Gewicht Gewicht2;
};

/// The weight for the record's capacity per volume; its heights have no upper limit.
[[nodiscard]] Gewichte gewichte(const Projekt& p);

}  // namespace velmaris
