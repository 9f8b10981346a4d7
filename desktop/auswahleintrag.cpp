#include "desktop/auswahleintrag.h"

#include <QEnterEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace velmaris {

Auswahleintrag::Auswahleintrag(QWidget* liste) : QLabel(liste) {
    setWordWrap(true);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
}

void Auswahleintrag::mousePressEvent(QMouseEvent* ereignis) {
    ereignis->accept();
    if (ereignis->button() == Qt::LeftButton && gewaehlt) gewaehlt();
}

void Auswahleintrag::keyPressEvent(QKeyEvent* ereignis) {
    switch (ereignis->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            if (gewaehlt) gewaehlt();
            break;
        case Qt::Key_Down:
            focusNextChild();
            break;
        case Qt::Key_Up:
            focusPreviousChild();
            break;
        default:
            QLabel::keyPressEvent(ereignis);
    }
}

void Auswahleintrag::enterEvent(QEnterEvent*) {
    hervorheben(true);
}

void Auswahleintrag::leaveEvent(QEvent*) {
    hervorheben(hasFocus());
}

void Auswahleintrag::focusInEvent(QFocusEvent* ereignis) {
    QLabel::focusInEvent(ereignis);
    hervorheben(true);
}

void Auswahleintrag::focusOutEvent(QFocusEvent* ereignis) {
    QLabel::focusOutEvent(ereignis);
    hervorheben(underMouse());
}

void Auswahleintrag::hervorheben(bool an) {
    setBackgroundRole(an ? QPalette::Highlight : QPalette::NoRole);
    setForegroundRole(an ? QPalette::HighlightedText : QPalette::NoRole);
    setAutoFillBackground(an);
}

}  // namespace velmaris
