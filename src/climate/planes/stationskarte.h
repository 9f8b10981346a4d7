#pragma once

#include "climate/planes/kartenweg.h"
#include "climate/stationslisten.h"
#include "toolkit/felder.h"
#include "toolkit/plattform.h"

#include <functional>
#include <optional>
#include <vector>

namespace velmaris {

/// The colour of a pixel of a map as it is on the screen, with what is drawn over the picture; nothing if the
/// picture could not be loaded.
using Kartenfarbe = std::function<std::optional<Farbe>(const Bildfeld& karte, double x, double y)>;
[[nodiscard]] std::optional<Farbe> gezeigte_kartenfarbe(const Bildfeld& karte, double x, double y);

/// A map on which stations are dots: painting them, finding the station under the pointer, taking one
/// by a click. Works on the controls of the window that holds it, which outlives it.
struct Stationskarte {
    Plattform& plattform;
    const std::vector<Station>& stationen;
    double massstab;           ///< of the picture against the places of the stations
    double toleranz;           ///< reach of the pointer around a dot while it moves, pixels
    Bildfeld& karte;           ///< the map
    Auswahlliste& liste;       ///< `Klimaregionwahl2`, filled with the names of `stationen`
    Anzeige& MausRegion;       ///< name of the station under the pointer
    const Kartenfarbe& farbe;  ///< may be unset

    /// Brings a station into view, where the map is larger than its frame.
    std::function<void(const Station&)> in_sicht = {};

    /// Takes over drawing and pointer events of the map.
    void verbinden();

    /// A yellow dot for each station, last the red one of the selected station; off the picture without one.
    void zeichnen(Zeichenflaeche& bild) const;

    /// Shows the name of the station under the pointer. Over a dot up to 250 stations are drawn by lot, so
    /// that a dot may by chance show nothing.
    void maus_bewegt(double x, double y) const;

    /// Takes the station of a yellow dot: the last one in the list within reach whose name stands at or
    /// before the one that `MausRegion` shows.
    void maus_geklickt(double x, double y) const;

    /// The way over the stations by keyboard; goes on using this object. Shows the name of the station
    /// pointed at, and takes one on the list.
    [[nodiscard]] Kartenweg weg() const;

  private:
    void zeigen(int stelle) const;
    [[nodiscard]] Kartenpunkt ort(const Station& station) const;
    [[nodiscard]] bool nahe(const Station& station, double x, double y, double reichweite) const;
    [[nodiscard]] std::optional<Farbe> farbe_bei(double x, double y) const;
    [[nodiscard]] const Station* ausgeloste_station(double x, double y) const;
};

}  // namespace velmaris
