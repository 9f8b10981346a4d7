#pragma once

#include "charts/monatsleiste.h"
#include "project/sitzung.h"
#include "toolkit/felder.h"

namespace velmaris {

/// The temperature chart of the overview at window size, with the same month.
struct A_Zoom {
    explicit A_Zoom(Sitzung& sitzung);

    Feld ebene{"A_Zoom"};  ///< the window itself, hidden at first

    Bildfeld Temperaturen{"Temperaturen"};
    Monatsleiste monatsleiste;
    Knopf Command_Schliessen{"Command_Schliessen"};

    /// Captions in the language of the run.
    void laden();

    /// Shows the window with the month of the overview.
    void oeffnen();

    /// Lays the controls out in a window of this inner size, pixels.
    void anordnen(double breite, double hoehe);

    /// Chooses month m (1..12).
    void Monatsbutton_Click(int m);

  private:
    Sitzung& sitzung_;
};

}  // namespace velmaris
