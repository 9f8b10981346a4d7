#pragma once

#include "project/c_glob.h"
#include "toolkit/fehler.h"
#include "toolkit/zeichenflaeche.h"

#include <array>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>

namespace velmaris {

/// Colours of the bars by what they stand for.
namespace balkenfarben {
inline constexpr Farbe transmission{0, 0, 136};
inline constexpr Farbe lueftung{102, 102, 255};
inline constexpr Farbe heizen{255, 0, 0};
inline constexpr Farbe intern{255, 128, 0};
inline constexpr Farbe solar{255, 255, 0};
inline constexpr Farbe komfort{255, 255, 0};
inline constexpr Farbe kuehlen{0, 0, 255};
inline constexpr Farbe solar_ungenutzt{192, 192, 0};
inline constexpr Farbe intern_ungenutzt{200, 99, 0};
}  // namespace balkenfarben

/// The frame that a family of bar charts shares, y coordinates and heights in pixels. The ticks count from
/// the horizontal axis, the bars from their own foot, which need not stand on it.
struct Achsenrahmen {
    double achse;    ///< horizontal axis
    double oben;     ///< upper end of the vertical axis
    double teilung;  ///< height that the ticks share
    double fuss;     ///< foot of the bars
    double balken;   ///< height of a bar as large as the whole scale
};

inline constexpr Achsenrahmen bilanzrahmen{
    .achse = 117, .oben = 17, .teilung = 99, .fuss = 116, .balken = 99};
inline constexpr Achsenrahmen kuehlrahmen{.achse = 110, .oben = 20, .teilung = 89, .fuss = 109, .balken = 89};

/// Right ends of the horizontal axis, and the sizes of the surfaces that the charts fit in, pixels.
inline constexpr double monatsachse = 325;
inline constexpr double jahresachse = 85;
inline constexpr double monatsflaeche_breite = 330;
inline constexpr double jahresflaeche_breite = 96;
inline constexpr double chart_hoehe = 140;

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

/// A chart with its scale: `teile` steps of `schritt` up to the top.
struct Balkendiagramm {
    Zeichenflaeche& bild;
    const Achsenrahmen& rahmen;
    double schritt;
    int teile;

    /// Height of a value's bar top, y in pixels.
    [[nodiscard]] double y(double wert) const { return rahmen.fuss - wert / schritt * rahmen.balken / teile; }

    /// Height of tick i (0..teile), y in pixels.
    [[nodiscard]] double strich(int i) const { return rahmen.achse - i * rahmen.teilung / teile; }
};

/// Clears the surface, sets the charts' font and draws axes, the horizontal one up to `rechts`, ticks and
/// numbers.
void achsen_zeichnen(const Balkendiagramm& diagramm, double rechts);

/// A bar from the foot up to the value.
void balken_zeichnen(const Balkendiagramm& diagramm, double x1, double x2, double wert, Farbe farbe);

/// A piece of a bar.
struct Abschnitt {
    double wert;
    Farbe farbe;
};

/// A bar of pieces upon each other, from the foot upward.
void stapel_zeichnen(const Balkendiagramm& diagramm, double x1, double x2,
                     std::initializer_list<Abschnitt> abschnitte);

/// Left edge of the column of month m (1..12), pixels.
[[nodiscard]] double monatsspalte(int m);

/// The month (1..12) in whose column x lies, nothing outside the twelve.
[[nodiscard]] std::optional<int> spaltenmonat(double x);

/// The short month names with their top at y, each centred under its column.
void monatsnamen_zeichnen(Zeichenflaeche& bild, const Projekt& p, double y = 124);

/// The name of a year chart under its axis.
void jahresname_zeichnen(Zeichenflaeche& bild, const std::string& name);

/// The text for the letters "d" and "e"; empty for any other.
[[nodiscard]] std::string beschriftung(const Projekt& p, const Zweisprachig& text);

/// The units above the axes.
[[nodiscard]] std::string einheit_je_monat(const Projekt& p);
[[nodiscard]] std::string einheit_je_jahr(const Projekt& p);

}  // namespace velmaris
