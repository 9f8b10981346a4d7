#pragma once

#include "project/c_glob.h"

namespace velmaris {

/// Sum of a field over the twelve months.
template <class Zahl>
[[nodiscard]] double summe_der_monate(const Projekt& p, Zahl Monatswerte::*feld) {
    double summe = 0;
    for (const Monatswerte& monat : p.Monat)
        summe += monat.*feld;
    return summe;
}

}  // namespace velmaris
