#pragma once

#include "energy/katalog_werte.h"
#include "project/c_glob.h"

namespace velmaris {

/// End and primary energy of the year from the heat demand `qhs_sum`, for the heat supply of the record:
/// writes `q_HE_Energietraeger`, `q_HE_Strom`, `q_PE_Energietraeger` and `q_PE_Strom`, and raises a `qhs_sum`
/// below 1E-10 to that number. Returns the characteristic values used; below 0.1 kWh/(m2 a) of heat demand
/// the supply has no losses and needs no auxiliary energy. Errors as in `kombination_pruefen`.
Kennwerte energ_refresh(Projekt& p);

/// What `qhs_sum` holds after `energ_refresh` in a building that needs no heat, so that a division by it
/// stays defined; kWh/(m2 a).
inline constexpr float kein_heizbedarf = 1E-10F;

/// True for a building that needs no heat in the year.
[[nodiscard]] bool ohne_heizbedarf(const Projekt& p);

/// The heat demand of the year, kWh/(m2 a): 0 in a building that needs none.
[[nodiscard]] double heizwaermebedarf(const Projekt& p);

/// Share of month m (1..12) in the year's heat demand; 0 in a building that needs none, where the months hold
/// nothing but what rounding left.
[[nodiscard]] double heizanteil(const Projekt& p, int m);

/// End and primary energy by month, kWh/(m2 month).
struct Monatsenergie {
    Reihe<float, 1, monate> E;  ///< end energy of the carrier, with an electric carrier of all electricity
    Reihe<float, 1, monate> H;  ///< end energy of the auxiliary electricity, 0 with an electric carrier
    Reihe<float, 1, monate> P;  ///< primary energy that belongs to E
    Reihe<float, 1, monate> Q;  ///< primary energy that belongs to H
};

/// The year's energy spread over the months in proportion to their heat demand; all 0 in a building that
/// needs no heat. Runs on the results of `energ_refresh`.
[[nodiscard]] Monatsenergie monatswerte(const Projekt& p);

}  // namespace velmaris
