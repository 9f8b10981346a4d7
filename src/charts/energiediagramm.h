#pragma once

#include "energy/energiebilanz.h"
#include "toolkit/wertetafel.h"
#include "toolkit/zeichenflaeche.h"

#include <vector>

namespace velmaris {

/// A filled part of a column of the monthly chart, corners in pixels of the surface.
struct Saeule {
    double x1 = 0;
    double unten = 0;
    double x2 = 0;
    double oben = 0;
    Farbe farbe;
};

/// All parts of the columns in the order in which they are drawn: end energy and primary energy
/// of each month, the auxiliary electricity on top of the carrier.
[[nodiscard]] std::vector<Saeule> saeulen(const Monatsenergie& werte);

/// True if a pixel of the monthly chart belongs to a column.
[[nodiscard]] bool auf_saeule(const Monatsenergie& werte, double x, double y);

/// Draws end and primary energy by month on the surface `Monatsübersicht_Energieträger`.
void Monatsverbrauch_zeichnen(Zeichenflaeche& bild, const Projekt& p);

/// Its numbers; with an electric carrier there is no auxiliary electricity.
[[nodiscard]] Wertetafel Monatsverbrauch_werte(const Projekt& p);

}  // namespace velmaris
