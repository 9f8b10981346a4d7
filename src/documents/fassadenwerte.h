#pragma once

#include "project/c_glob.h"
#include "project/wandseite.h"
#include "toolkit/wort.h"

namespace velmaris {

/// What the documents call the facades over columns, groups and bars.
inline constexpr JeWandseite<Wort> fassadennamen{
    {{{"Nord", "North"}, {"Süd", "South"}, {"Ost", "East"}, {"West", "West"}}}};

/// Solar gains and transmission losses of the windows of each facade, kWh/a.
[[nodiscard]] inline JeWandseite<double> fenstergewinne(const Projekt& p) {
    return {{{p.Fenstergewinn_N, p.Fenstergewinn_S, p.Fenstergewinn_O, p.Fenstergewinn_W}}};
}
[[nodiscard]] inline JeWandseite<double> fensterverluste(const Projekt& p) {
    return {{{p.Fensterverlust_N, p.Fensterverlust_S, p.Fensterverlust_O, p.Fensterverlust_W}}};
}

}  // namespace velmaris
