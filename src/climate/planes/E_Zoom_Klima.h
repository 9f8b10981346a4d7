#pragma once

#include "climate/planes/stationskarte.h"
#include "project/sitzung.h"

namespace velmaris {

/// The window with the enlarged map of the world. It chooses on its own list; only `Command1` takes the
/// choice over into the climate plane.
struct E_Zoom_Klima {
    /// `stationen` is the list of the world and outlives the window, as does `ziel`, the plane's list.
    E_Zoom_Klima(Sitzung& sitzung, const std::vector<Station>& stationen, Auswahlliste& ziel);

    Anzeige ebene{"E_Zoom_Klima"};  ///< the window with its title; shown while it is open, modal
    Bildfeld Picture1{"Picture1"};  ///< map of the world, 1.5 times as large as the plane's
    Auswahlliste Klimaregionwahl2{"Klimaregionwahl2"};
    Anzeige MausRegion{"MausRegion"};  ///< station under the pointer
    Knopf Command1{"Command1"};        ///< takes the choice over
    Knopf Command2{"Command2"};        ///< closes without a change

    /// Reads a pixel of the map.
    Kartenfarbe kartenfarbe = gezeigte_kartenfarbe;

    /// Opens the window on the plane's list and selection.
    void oeffnen();

  private:
    void bestaetigen();

    Auswahlliste& ziel_;
    Stationskarte karte_;

  public:
    Kartenweg weg = karte_.weg();  ///< the way over `Picture1` by keyboard
};

}  // namespace velmaris
