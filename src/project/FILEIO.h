#pragma once

#include "project/eigene_datei.h"
#include "project/projektbetrieb.h"
#include "project/rettung.h"
#include "project/sitzung.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

namespace velmaris {

/// The life of a project: new, open, save, leave, and the questions about unsaved changes. The project file
/// stays open on channel 1 from open or save until it is replaced or the program ends.
/// Saving writes without a question only into the project's own file, and only while that holds what this run
/// read from it or wrote into it.
class FILEIO {
  public:
    /// `rettung` keeps the changes that a Yes of the question did not save. All three must outlive the
    /// object.
    FILEIO(Sitzung& sitzung, const Rettung& rettung, Projektbetrieb& betrieb)
        : s_(sitzung), rettung_(rettung), betrieb_(betrieb) {}

    /// Builds up a new project and calculates it; the end of the start and the heart of `datei_neu`.
    void projekt_aufbauen();

    /// Builds up a new project without its climate and without a calculation, for a program that opens
    /// another one at once, or that only writes the new one.
    void projekt_vorbereiten();

    /// Opens a project file: reading, station, planes, one calculation. If another station had to take the
    /// place of the file's, the project counts as changed. Returns false if the file has no version known
    /// here; that is told, the project stays and `Datei` becomes "default.vel".
    /// Any other fault is a Dateifehler that names file, line and field. One of reading the bytes leaves the
    /// project as it is; after any other what was read up to then stays, and `FormLoadGuard` stays set.
    bool projekt_laden(const std::string& datei);

    /// Writes the project to `Datei`, whole or not at all, and keeps it open on channel 1. A fault is
    /// a Dateifehler.
    void projekt_sichern();

    /// The commands of the menu. They report faults by message boxes.
    void datei_neu();
    void datei_oeffnen(const std::string& datei);
    void datei_speichern();
    void datei_speichern_unter();
    void programm_beenden();

    /// The close box of the main window: ends the program unless the question about unsaved changes is
    /// cancelled; then the printer of the start is the current one again.
    void fenster_schliessen();
    void hilfe_zeigen(const std::string& seite = {});

    /// Asks about unsaved changes when the window is closed; 1 = do not close.
    std::int16_t aenderung_abfragen();

    /// Title of the main window for a project without a name.
    void titel_unbenannt();

  private:
    enum class Frage { weiter, abbrechen };
    enum class Sicherung { gesichert, abgebrochen, abgelehnt, gescheitert };

    Frage aenderung_klaeren(Sicherung (FILEIO::*weg)());
    Frage nach_dem_ja(Sicherung ergebnis);
    bool aenderung_aufgeben();
    bool rettung_melden() const;
    Sicherung sichern();
    Sicherung sichern_unter();
    Sicherung sichern_in(const std::filesystem::path& ordner);
    void gesichertes_zeigen();
    std::string aufschlagen(const std::string& datei);
    bool uebernehmen(const std::string& datei, const std::string& bytes);
    void rechnen();
    void projekt_gehoert_zu(const std::string& datei, const std::string& bytes);
    void wetter_der_datei_laden() const;
    void drucker_zuruecksetzen();
    void kanal_schliessen();
    void kanal_oeffnen();
    void titel_der_datei();
    [[nodiscard]] std::function<std::string(const std::filesystem::path&)> vorschau() const;
    bool ersetzen_erlaubt();
    Sicherung schreiben_oder_melden();

    Sitzung& s_;
    const Rettung& rettung_;
    Projektbetrieb& betrieb_;
    EigeneDatei eigene_;
    bool ungesichert_ = false;  ///< the user wanted to save, but cancelled that
    std::ifstream kanal1_;
};

}  // namespace velmaris
