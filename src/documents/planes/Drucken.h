#pragma once

#include "documents/dokumentquelle.h"
#include "documents/planes/druckerwahl.h"
#include "documents/print/Ausdrucken.h"
#include "project/sitzung.h"
#include "toolkit/drucker.h"
#include "toolkit/felder.h"

#include <array>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace velmaris {

/// Where a document goes.
struct Druckziel {
    std::string titel;               ///< of the document
    std::string drucker = {};        ///< name of the printer, empty for a PDF file
    std::filesystem::path pdf = {};  ///< that file
};

/// The print dialog: which outputs are to be printed, and on which printer.
struct Drucken {
    Drucken(Sitzung& sitzung, std::function<Dokumentquelle()> quelle);

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

    /// Prints what is ticked and closes the dialog; a PDF file is asked for first. With nothing ticked it
    /// says so and stays open; a failure of the printer is a message, and the dialog stays open too. If the
    /// printer that it shows is gone, it says so and opens the choice of a printer.
    void drucken();

    /// Begins a document; a device that cannot be used is a Laufzeitfehler. Set by the view.
    std::function<std::unique_ptr<Drucker>(const Druckziel& ziel)> dokument;

    /// The choice of a printer, opened by `Command3`.
    Druckerwahl wahl;

  private:
    void drucker_zeigen();
    void melde(const std::string& text) const;
    [[nodiscard]] Druckauswahl auswahl() const;
    [[nodiscard]] std::optional<Druckziel> ziel() const;

    Sitzung& sitzung_;
    std::function<Dokumentquelle()> quelle_;
    std::string drucker_;  ///< the one that the dialog shows, empty for a PDF file
    std::array<Pruefeld, druckausgaben> ausgaben_;
};

}  // namespace velmaris
