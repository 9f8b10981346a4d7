#pragma once

#include "project/c_glob.h"
#include "toolkit/wertetafel.h"
#include "toolkit/zeichenflaeche.h"

#include <array>

namespace velmaris {

/// What the surplus of the year comes from, in the order of the diagram.
inline constexpr std::size_t ueberschuesse = 4;  ///< transmission, ventilation, solar, internal

/// Yearly energies of the cooling, kWh/(m2 a).
struct Sankey_Kuehlwerte {
    std::array<double, ueberschuesse> teile{};  ///< what the surplus comes from
    double effizienz = 1;                       ///< cooling energy per electric energy
    double C = 0;                               ///< cooling demand
    double E = 0;                               ///< end energy, electricity
    double P = 0;                               ///< primary energy
    double L = 0;                               ///< loss by transformation and transport
};

[[nodiscard]] Sankey_Kuehlwerte sankey_kuehlwerte(const Projekt& p);

/// The cooling diagram in whole pixels, laid out for one surface. Rows of a band include both its edges.
struct Sankey_Kuehlmasse {
    // --- Widths of the bands ---
    std::array<int, ueberschuesse> teile{};
    int C = 0;
    int E = 0;
    int P = 0;
    int L = 0;

    // --- Rows ---
    std::array<int, ueberschuesse> einlass{};   ///< lower edges of the inlets at their tails
    std::array<int, ueberschuesse> sammlung{};  ///< ... and where they have come together
    int yP = 0;  ///< lower edge of the primary, end energy and waste heat bands
    int yE = 0;  ///< lower edge of the collected band, just above the end energy

    // --- Columns ---
    int xText = 0;      ///< labels of the inlets
    int xEinlass = 0;   ///< tails of the inlets
    int xSchraeg = 0;   ///< where they turn towards each other
    int xSammlung = 0;  ///< where they have come together
};

/// Lays the diagram out for a surface; there is a demand. `massstab` makes a pixel stand for at least so
/// much, kWh/(m2 a), where several projects share a scale. Energies that do not fit the pixels are a
/// Laufzeitfehler.
[[nodiscard]] Sankey_Kuehlmasse sankey_kuehlmasse(const Sankey_Kuehlwerte& werte, const Zeichenflaeche& bild,
                                                  double massstab = 0);

/// Energy per pixel of a diagram by itself, kWh/(m2 a); 0 without a demand.
[[nodiscard]] double sankey_kuehlmassstab(const Projekt& p, const Zeichenflaeche& bild);

/// Draws the flow of the cooling energy: what the surplus comes from and the electricity that carries it out
/// of the building, or a line of text without a cooling demand. The surface is white.
void SankeyKuehlen(const Projekt& p, Zeichenflaeche& bild, double massstab = 0);

/// The flows of the diagram, kWh/(m2 a); all 0 without a cooling demand.
[[nodiscard]] Wertetafel SankeyKuehlenWerte(const Projekt& p);

}  // namespace velmaris
