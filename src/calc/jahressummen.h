#pragma once

#include "project/c_glob.h"
#include "project/feldtabelle.h"

#include <optional>

namespace velmaris {

// What several rooms show of the months and of the year, taken from the results of the last recalculation.
// All sums run in double from January to December over the numbers that the record stores.

/// Sum of a field over the twelve months, in the unit of the field.
template <class Zahl>
[[nodiscard]] double summe_der_monate(const Projekt& p, Zahl Monatswerte::*feld) {
    double summe = 0;
    for (const Monatswerte& monat : p.Monat)
        summe += monat.*feld;
    return summe;
}

/// The year's value of a quantity of the month record, in its unit: the sum, or the mean of the months,
/// rounded at each step as the record's own year sums are. Nothing for a quantity that has none.
[[nodiscard]] std::optional<float> jahreswert(const Projekt& p, const Monatszeile& groesse);

/// Hours of the three operating classes.
struct Betriebsstunden {
    int kalt = 0;     ///< heating
    int komfort = 0;  ///< zero energy
    int heiss = 0;    ///< cooling
};

/// The hours of month m (1..12), and of the twelve months together.
[[nodiscard]] Betriebsstunden betriebsstunden(const Projekt& p, int m);
[[nodiscard]] Betriebsstunden betriebsstunden_im_jahr(const Projekt& p);

/// Mean hours of overheating per day, in month m (1..12) and over the year.
[[nodiscard]] double tagesstunden(const Projekt& p, int m);
[[nodiscard]] double tagesstunden_im_jahr(const Projekt& p);

/// Gains per usable floor, kWh/m2 of a month or of the year.
struct Gewinne {
    double solar_genutzt = 0;
    double solar = 0;
    double intern_genutzt = 0;
    double intern = 0;
};

/// The gains of month m (1..12); those of the year are the sums of the months.
[[nodiscard]] Gewinne gewinne(const Projekt& p, int m);
[[nodiscard]] Gewinne gewinne_im_jahr(const Projekt& p);

/// Primary energy factor of the electricity for cooling, whatever that of other electricity is.
inline constexpr double f_p_Kuehlstrom = 3.0;

/// Cooling demand per usable floor, kWh/m2, of month m (1..12) and of the year.
[[nodiscard]] double monatskuehlbedarf(const Projekt& p, int m);
[[nodiscard]] double jahreskuehlbedarf(const Projekt& p);

/// Electricity for cooling per usable floor, kWh/m2 of a month or of the year.
struct Kuehlenergie {
    double Endenergie = 0;  ///< the cooling demand over `Klimaeffizienz`, which is not 0
    double Primaerenergie = 0;
};

/// The electricity of month m (1..12), and that of the year from the sum of the demands.
[[nodiscard]] Kuehlenergie kuehlenergie(const Projekt& p, int m);
[[nodiscard]] Kuehlenergie kuehlenergie_im_jahr(const Projekt& p);

}  // namespace velmaris
