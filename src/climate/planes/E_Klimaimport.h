#pragma once

#include "climate/import/importablauf.h"
#include "climate/planes/importvorschau.h"
#include "project/sitzung.h"
#include "toolkit/felder.h"
#include "toolkit/textfeld.h"

#include <filesystem>
#include <string>

namespace velmaris {

/// The window that turns a text file of foreign hourly climate data into a station file of the folder
/// "klima". A station is written whole or not at all, and is listed from the next start on.
struct E_Klimaimport {
    explicit E_Klimaimport(Sitzung& sitzung);

    Anzeige ebene{"E_Klimaimport"};  ///< the window with its title; shown while it is open, modal

    // --- Source ---
    Anzeige Frame1{"Frame1"};
    Textfeld DateinameBox{"DateinameBox"};  ///< path of the source; Enter opens it
    Knopf Command1{"Command1"};             ///< asks for a source
    Anzeige Erkannt{"Erkannt"};             ///< as what the source was recognised, empty if it was not
    Anzeige Frame5{"Frame5"};
    Anzeige Dateiansicht{"Dateiansicht"};  ///< first lines of the source

    // --- Layout ---
    Anzeige Frame2{"Frame2"};
    /// Tabs; blanks, left-aligned; blanks, right-aligned. None is set for the commas of an EnergyPlus file.
    Optionsgruppe Datentrennung{"Datentrennung", 0, 3};
    Anzeige Label_Kopfzeilen{"Label_Kopfzeilen"};
    Textfeld Kopfzeilen{"Kopfzeilen", "0123456789"};  ///< number of head lines
    Anzeige Label_Dezimalzeichen{"Label_Dezimalzeichen"};
    Auswahlliste Dezimalzeichen{"Dezimalzeichen"};  ///< 0 point, 1 comma

    // --- Place ---
    Anzeige Frame3{"Frame3"};
    Anzeige Label_Standortname{"Label_Standortname"}, Label_Land{"Label_Land"};
    Textfeld Standortname{"Standortname"}, Land{"Land"};
    /// What would become of the name in the file, and a zone that does not fit the longitude; mostly empty.
    Anzeige Ortshinweis{"Ortshinweis"};
    Anzeige Label_Breitengrad{"Label_Breitengrad"}, Label_Laengengrad{"Label_Laengengrad"},
        Label_Zeitzone{"Label_Zeitzone"};
    Textfeld Breitengrad{"Breitengrad", "0123456789.,"}, Laengengrad{"Laengengrad", "0123456789.,"},
        Zeitzone{"Zeitzone", "0123456789.,"};
    Auswahlliste Breitezusatz{"Breitezusatz"};  ///< 0 north, 1 south
    Auswahlliste Laengezusatz{"Laengezusatz"};  ///< 0 east, 1 west
    Auswahlliste GMT{"GMT"};                    ///< 0 ahead of Greenwich, 1 behind it

    // --- Columns ---
    Anzeige Frame4{"Frame4"};
    Importvorschau vorschau;

    // --- Work ---
    Feld Fortschritt{"Fortschritt"};  ///< the progress bar, shown while an import runs
    Knopf Command2{"Command2"};       ///< starts the import
    Knopf Command3{"Command3"};       ///< closes the window, or cancels the import that runs

    /// Set by the view: shows how much of an import is done (0..1), lets the user's events through, and
    /// returns false to cancel it.
    Fortschrittsmelder fortschritt;

    /// Opens the window without a source.
    void oeffnen();

    /// Opens a source, as its choice in the file dialog does: shows its beginning and takes over what it says
    /// about itself. Its path becomes the project's remembered file name. A file that cannot be read is
    /// reported and changes nothing.
    void quelle_oeffnen(const std::filesystem::path& datei);

    /// Allows the import exactly when all fields of the window are filled.
    void AlleEingabenTesten();

    /// Fills the preview, once the number of head lines is told.
    void vorschau_fuellen();

  private:
    /// Keeps everything but the cancel button still while an import runs.
    class Importsperre;

    void beschriften();
    void verbinden();
    void felder_leeren();
    void weitere_schritte(bool sichtbar);
    void quelle_zeigen();
    void kopf_uebernehmen(const Quellkopf& kopf);
    void kopf_leeren();

    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Datentrennung_Click();

    [[nodiscard]] Trennung trennung() const;
    [[nodiscard]] int kopfzeilen() const;
    [[nodiscard]] Ortsangaben ortsangaben() const;
    [[nodiscard]] Quellkopf angaben() const;
    [[nodiscard]] std::filesystem::path quellpfad() const;

    void importieren();
    void quelle_vergleichen();
    [[nodiscard]] bool weiter(double anteil) const;
    [[nodiscard]] std::string in_sprache(const Zweisprachig& text) const;
    void fehler_melden(const std::string& text, const std::string& hinweis = {});

    Sitzung& s_;
    std::filesystem::path datei_;  ///< the source of the preview
    Importquelle quelle_;
    Quellform form_ = Quellform::frei;
    bool Laden_aktiv_ = false;
    bool import_aktiv_ = false;
    bool abbruch_ = false;
};

}  // namespace velmaris
