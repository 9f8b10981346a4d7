#pragma once

#include "toolkit/wort.h"
#include "toolkit/zeichenflaeche.h"

#include <initializer_list>
#include <string>

namespace velmaris {

/// A surface with white background and the one colour of the diagram's bands. White paint on it is the
/// eraser.
struct Sankeyblatt {
    Zeichenflaeche& bild;
    Farbe Bandfarbe;
};

/// Runs of a diagram are laid out in whole pixels; all corners below are rounded to them. A surface that
/// takes outlines gets clean shapes instead of the pixels told here, in the same place.

/// Size of the surface of a diagram, on which all its labels have room, pixels.
inline constexpr double sankey_breite = 440;
inline constexpr double sankey_hoehe = 232;

/// What both diagrams name.
namespace sankeynamen {
inline constexpr Wort primaer{"Primärenergiebedarf", "primary energy demand"};
inline constexpr Wort umwandlung{"Umwandlungs- und Transportverluste",
                                 "losses for transformation and transport"};
}  // namespace sankeynamen

/// Energy per pixel if `wert` has the height of the surface, less 50 pixels and the margin.
[[nodiscard]] double Sankey_Massstab(const Zeichenflaeche& bild, double wert, double rand);

/// A line of one pixel width, its last pixel included.
void Sankey_Linie(Zeichenflaeche& bild, double x1, double y1, double x2, double y2, Farbe farbe);

/// A triangle of one-pixel lines on the segment from (a, b) to (c, d): in the band's colour the tip of an
/// arrow, in white the notch of a tail. It points to the right on a vertical segment given from below,
/// downward on a horizontal one given from the left, upward on one given from the right.
void Sankey_Spitze(Zeichenflaeche& bild, double a, double b, double c, double d, Farbe farbe);

/// A bend: a ring from `radius` to `radius` + `breite` between two angles in degrees, counter-clockwise from
/// the right. On pixels it is a pie with a white disk over its inside, which erases what lies under it.
void Sankey_Bogen(const Sankeyblatt& blatt, int cx, int cy, double winkel1, double winkel2, int breite,
                  int radius);

/// `n` + 1 lines, each a pixel above the other, the lowest from (x1, y1) to (x2, y2).
void Sankey_Schraegband(const Sankeyblatt& blatt, double x1, double y1, double x2, double y2, int n);

/// The way of a band aside: over 30 pixels along it shifts by 10 across, by two arcs that touch each other.
struct Sankey_Schwung {
    int radius;     ///< inner radius of both arcs; not above 0 for a band of 49 pixels and more, too wide to
                    ///< bend
    double winkel;  ///< length of each arc, degrees
};

inline constexpr int schwung_laenge = 30;
inline constexpr int schwung_versatz = 10;

/// The arcs for a band of that width in pixels.
[[nodiscard]] Sankey_Schwung schwung(int breite);

/// One end of a swing: the lower edge of the band.
struct Sankey_Ort {
    int x;
    int y;
};

/// A band of width `breite` that swings between two places `schwung_laenge` and `schwung_versatz` apart. The
/// arc at `erster` is drawn first; a band too wide to bend becomes a slanted one.
void Sankey_Schwungband(const Sankeyblatt& blatt, Sankey_Ort erster, Sankey_Ort zweiter, int breite);

/// A value as all labels show it, with its unit.
[[nodiscard]] std::string Sankey_Wert(double wert);

/// How a label stands to its x coordinate.
enum class Buendig { links, mitte, rechts };

/// Height of a label's line, pixels.
inline constexpr double sankey_zeile = 12;

/// Prepares the surface: cleared, with the diagrams' font.
void Sankey_anfangen(Zeichenflaeche& bild);

/// Lines of text below each other from y on, each set to x on its own. None begins left of the surface.
void Sankey_Text(Zeichenflaeche& bild, Buendig buendig, double x, double y,
                 std::initializer_list<std::string> zeilen);

}  // namespace velmaris
