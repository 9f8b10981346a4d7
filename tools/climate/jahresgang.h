#pragma once

#include "project/tabellen.h"

namespace velmaris::klimasatz {

using Monatswerte = Reihe<double, 1, monate>;
using Tageswerte = Reihe<double, 1, tage_im_jahr>;

/// The hours of a year by day 1..365, then hour 1..24 (the hour that ends at h o'clock).
using Stundenwerte = Reihe<Reihe<double, 1, stunden>, 1, tage_im_jahr>;

/// Day of the year 1..335 of the first day of month m.
[[nodiscard]] int erster_tag(int m);

/// Calls `tu(m, n)` for each day n 1..365 with its month m.
template <class Tu>
void fuer_jeden_tag(Tu&& tu) {
    for (int m = 1; m <= monate; ++m) {
        for (int d = 0; d < tage_im_monat[static_cast<std::size_t>(m)]; ++d)
            tu(m, erster_tag(m) + d);
    }
}

/// Mean, and largest less smallest value, of each day's hours.
[[nodiscard]] Tageswerte tagesmittel(const Stundenwerte& werte);
[[nodiscard]] Tageswerte tagesspannen(const Stundenwerte& werte);

[[nodiscard]] Monatswerte monatsmittel(const Tageswerte& tage);

/// The mean of each month and its two neighbours; December and January are neighbours.
[[nodiscard]] Monatswerte mit_nachbarn(const Monatswerte& werte);

/// A smooth course through the year that closes at its end and keeps each month's mean (within 1e-9 of the
/// values' span). Nodes in the middle of the months are joined by cubic pieces and shifted until the means
/// hold; the idea of adjusted nodes, there with straight pieces, is from J. Sheng, F. Zwiers, "An improved
/// scheme for time-dependent boundary conditions in atmospheric general circulation models", Climate Dynamics
/// 14 (1998), 609-613.
[[nodiscard]] Tageswerte jahresgang(const Monatswerte& mittel);

}  // namespace velmaris::klimasatz
