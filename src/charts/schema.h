#pragma once

#include "project/c_glob.h"
#include "toolkit/fehler.h"
#include "toolkit/zeichenflaeche.h"

#include <initializer_list>
#include <optional>
#include <string>

namespace velmaris {

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
[[nodiscard]] std::string beschriftung(const Projekt& p, const Wort& text);

/// The units above the axes.
[[nodiscard]] std::string einheit_je_monat(const Projekt& p);
[[nodiscard]] std::string einheit_je_jahr(const Projekt& p);

}  // namespace velmaris
