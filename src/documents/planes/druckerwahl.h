#pragma once

#include "project/sitzung.h"
#include "toolkit/felder.h"

#include <functional>
#include <string>

namespace velmaris {

/// The dialog for the choice of a printer: all printers and, as the last entry, a PDF file.
struct Druckerwahl {
    /// `gewaehlt` runs once another printer is chosen.
    Druckerwahl(Sitzung& sitzung, std::function<void()> gewaehlt);

    Feld fenster{"Druckerwahl"};  ///< the dialog itself, hidden at first

    Auswahlliste Druckerliste{"Druckerliste"};
    Anzeige Hinweis{"Hinweis"};  ///< says that there is no printer, if so
    Knopf OK_Button{"OK_Button"};
    Knopf Abbrechen{"Abbrechen"};

    /// Opens the dialog on the current printer.
    void oeffnen();

    /// What a printer is called, the empty name being that of a PDF file.
    [[nodiscard]] std::string anzeigename(const std::string& drucker) const;

    /// True for a PDF file and for a printer that there is now.
    [[nodiscard]] bool vorhanden(const std::string& drucker) const;

    /// Tells that a printer is gone and opens the dialog on those that are left.
    void verschwunden(const std::string& drucker);

  private:
    void uebernehmen();

    Sitzung& sitzung_;
    std::function<void()> gewaehlt_;
};

}  // namespace velmaris
