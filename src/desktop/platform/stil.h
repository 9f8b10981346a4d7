#pragma once

#include "toolkit/zeichenflaeche.h"

#include <QColor>
#include <QPalette>
#include <filesystem>

namespace velmaris {

/// Measures that all views share, in logical pixels.
namespace mass {
inline constexpr int rand = 8;             ///< between the edge of a window or frame and what it holds
inline constexpr int abstand = 6;          ///< between two controls
inline constexpr int gruppenabstand = 10;  ///< between two frames
inline constexpr int innenrand = 5;        ///< between the last control of a frame and its lower edge
inline constexpr int zeilenabstand = 2;    ///< between two rows of a table
inline constexpr int ebenenabstand = 4;    ///< between two frames of a plane
inline constexpr int liste = 22;           ///< height of a closed list on a plane
inline constexpr int ebenenschrift = 11;   ///< height of the font of the planes, the same as in the charts
inline constexpr int schrift = 12;         ///< height of the window font
inline constexpr int knopf = 22;           ///< height of a button
inline constexpr int leiste = 17;          ///< thickness of a scroll field
}  // namespace mass

/// Colours of the windows beyond the palette's.
namespace stilfarben {
inline constexpr QRgb fenster = 0xFFF0F0F0;    ///< ground of all windows and planes
inline constexpr QRgb tafel = 0xFFFAFAFA;      ///< ground of a panel that stands out
inline constexpr QRgb tafelrand = 0xFFC4C8CC;  ///< frame of panels and charts
inline constexpr QRgb rille = 0xFFE4E7EA;      ///< ground of scroll fields
inline constexpr QRgb griff = 0xFFC3D2E4;      ///< thumb of scroll fields
inline constexpr QRgb griffrand = 0xFF8FA5BF;
inline constexpr QRgb betonung = 0xFF1F5FA8;      ///< what is chosen, focused or marked
inline constexpr QRgb schrift = 0xFF1A1A1A;       ///< texts
inline constexpr QRgb nebenschrift = 0xFF5A6068;  ///< notes and units
}  // namespace stilfarben

/// The grounds on which pictures lie.
inline constexpr Farbe farben_des_fensters{qRed(stilfarben::fenster), qGreen(stilfarben::fenster),
                                           qBlue(stilfarben::fenster)};
inline constexpr Farbe farben_der_tafel{qRed(stilfarben::tafel), qGreen(stilfarben::tafel),
                                        qBlue(stilfarben::tafel)};

/// The light palette of the program.
[[nodiscard]] QPalette palette_hell();

/// Gives the program one look on every desktop: style, palette, fonts. Needs the application object.
void stil_setzen();

/// Letters of the tips that come up beside a control, at a scale.
void tippschrift_setzen(double massstab);

/// The program's picture on all its windows; it is in the folder Grafiken.
void symbol_setzen(const std::filesystem::path& programmordner);

}  // namespace velmaris
