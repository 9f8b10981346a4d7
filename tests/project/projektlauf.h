#pragma once

#include "project/FILEIO.h"
#include "tests/testprogramm.h"
#include "toolkit/text.h"

#include <filesystem>
#include <string>

namespace velmaris::test {

/// A program on a new project, and beside it "projekte/haus.vel", a house 12 m long.
class Projektlauf {
  public:
    FILEIO& datei() { return programm.haupt->datei; }
    Projekt& p() { return programm.p(); }
    Testplattform& plattform() { return programm.plattform; }
    [[nodiscard]] const Meldung& meldung() const { return programm.plattform.meldungen.back(); }

    /// Writes the present project with another line (from 1).
    std::filesystem::path schreibe(const std::string& name, int zeile, const std::string& inhalt) {
        auto zeilen = projektzeilen(p());
        zeilen[static_cast<std::size_t>(zeile - 1)] = inhalt;
        return programm.ordner.schreibe(name, projekttext(zeilen));
    }

    /// Opens a file; a question about changes is answered so.
    void oeffne(const std::filesystem::path& was, Antwort antwort = Antwort::nein) {
        plattform().antworten = {antwort};
        datei().datei_oeffnen(pfadtext(was));
    }

    /// Saves under a name; a question about replacing is answered so.
    void speichere_unter(const std::filesystem::path& wohin, Antwort antwort = Antwort::ja) {
        plattform().antworten = {antwort};
        plattform().dateien = {wohin};
        datei().datei_speichern_unter();
    }

    /// The user sets the length, in m.
    void laenge(int meter) { programm.haupt->e_geometrie.l_sb.setze(10 * meter); }

    /// The length that stands in a project file behind the 20 letters of its version, in m.
    static int laenge_in(const std::filesystem::path& datei) { return std::stoi(inhalt(datei).substr(20)); }

    Testprogramm programm;
    std::filesystem::path haus = schreibe("projekte/haus.vel", 2, " 12");
};

}  // namespace velmaris::test
