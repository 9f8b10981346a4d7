#pragma once

#include "project/c_glob.h"
#include "project/wandseite.h"

namespace velmaris {

/// One facade of the record as the formulas read it, in double. Areas in m2, U values in W/(m2 K).
struct Fassade {
    double k_wand = 0;     ///< U value of the wall with the surcharge for heat bridges
    double f_wand = 0;     ///< net wall, without the gable
    double f_giebel = 0;   ///< gable above it
    double k_fenster = 0;  ///< U value of the whole window; windows carry no surcharge
    double f_fenster = 0;
    double rahmen = 0;        ///< frame share, 0..1
    double g = 0;             ///< g value of the glazing
    double verschattung = 0;  ///< 0 = none

    [[nodiscard]] double f_glas() const { return (1 - rahmen) * f_fenster; }
    /// Area that would let in as much sun if it had neither glass, frame nor shading, m2.
    [[nodiscard]] double sonnenflaeche() const { return f_glas() * (1 - verschattung) * g; }
};

/// The four facades of the record.
[[nodiscard]] JeWandseite<Fassade> fassaden(const Projekt& p);

}  // namespace velmaris
