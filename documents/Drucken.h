#pragma once

#include "documents/Ausdrucken.h"
#include "documents/reportquelle.h"
#include "project/sitzung.h"
#include "toolkit/drucker.h"
#include "toolkit/felder.h"

#include <array>
#include <functional>
#include <memory>

namespace velmaris {

/// The print dialog: which outputs are to be printed, and on which printer.
struct Drucken {
    Drucken(Sitzung& sitzung, std::function<Reportquelle()> quelle);

    Feld fenster{"Drucken"};  ///< the dialog itself, hidden at first

    /// Check field of output 1..7.
    [[nodiscard]] Pruefeld& Druckausgabe(int i) { return ausgaben_.at(static_cast<std::size_t>(i - 1)); }

    Anzeige DruckerName{"DruckerName"};
    Anzeige DruckerNameUnten{"DruckerNameUnten"};
    Knopf Command1{"Command1"};  ///< print
    Knopf Command2{"Command2"};  ///< close
    Knopf Command3{"Command3"};  ///< choose a printer

    /// Opens the dialog with the name of the current printer.
    void oeffnen();

    /// Prints what is ticked and closes the dialog. With nothing ticked it says so and stays open; a failure
    /// of the printer is a message, and the dialog stays open too.
    void drucken();

    /// The platform's dialog for the choice of a printer; set by the view.
    std::function<void()> druckerwahl;

    /// Begins a document on the current printer, or in a PDF file where there is no printer; nothing if the
    /// user gives up. Set by the view.
    std::function<std::unique_ptr<Drucker>()> dokument;

  private:
    void drucker_zeigen();
    [[nodiscard]] Druckauswahl auswahl() const;

    Sitzung& sitzung_;
    std::function<Reportquelle()> quelle_;
    std::array<Pruefeld, druckausgaben> ausgaben_;
};

}  // namespace velmaris
