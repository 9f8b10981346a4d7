#pragma once

#include "project/c_glob.h"

#include <string>

namespace velmaris {

/// What the geometry plane shows of the record, by the names of its display fields, in the language of the
/// record.
struct GeometrieTexte {
    std::string l_anz, b_anz, h_anz, hd_anz, ag_anz;
    std::string f_nfa_anz;       ///< a north or south facade as such, whatever it adjoins
    std::string f_wfa_anz;       ///< a west or east facade as such
    std::string Giebel_anz;      ///< one gable
    std::string dachfläche_anz;  ///< one roof plane
    std::string f_nutz_anz, f_gd_anz, v_luft_anz, v_geb_anz;
};

[[nodiscard]] GeometrieTexte geometrie_texte(const Projekt& p);

/// What the windows plane shows of the record, by the names of its display fields.
struct FensterTexte {
    std::string f_nf_anz, f_wf_anz, f_sf_anz, f_of_anz;
    std::string f_gf_anz;  ///< all windows
    std::string f_vf_anz;  ///< the glazed part of them
    std::string kf_anz;    ///< mean U value; empty without windows
    std::string gfm_anz;   ///< mean g value; empty without windows, and where frames leave no glass
};

[[nodiscard]] FensterTexte fenster_texte(const Projekt& p);

}  // namespace velmaris
