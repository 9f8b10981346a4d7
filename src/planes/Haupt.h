#pragma once

#include "charts/planes/A_Heizen.h"
#include "charts/planes/A_Kuehlen.h"
#include "charts/planes/A_Sankey.h"
#include "charts/planes/A_Uebersicht.h"
#include "charts/planes/A_Zoom.h"
#include "charts/planes/monatswahl.h"
#include "climate/planes/A_Klima.h"
#include "climate/planes/E_Klima.h"
#include "climate/planes/E_Klimaimport.h"
#include "documents/planes/A_Report.h"
#include "documents/planes/Drucken.h"
#include "planes/ebenenleiste.h"
#include "planes/eingabeebenen.h"
#include "planes/hauptmenue.h"
#include "project/FILEIO.h"
#include "project/projektbetrieb.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace velmaris {

/// The composition root: all planes over the one record, the life of the project and the recalculation.
/// Large; keep it on the heap.
struct Haupt : private Projektbetrieb, public Eingabeebenen {
    /// `sprache` is "d" or "e"; `programmordner` holds klima/ and Grafiken/.
    Haupt(Plattform& plattform, const std::filesystem::path& programmordner, const std::string& sprache);

    E_Klima e_klima;
    Monatswahl monatswahl;
    A_Zoom a_zoom;
    A_Uebersicht a_uebersicht;
    A_Klima a_klima;
    A_Heizen a_heizen;
    A_Kuehlen a_kuehlen;
    A_Sankey a_sankey;
    E_Klimaimport e_klimaimport;
    A_Report a_report;
    Drucken drucken;
    Rettung rettung;
    FILEIO datei;
    Ebenenleiste e_menue{"E_Menue"};
    Ebenenleiste a_menue{"A_Menue"};
    Hauptmenue menue;

    /// Shows the about box; set by the desktop.
    std::function<void()> info_zeigen;

    /// What the main window does when it comes up: shows both bars and the first planes, notes the printer.
    void laden();

    // What the life of a project asks for, open to others too.
    void erste_ebenen() override;
    void neues_projekt() override;

    /// Makes the station named by the record the current climate: reads it, recalculates and shows its
    /// figures. A station file that cannot be read is a Dateifehler; the former climate stays.
    void wetter_laden();

    void eingaben_anzeigen() override;
    void bauteile_anzeigen() override;

    /// Recalculates the building and refreshes what is visible; follows every change of an input. No more
    /// than the geometry under the load guard and while no station can be read. Errors as in
    /// `geometrie_stufe`.
    void alles_berechnen();

  private:
    bool neu_moeglich() override;
    void station_lesen() override;
    void station_laden() override;
    bool stellen(std::string_view feld, int wert) override;
    [[nodiscard]] std::string vorschau(const std::filesystem::path& datei) const override;

    void leisten_fuellen();
    void rechnen();
    void geometrie_zeigen();

    /// Draws anew what lies on the visible planes, in a fixed order.
    void auffrischen();

    /// Notes which printer is the current one.
    void drucker_merken();

    /// Reads the station of the record and shows its figures.
    void klimadatei_lesen();

    /// Loads a station for a project; one that cannot be read is replaced, where that is allowed.
    void oder_ersatzstation(const std::function<void()>& laden);
};

}  // namespace velmaris
