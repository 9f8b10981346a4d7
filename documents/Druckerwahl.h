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

    /// The current printer's name, or what stands for a PDF file.
    [[nodiscard]] std::string name_des_druckers() const;

  private:
    void uebernehmen();

    Sitzung& sitzung_;
    std::function<void()> gewaehlt_;
};

}  // namespace velmaris
