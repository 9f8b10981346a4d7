#include "toolkit/wertetafel.h"

#include "toolkit/zahlen.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

TEST(Wertetafel, WirdZurTabelleFuerEineTabellenkalkulation) {
    dezimalzeichen_setzen(',');
    const Wertetafel monate{.titel = "Bedarf",
                            .zeilenkopf = {"Tag", "Stunde"},
                            .spalten = {{"Heizen", "kWh"}, {"Anteil"}},
                            .zeilen = {{{"1", "2"}, {0.1F, -1500}}, {{"1", "3"}, {1.0 / 3}}},
                            .sprache = "d"};
    EXPECT_EQ(tabulatortext(monate),
              "Tag\tStunde\tHeizen [kWh]\tAnteil\n1\t2\t0,1\t-1500\n1\t3\t0,33333334\t\n");
    const Wertetafel figuren{.titel = "Klima",
                             .zeilenkopf = {"quantity"},
                             .spalten = {{"value"}},
                             .zeilen = {{{"mean"}, {9.5}, "°C"}, {{"month"}, {}, {}, "July"}},
                             .sprache = "e"};
    EXPECT_EQ(tabulatortext(figuren), "quantity\tvalue\tunit\nmean\t9,5\t°C\nmonth\tJuly\t\n");
    EXPECT_EQ(wertesatz(figuren), "Klima: mean 9,5 °C, month July");
    dezimalzeichen_setzen('.');
}

/// Each number while there are few of them, rounded to what the ear takes in; or else where they lie.
TEST(Wertetafel, WirdZuEinemSatz) {
    Wertetafel tafel{.titel = "Demand",
                     .zeilenkopf = {"day", "hour"},
                     .spalten = {{"heat", "kWh"}, {"cold", "%"}},
                     .zeilen = {},
                     .sprache = "e"};
    for (int i = 1; i <= 2; ++i)
        tafel.zeilen.push_back({{"3", std::to_string(i)}, {0.126 * i, 0}});
    EXPECT_EQ(
        wertesatz(tafel),
        "Demand: heat: day 3 hour 1 0.13, day 3 hour 2 0.25 kWh; cold: day 3 hour 1 0, day 3 hour 2 0 %");
    for (int i = 3; i <= 13; ++i)
        tafel.zeilen.push_back({{"3", std::to_string(i)}, {i == 4 ? 999.96 : 1.0 * i, i == 9 ? -7.04 : 0}});
    EXPECT_EQ(wertesatz(tafel),
              "Demand: heat from 0.13 (day 3 hour 1) to 1000 (day 3 hour 4) kWh; "
              "cold from -7.0 (day 3 hour 9) to 0 (day 3 hour 1) %");
    EXPECT_EQ(wertesatz({.titel = "Jahr",
                         .zeilenkopf = {},
                         .spalten = {{"Heizen", "kWh"}, {"Stunden", "h"}},
                         .zeilen = {{{}, {41.26, 100}}},
                         .sprache = "d"}),
              "Jahr: Heizen 41.3 kWh, Stunden 100 h");
}

}  // namespace
}  // namespace velmaris
