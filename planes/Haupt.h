#pragma once

#include "calc/alles_berechnen.h"
#include "climate/A_Klima.h"
#include "energy/E_Energie.h"
#include "planes/E_Daemmung.h"
#include "planes/E_Fenster.h"
#include "planes/E_Gebaeude.h"
#include "planes/E_Geometrie.h"
#include "project/FILEIO.h"
#include "project/sitzung.h"

#include <filesystem>
#include <string>

namespace velmaris {

/// The composition root: the one record, all planes over it, the life of the project and the recalculation.
/// Large; keep it on the heap.
struct Haupt {
    /// `sprache` is "d" or "e"; `programmordner` holds klima/ and Grafiken/.
    Haupt(Plattform& plattform, const std::filesystem::path& programmordner, const std::string& sprache);
    Haupt(const Haupt&) = delete;
    Haupt& operator=(const Haupt&) = delete;
    ~Haupt() = default;

    Projekt p;
    Sitzung sitzung;
    E_Geometrie e_geometrie;
    E_Fenster e_fenster;
    E_Daemmung e_daemmung;
    E_Gebaeude e_gebaeude;
    E_Energie e_energie;
    A_Klima a_klima;
    FILEIO datei;

    /// Sets all inputs, the controls that keep state and the title to those of a new project.
    void neues_projekt();

    /// Makes the station named by the record the current climate: reads it, recalculates and shows its
    /// figures. A station file that cannot be read is a Dateifehler; the former climate stays.
    void wetter_laden();

    /// Moves all input planes to the record's state, in a fixed order, and clears `Geaendert`. Positions are
    /// whole numbers, so values are rounded to them, and dependent values follow. A position out of range, a
    /// list row or a combination of heating choices that does not exist is a Laufzeitfehler that names the
    /// quantity.
    void eingaben_anzeigen();

    /// Recalculates and refreshes what is visible.
    void alles_berechnen();

  private:
    [[nodiscard]] Projektwege projektwege();
    [[nodiscard]] Rechenplan rechenplan();
    void verbinden();

    Rechenplan plan_;
};

}  // namespace velmaris
