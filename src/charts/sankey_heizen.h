#pragma once

#include "project/c_glob.h"
#include "toolkit/wertetafel.h"
#include "toolkit/zeichenflaeche.h"

#include <array>

namespace velmaris {

/// One arrow of the transmission losses; y coordinates in pixels.
struct Sankey_Bauteil {
    double verlust = 0;  ///< kWh/a, nothing is drawn without one
    double breite = 0;   ///< its part of the transmission band, pixels
    int unten = 0;       ///< lower and upper edge of the arrow
    int oben = 0;
};

/// The flows of the heating that the record does not hold, kWh/(m2 a).
struct Sankey_Heizwerte {
    double SV = 0;  ///< loss of the heating system, below 0 what it gains from the environment
    double TV = 0;  ///< loss by transformation and transport, below 0 renewable energies
};

[[nodiscard]] Sankey_Heizwerte sankey_heizwerte(const Projekt& p);

/// The heating diagram in whole pixels, laid out for one surface.
struct Sankey_Heizmasse : Sankey_Heizwerte {
    double S = 1;  ///< kWh/(m2 a) per pixel

    // --- Widths of the bands ---
    int bPE = 0;  ///< primary energy
    int bTV = 0;
    int bEE = 0;  ///< end energy
    int bSV = 0;
    int bQH = 0;  ///< heat demand
    int bQI = 0;  ///< usable internal gains
    int bQS = 0;  ///< usable solar gains
    int bQL = 0;  ///< ventilation losses
    int bQT = 0;  ///< transmission losses

    // --- Edges ---
    int yP = 0;  ///< lower edge of the primary and end energy band
    int yE = 0;  ///< upper edge of the end energy
    int yA = 0;  ///< where the vertical run of the heating system's band starts
    int yB = 0;  ///< lower edge of the heat demand band
    int yC = 0;  ///< lower edge of the collected band
    int yD = 0;  ///< upper edge of the heat demand band
    int yF = 0;  ///< upper edge of the transmission part of the collected band

    /// Ground, door, walls, windows, roof from the bottom up, and the lines between them; only with
    /// transmission losses.
    std::array<Sankey_Bauteil, 5> bauteile;
    std::array<int, 4> grenzen{};
};

/// Lays the diagram out for a surface. `massstab` makes a pixel stand for at least so much, kWh/(m2 a), where
/// several projects share a scale. A record whose values do not fit the pixels is a Laufzeitfehler.
[[nodiscard]] Sankey_Heizmasse sankey_heizmasse(const Projekt& p, const Zeichenflaeche& bild,
                                                double massstab = 0);

/// Draws the flow of the heating energy: from the primary energy through the heat demand, with the gains of
/// sun and house, to the losses and their parts. The surface is white.
void SankeyHeizen(const Projekt& p, Zeichenflaeche& bild, double massstab = 0);

/// The flows of the diagram, the parts of the transmission losses among them, kWh/(m2 a).
[[nodiscard]] Wertetafel SankeyHeizenWerte(const Projekt& p);

}  // namespace velmaris
