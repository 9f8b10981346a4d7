#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>

class QWidget;

namespace velmaris {

/// Scale of the window that a widget belongs to: its pixels to the units in which all windows are built. A
/// window without a scale of its own has that of the window over which it stands, and 1 without one.
[[nodiscard]] double massstab(const QWidget& fenster);

/// Gives a window its scale. What stands on it does not follow by itself.
void massstab_setzen(QWidget& fenster, double massstab);

/// The largest scale, at least 1, at which something of that size in units fits a place of so many pixels.
[[nodiscard]] double passender_massstab(QSize pixel, QSize einheiten);

/// The main window in units, with the menu above.
inline constexpr QSize hauptfenstergroesse(800, 567);

/// The scale at which the main window takes a good part of the screen of a widget: what fits with room for
/// the frame around it, in quarters.
[[nodiscard]] double erster_massstab(const QWidget& fenster);

/// What the screen of a window has room for, without the window's frame and the desktop's bars.
[[nodiscard]] QSize bildschirmplatz(const QWidget& fenster);

/// Lengths in units as whole pixels. They are cut off, so that parts that fit beside each other at 1 do so at
/// every scale.
[[nodiscard]] int in_pixeln(double massstab, double einheiten);
[[nodiscard]] QSize in_pixeln(double massstab, QSizeF einheiten);

/// The same at the scale of the window around a widget.
[[nodiscard]] int in_pixeln(const QWidget& fenster, double einheiten);

/// The size in units that `in_pixeln` has made so many pixels.
[[nodiscard]] QSize in_einheiten(double massstab, QSize pixel);

/// Pixels of a font that is `einheiten` high. Never more than the scale asks for, so that a text that fits
/// its place at 1 fits it at every scale.
[[nodiscard]] int schriftpixel(double einheiten, double massstab);

/// Gives a dialog of the toolkit over a window the letters of that window's scale.
void schrift_anpassen(QWidget& dialog);

/// Puts a widget at a place in units and keeps that place for other scales; without a size it takes the one
/// that its text needs.
void lege(QWidget& fenster, const QRectF& einheiten);
void lege(QWidget& fenster, const QPointF& einheiten);

/// Puts a widget that has been laid by its place to it anew, for the scale of now; others stay.
void neu_legen(QWidget& fenster);

}  // namespace velmaris
