#include "desktop/widgets/gitterzelle.h"

#include "desktop/platform/massstab.h"
#include "desktop/platform/stil.h"

#include <QPainter>

namespace velmaris {

Gitterzelle::Gitterzelle(bool kopf, QWidget* eltern) : QLabel(eltern), kopf_(kopf) {
    constexpr int hoehe = 18;
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setFixedHeight(hoehe);
    setAlignment(kopf ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
}

void Gitterzelle::paintEvent(QPaintEvent*) {
    const int rand = in_pixeln(*this, 4);
    QPainter maler(this);
    maler.fillRect(rect(), kopf_ ? QColor(stilfarben::rille) : palette().color(QPalette::Base));
    maler.fillRect(QRect(width() - 1, 0, 1, height()), QColor(stilfarben::tafelrand));
    maler.fillRect(QRect(0, height() - 1, width(), 1), QColor(stilfarben::tafelrand));
    const QRect feld = rect().adjusted(rand, 0, -rand, -1);
    const QString zeile = text().replace(u'\t', u' ');
    maler.setPen(palette().color(foregroundRole()));
    maler.drawText(feld, static_cast<int>(alignment()) | Qt::TextSingleLine,
                   fontMetrics().elidedText(zeile, Qt::ElideRight, feld.width()));
}

}  // namespace velmaris
