#pragma once

#include "planes/E_Daemmung.h"
#include "planes/scrolltabelle.h"
#include "project/sitzung.h"
#include "toolkit/felder.h"

namespace velmaris {

/// The plane on which the box-shaped building gets its shape: length, width, height, floors, heated attic
/// with its ridge, orientation.
struct E_Geometrie {
    /// `daemmung` shows the upper closure as the attic has it.
    E_Geometrie(Sitzung& sitzung, E_Daemmung& daemmung);

    Feld ebene{"E_Geometrie"};  ///< the plane as a window

    Eingabefeld l_sb{"l_sb"};
    Eingabefeld b_sb{"b_sb"};
    Eingabefeld h_sb{"h_sb"};
    Eingabefeld hd_sb{"hd_sb"};
    Eingabefeld ag_sb{"ag_sb"};
    Eingabefeld orient_sb{"orient_sb"};
    Pruefeld Check_Dachgeschoss{"Check_Dachgeschoss"};
    Optionsgruppe Option_Dachfirst{"Option_Dachfirst", 1, 2};
    Feld Frame3{"Frame3"};

    Anzeige l_anz{"l_anz"}, b_anz{"b_anz"}, h_anz{"h_anz"}, hd_anz{"hd_anz"}, ag_anz{"ag_anz"};
    Anzeige orient_anz{"orient_anz"};
    Anzeige f_nfa_anz{"f_nfa_anz"}, f_wfa_anz{"f_wfa_anz"}, Giebel_anz{"Giebel_anz"};
    Anzeige dachfläche_anz{"dachfläche_anz"};
    Anzeige f_nutz_anz{"f_nutz_anz"}, f_gd_anz{"f_gd_anz"}, v_luft_anz{"v_luft_anz"}, v_geb_anz{"v_geb_anz"};
    Anzeige Label4{"Label4"};  ///< caption of the roof height
    Anzeige Label6{"Label6"};  ///< caption over the house picture: gable, or roof plane
    Anzeige Label9{"Label9"};  ///< caption over the house picture: roof plane, or gable

    Anzeige av_anz{"av_anz"}, AV_Kugel{"AV_Kugel"}, AV_Wuerfel{"AV_Wuerfel"}, AV_Tetraeder{"AV_Tetraeder"};
    Bildfeld AV_Picture{"AV_Picture"};  ///< A/V chart
    Bildfeld Picture1{"Picture1"};      ///< orientation sketch
    Bildfeld Picture3{"Picture3"};      ///< house picture

    /// The roof logic behind the check field, which carries the new state already: hides or shows what
    /// belongs to the roof, resets `hd` to 0 or to 1 m, recalculates.
    void Check_Dachgeschoss_Click();

    /// The ridge logic behind the options; without a heated attic only the ridge itself is stored.
    void Option_Dachfirst_Click(int index);

    /// Sets the check field as a project file has it, and runs its logic.
    void dachgeschoss_lesen(int wert);

    /// Sets the ridge as a project file has it, and runs its logic; a value other than 1 and 2 clears both
    /// options.
    void dachfirst_lesen(int wert);

    /// Moves all controls to the record's state.
    void eingaben_anzeigen();

    /// Copies the driver's texts into the displays.
    void geometrie_zeigen();

    /// Refreshes the A/V chart with its numbers.
    void AV_diagramm();

    /// What happens when the plane is shown.
    void aktivieren();

  private:
    void orient_geaendert();
    void orient_zeigen();
    void dach_zeigen();
    void dachbild_zeigen();
    void dachbeschriftung_zeigen(int first);

    Sitzung& s_;
    E_Daemmung& daemmung_;
};

}  // namespace velmaris
