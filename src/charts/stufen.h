#pragma once

#include <array>
#include <cstddef>

namespace velmaris {

/// One row of a step table: the step of the scale while the largest value is below the limit.
struct Stufe {
    double unter;
    double schritt;
};

/// The step of a scale by the largest value; `sonst` is for values that no row takes.
template <std::size_t n>
struct Stufentabelle {
    std::array<Stufe, n> stufen;
    double sonst;

    [[nodiscard]] double schritt(double groesster) const {
        for (const Stufe& stufe : stufen) {
            if (groesster < stufe.unter) return stufe.schritt;
        }
        return sonst;
    }
};

inline constexpr std::array<Stufe, 8> stufen_bis_500{
    {{5, 1}, {10, 2}, {25, 5}, {50, 10}, {75, 15}, {100, 20}, {250, 50}, {500, 100}}};

/// Year balance of the heating plane.
inline constexpr Stufentabelle<13> stufen_heizjahr{{{{10, 2},
                                                     {25, 5},
                                                     {50, 10},
                                                     {75, 15},
                                                     {100, 20},
                                                     {250, 50},
                                                     {500, 100},
                                                     {750, 150},
                                                     {1000, 200},
                                                     {2500, 500},
                                                     {5000, 1000},
                                                     {7500, 1500},
                                                     {10000, 2000}}},
                                                   10000};

/// Monthly heat balance and monthly gains.
inline constexpr Stufentabelle<8> stufen_heizmonat{stufen_bis_500, 1000};

/// Monthly heat and cooling demand.
inline constexpr Stufentabelle<8> stufen_bedarfsmonat{stufen_bis_500, 500};

/// Yearly heat and cooling demand and yearly gains.
inline constexpr Stufentabelle<11> stufen_bedarfsjahr{{{{5, 1},
                                                        {10, 2},
                                                        {25, 5},
                                                        {50, 10},
                                                        {75, 15},
                                                        {100, 20},
                                                        {250, 50},
                                                        {500, 100},
                                                        {750, 150},
                                                        {1000, 200},
                                                        {2500, 500}}},
                                                      2500};

/// Hours of overheating per day.
inline constexpr Stufentabelle<5> stufen_tagesstunden{{{{4, 1}, {8, 2}, {12, 3}, {16, 4}, {20, 5}}}, 6};

/// Cooling degree hours of the month; of the year, where the step goes from 500 straight to 5000.
inline constexpr Stufentabelle<10> stufen_gradstunden_monat{{{{5, 1},
                                                              {10, 2},
                                                              {25, 5},
                                                              {50, 10},
                                                              {100, 20},
                                                              {250, 50},
                                                              {500, 100},
                                                              {1000, 200},
                                                              {2500, 500},
                                                              {5000, 1000}}},
                                                            2000};
inline constexpr Stufentabelle<9> stufen_gradstunden_jahr{
    {{{5, 1}, {10, 2}, {25, 5}, {50, 10}, {100, 20}, {250, 50}, {500, 100}, {1000, 200}, {2500, 500}}}, 5000};

/// End and primary energy by month, three steps to the axis.
inline constexpr Stufentabelle<10> stufen_energiemonat{{{{30, 10},
                                                         {60, 20},
                                                         {150, 50},
                                                         {300, 100},
                                                         {600, 200},
                                                         {1500, 500},
                                                         {3000, 1000},
                                                         {6000, 2000},
                                                         {15000, 5000},
                                                         {30000, 10000}}},
                                                       50000};

}  // namespace velmaris
