#pragma once

#include "charts/planes/monatsleiste.h"
#include "charts/planes/monatswahl.h"
#include "charts/tooltip.h"
#include "project/sitzung.h"
#include "toolkit/felder.h"

#include <functional>
#include <string>

namespace velmaris {

/// The overview plane: temperatures of one month, demand and operating hours of the year.
struct A_Uebersicht {
    explicit A_Uebersicht(Sitzung& sitzung);

    Feld ebene{"A_Uebersicht"};  ///< the plane itself, hidden at first

    Bildfeld Temperaturen{"Temperaturen"};
    Monatsleiste monatsleiste;
    Monatswahl monatswahl;  ///< shared with the chart at window size
    Bildfeld Monatsbilanz{"Monatsbilanz"}, JahrBilanz{"JahrBilanz"};
    Anzeige Label9{"Label9"}, Label1{"Label1"};
    Bildfeld UeberGrafik{"UeberGrafik"}, UeberJahr{"UeberJahr"};
    Anzeige Label32{"Label32"}, Label01{"Label01"}, Label02{"Label02"};
    Tooltip tooltip;

    /// Opens the temperature chart at window size; set by the main window.
    std::function<void()> zoom_oeffnen;

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
};

}  // namespace velmaris
