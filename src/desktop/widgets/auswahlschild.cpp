#include "desktop/widgets/auswahlschild.h"

#include <QMouseEvent>

namespace velmaris {

Auswahlschild::Auswahlschild(QWidget* eltern) : QLabel(eltern) {
    setWordWrap(true);
    setCursor(Qt::PointingHandCursor);
    setMouseTracking(true);
}

void Auswahlschild::hervorheben(bool an) {
    setBackgroundRole(an ? QPalette::Highlight : QPalette::NoRole);
    setForegroundRole(an ? QPalette::HighlightedText : QPalette::NoRole);
    setAutoFillBackground(an);
}

void Auswahlschild::mousePressEvent(QMouseEvent* ereignis) {
    ereignis->accept();
    if (ereignis->button() == Qt::LeftButton && gedrueckt) gedrueckt();
}

void Auswahlschild::mouseMoveEvent(QMouseEvent* ereignis) {
    if (ueberfahren) ueberfahren(ereignis->globalPosition().toPoint());
}

}  // namespace velmaris
