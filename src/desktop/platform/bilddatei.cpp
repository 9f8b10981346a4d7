#include "desktop/platform/bilddatei.h"

#include "toolkit/feinbild.h"

#include <QFileInfo>

namespace velmaris {

QImage bild_lesen(const std::filesystem::path& datei) {
    return QImage(QFileInfo(datei).filePath());
}

QImage feines_bild_lesen(const std::filesystem::path& datei) {
    return bild_lesen(feines_bild(datei)).convertToFormat(QImage::Format_RGB32);
}

QImage bild_in_hoehe(const std::filesystem::path& datei, double hoehe, double verhaeltnis) {
    const int pixel = qRound(hoehe * verhaeltnis);
    QImage bild = bild_lesen(datei);
    if (bild.height() < pixel) {
        const QImage fein = feines_bild_lesen(datei);
        if (!fein.isNull()) bild = fein;
    }
    if (bild.isNull()) return bild;
    bild = bild.scaledToHeight(pixel, Qt::SmoothTransformation);
    bild.setDevicePixelRatio(verhaeltnis);
    return bild;
}

}  // namespace velmaris
