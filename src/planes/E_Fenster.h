#pragma once

#include "planes/fensterseite.h"
#include "project/sitzung.h"
#include "toolkit/felder.h"

#include <array>
#include <functional>
#include <optional>
#include <string_view>

namespace velmaris {

/// The plane of the windows: share, type, U values, g value, frame and shading of the four facades. In the
/// mode "the same windows" the south panel is the master that the others follow.
struct E_Fenster {
    explicit E_Fenster(Sitzung& sitzung);

    Feld ebene{"E_Fenster"};

    Fensterseite nord{Wandseite::nord}, sued{Wandseite::sued}, ost{Wandseite::ost}, west{Wandseite::west};

    Optionsgruppe Option1{"Option1", 0, 2};  ///< 0 the same windows, 1 individual
    std::array<Knopf, 4> Command_HR{Knopf{"Command_HR0"}, Knopf{"Command_HR1"}, Knopf{"Command_HR2"},
                                    Knopf{"Command_HR3"}};  ///< tabs: north, south, east, west

    Anzeige f_gf_anz{"f_gf_anz"}, f_vf_anz{"f_vf_anz"}, kf_anz{"kf_anz"}, gfm_anz{"gfm_anz"};

    /// Position of the scroll field that has the input focus, nothing if none has; set by the view. A glazing
    /// value that moves to it was moved by hand, unless the controls follow a project that is being read.
    std::function<std::optional<int>()> fokusstellung;

    /// Sets the mode as a project file has it, and runs its logic; a value other than 0 and 1 is
    /// a Laufzeitfehler.
    void fenstermodus_lesen(int wert);

    /// Locks or frees the window share of a facade whose wall adjoins a heated neighbour or not.
    void nachbar_zeigen(Wandseite fassade, bool nachbar);

    /// Copies the driver's texts into the displays.
    void geometrie_zeigen();

    /// Moves all controls to the record's state.
    void eingaben_anzeigen();

    /// The facade whose type list has that name (`fenstern_typ` ...), nullptr if none has.
    [[nodiscard]] Fensterseite* seite_mit_typ(std::string_view name);

  private:
    /// The mode logic behind the options, which carry the new state already.
    void Option1_Click(int index);

    /// Shows the panel of a tab.
    void Command_HR_Click(int index);

    [[nodiscard]] Fensterseite& seite(Wandseite fassade);
    void binden(Fensterseite& seite);
    void anteil_geaendert(Fensterseite& seite);
    void typ_gewaehlt(Fensterseite& seite);
    void glaswert_geaendert(Fensterseite& seite, Fensterschieber& schieber);
    void rahmen_geaendert(Fensterseite& seite, Fensterschieber& schieber);
    void folgen(Fensterseite& seite, const std::function<void(Fensterseite&)>& kopieren);
    [[nodiscard]] bool von_hand(int stellung) const;
    [[nodiscard]] std::array<Fensterseite*, 4> seiten();
    [[nodiscard]] bool gleiche_fenster() const;

    Sitzung& s_;
    bool folgt_dem_projekt_ = false;  ///< the controls are being moved to what the record or a file says
};

}  // namespace velmaris
