#pragma once

#include "energy/planes/E_Energie.h"
#include "planes/E_Daemmung.h"
#include "planes/E_Fenster.h"
#include "planes/E_Gebaeude.h"
#include "planes/E_Geometrie.h"
#include "project/c_glob.h"
#include "project/sitzung.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace velmaris {

/// The record with the input planes that describe the building and its heating: all that settles which inputs
/// a project can have. Large; keep it on the heap.
struct Eingabeebenen {
    /// `sprache` is "d" or "e"; `programmordner` holds klima/. The planes call `alles_berechnen` after each
    /// change of an input.
    Eingabeebenen(Plattform& plattform, const std::filesystem::path& programmordner,
                  const std::string& sprache, std::function<void()> alles_berechnen);

    Projekt p;
    Sitzung sitzung;
    E_Daemmung e_daemmung;
    E_Geometrie e_geometrie;
    E_Fenster e_fenster;
    E_Gebaeude e_gebaeude;
    E_Energie e_energie;

    /// Sets all inputs and the controls that keep state to those of a new project.
    void neues_haus();

    /// As `Projektbetrieb::stellen` and `Projektbetrieb::bauteile_anzeigen`.
    bool regler_stellen(std::string_view feld, int wert);
    void regler_anzeigen();
};

}  // namespace velmaris
