#pragma once

#include "planes/scrolltabelle.h"
#include "project/sitzung.h"
#include "toolkit/felder.h"

#include <array>
#include <utility>

namespace velmaris {

/// The plane of the thermal envelope: U values, door, what lies above and below, absorption, heat bridges.
struct E_Daemmung {
    explicit E_Daemmung(Sitzung& sitzung);

    Feld ebene{"E_Daemmung"};

    Eingabefeld kwn_sb{"kwn_sb"}, kws_sb{"kws_sb"}, kwo_sb{"kwo_sb"}, kww_sb{"kww_sb"};
    Eingabefeld kd_sb{"kd_sb"}, kk_sb{"kk_sb"}, ft_sb{"ft_sb"}, kt_sb{"kt_sb"};
    Eingabefeld absfaktor_sb{"absfaktor_sb"};
    Anzeige kwn_anz{"kwn_anz"}, kws_anz{"kws_anz"}, kwo_anz{"kwo_anz"}, kww_anz{"kww_anz"};
    Anzeige kd_anz{"kd_anz"}, kk_anz{"kk_anz"}, ft_anz{"ft_anz"}, kt_anz{"kt_anz"};
    Anzeige absfaktor_anz{"absfaktor_anz"};

    Auswahlliste ugd{"ugd", "ugd_typ"};       ///< what lies below the lower floor
    Auswahlliste ogd{"ogd", "Dachraum_typ"};  ///< what lies above the upper closure, without heated attic
    Auswahlliste ogd_Dach{"ogd_Dach"};        ///< the one fixed entry with heated attic
    Pruefeld cbk_hDach{"cbk_hDach"};          ///< checked = ventilated roof = record 0
    Optionsgruppe Waermebruecken_opt{"Waermebruecken_opt", 1, 3};
    Anzeige liste2{"liste2"};  ///< caption of the upper closure

    /// Shows the panel of the upper closure for a heated attic or without.
    void dachgeschoss_zeigen(bool beheizt);

    /// Moves all controls to the record's state.
    void eingaben_anzeigen();

  private:
    [[nodiscard]] std::array<std::pair<Eingabefeld*, Anzeige*>, 9> schieber();
    void fuellen();

    Sitzung& s_;
};

}  // namespace velmaris
