#include "desktop/platform/bildausgabe.h"

#include "desktop/platform/bilddatei.h"
#include "desktop/platform/qt_flaeche.h"
#include "toolkit/bildmitnahme.h"

#include <QBuffer>
#include <cmath>

namespace velmaris {
namespace {

constexpr double feinheit = 2;  ///< pixels to the unit

}  // namespace

QImage bild_zum_mitnehmen(const Bildfeld& feld) {
    const Einzelbild einzeln = einzelbild(feld);
    const QSize groesse(static_cast<int>(std::ceil(einzeln.breite)),
                        static_cast<int>(std::ceil(einzeln.hoehe)));
    QtFlaeche flaeche(groesse, feinheit, einzeln.hintergrund);
    if (!feld.bild().empty())
        flaeche.hintergrundbild(bild_lesen(feld.bild()), feines_bild_lesen(feld.bild()));
    einzelbild_zeichnen(feld, flaeche);
    return flaeche.bild().copy();
}

QByteArray als_png(const QImage& bild) {
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    return bild.save(&puffer, "PNG") ? bytes : QByteArray();
}

}  // namespace velmaris
