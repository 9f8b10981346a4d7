#pragma once

#include "documents/print/blatt.h"
#include "project/c_glob.h"

namespace velmaris {

/// The diagrams of the printed pages, each in its box at a fixed place. They repeat the charts of the screen
/// with colours for paper. A bar that exceeds its scale leaves the box.

/// Losses and supply of the year, kWh/(m2 a), and of each month, kWh/(m2 month).
void Diagramm_Jahresbilanz(Blatt& blatt, const Projekt& p);
void Diagramm_Monatbilanz(Blatt& blatt, const Projekt& p);

/// Solar gains and transmission losses of the windows by facade, kWh/a, with the legend.
void Diagramm_Fenster(Blatt& blatt, const Projekt& p);

/// Hours of heating, zero energy and cooling of each month and of the year.
void Diagramm_Stunden(Blatt& blatt, const Projekt& p);

/// Hours of overheating per day, and below them the cooling demand, kWh/(m2 month), of each month.
void Diagramm_Kuehlen(Blatt& blatt, const Projekt& p);

/// End and primary energy of each month for heating, the auxiliary electricity on top, and for cooling,
/// kWh/(m2 month).
void Diagramm_Heizenergie(Blatt& blatt, const Projekt& p);
void Diagramm_Kühlenergie(Blatt& blatt, const Projekt& p);

/// Legend of the two diagrams of the heat balance.
void Legende_Bilanz(Blatt& blatt);

}  // namespace velmaris
