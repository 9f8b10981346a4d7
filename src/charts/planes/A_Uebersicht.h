#pragma once

#include "charts/planes/A_Zoom.h"
#include "charts/planes/monatsleiste.h"
#include "charts/planes/monatswahl.h"
#include "charts/tooltip.h"
#include "project/sitzung.h"
#include "toolkit/felder.h"

#include <string>

namespace velmaris {

/// The overview plane: temperatures of one month, demand and operating hours of the year.
struct A_Uebersicht {
    /// A click on the temperature chart opens `zoom`, which shows it at window size; both follow
    /// `monatswahl`.
    A_Uebersicht(Sitzung& sitzung, Monatswahl& monatswahl, A_Zoom& zoom);

    Feld ebene{"A_Uebersicht"};  ///< the plane itself, hidden at first

    Bildfeld Temperaturen{"Temperaturen"};
    Monatsleiste monatsleiste;
    Bildfeld Monatsbilanz{"Monatsbilanz"}, JahrBilanz{"JahrBilanz"};
    Anzeige Label9{"Label9"}, Label1{"Label1"};
    Bildfeld UeberGrafik{"UeberGrafik"}, UeberJahr{"UeberJahr"};
    Anzeige Label32{"Label32"}, Label01{"Label01"}, Label02{"Label02"};
    Tooltip tooltip;

    /// Captions in the language of the run.
    void laden();

    /// The plane has come to the front: recalculates and marks the month shown.
    void aktiviert();

    /// Draw anew, both surfaces of each pair.
    void MonatsbilanzZeichnen() const;
    void UeberGrafikZeichnen() const;
    void TemperaturDiagrammZeichnen() const;

    /// Tooltip texts; m is 1..12.
    [[nodiscard]] std::string tipp_monatsbilanz(int m) const;
    [[nodiscard]] std::string tipp_jahrbilanz() const;
    [[nodiscard]] std::string tipp_uebergrafik(int m) const;
    [[nodiscard]] std::string tipp_ueberjahr() const;

  private:
    void anordnen();

    Sitzung& sitzung_;
    Monatswahl& monatswahl_;
    A_Zoom& zoom_;
};

}  // namespace velmaris
