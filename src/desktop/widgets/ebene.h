#pragma once

#include "desktop/platform/massstab.h"
#include "desktop/widgets/ebenenbau.h"

#include <QSize>

class QWidget;

namespace velmaris {

/// The empty window of a plane: its size, its font, bound to the plane's own record, hidden with it.
[[nodiscard]] QWidget* ebene_bauen(Feld& feld, QSize groesse, const Ansichtsmittel& mittel, QWidget* eltern);

/// The layout of a plane whose frames stand one below the other.
[[nodiscard]] QVBoxLayout* ebenenspalte(QWidget& ebene);

/// Puts a widget at a place on a plane or over a picture, in units; a width or height of 0 leaves the widget
/// its own.
template <typename Fenster>
Fenster* setze(Fenster* fenster, QWidget* auf, int x, int y, int breite = 0, int hoehe = 0) {
    fenster->setParent(auf);
    const QSize eigene = fenster->sizeHint();
    lege(*fenster, QRectF(x, y, breite > 0 ? breite : eigene.width(), hoehe > 0 ? hoehe : eigene.height()));
    return fenster;
}

}  // namespace velmaris
