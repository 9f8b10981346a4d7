#pragma once

#include "charts/planes/monatsleiste.h"
#include "charts/planes/monatswahl.h"
#include "project/sitzung.h"
#include "toolkit/felder.h"

namespace velmaris {

/// The temperature chart of the overview at window size, with the month of the overview.
struct A_Zoom {
    A_Zoom(Sitzung& sitzung, Monatswahl& wahl);

    Feld ebene{"A_Zoom"};  ///< the window itself, hidden at first

    Bildfeld Temperaturen{"Temperaturen"};
    Monatsleiste monatsleiste;
    Knopf Command_Schliessen{"Command_Schliessen"};

    /// Captions in the language of the run.
    void laden();

    /// Shows the window with the chart as it is now.
    void oeffnen();

    /// Lays the controls out in a window of this inner size, pixels.
    void anordnen(double breite, double hoehe);

    /// Draws the chart anew.
    void TemperaturDiagrammZeichnen() const;

  private:
    Sitzung& sitzung_;
    Monatswahl& monatswahl_;
};

}  // namespace velmaris
