#pragma once

#include "planes/E_Fenster.h"
#include "planes/scrolltabelle.h"
#include "project/sitzung.h"
#include "project/wandseite.h"
#include "toolkit/felder.h"

#include <array>

namespace velmaris {

/// The plane of use and construction: set temperature, overheating limit, internal gains, air change,
/// neighbours, heaviness of the walls, efficiency of the cooling.
struct E_Gebaeude {
    /// `fenster` locks the window share of a wall to a heated neighbour.
    E_Gebaeude(Sitzung& sitzung, E_Fenster& fenster);

    Feld ebene{"E_Gebaeude"};

    Eingabefeld Troom_sb{"Troom_sb"}, Tueber_sb{"Tueber_sb"}, intg_sb{"intg_sb"};
    Eingabefeld infiltration_sb{"infiltration_sb"}, lw_sb{"lw_sb"}, WRG_Sb{"WRG_Sb"};
    Eingabefeld Klimaeffizienz_sb{"Klimaeffizienz_sb"};
    Anzeige troom_anz{"troom_anz"}, Tueber_anz{"Tueber_anz"};
    Anzeige intg_anz{"intg_anz"};    ///< kWh/(m2 a)
    Anzeige intg_anz2{"intg_anz2"};  ///< the same gains as mean power, W/m2
    Anzeige infiltration_anz{"infiltration_anz"}, lw_anz{"lw_anz"}, WRG_anz{"WRG_anz"};
    Anzeige KlimaEffizienz_anz{"KlimaEffizienz_anz"};

    Pruefeld awn_cb{"awn_cb"}, aws_cb{"aws_cb"}, awo_cb{"awo_cb"}, aww_cb{"aww_cb"};
    Auswahlliste Aussenwandart{"Aussenwandart"}, Innenwandart{"Innenwandart"};

    Anzeige cges_anz{"cges_anz"}, Cwirk_anz{"Cwirk_anz"};
    Bildfeld Traegheit{"Traegheit"};  ///< the stacked weight

    /// Copies the heat capacity into its displays.
    void gebaeude_zeigen();

    /// Moves all controls to the record's state.
    void eingaben_anzeigen();

  private:
    void troom_geaendert();
    void tueber_geaendert();
    void zeigen(const Eingabefeld& feld);
    void wand_geklickt(Wandseite fassade);
    void bauart_gewaehlt(std::int16_t Projekt::*ziel, const Auswahlliste& liste);

    struct Wand {
        Wandseite fassade;
        Pruefeld* check;
        std::int16_t Projekt::*feld;
    };
    [[nodiscard]] std::array<Wand, 4> waende();

    Sitzung& s_;
    E_Fenster& fenster_;
};

}  // namespace velmaris
