#include "desktop/widgets/ebenenknopf.h"

#include "desktop/platform/stil.h"

#include <QEvent>
#include <QPainter>
#include <QScopedValueRollback>

namespace velmaris {

Ebenenknopf::Ebenenknopf(QWidget* leiste) : Taste(leiste) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    QFont schrift = font();
    schrift.setPixelSize(mass::ebenenschrift);
    setFont(schrift);
}

void Ebenenknopf::betone(bool an) {
    betont_ = an;
    update();
}

/// Other disabled buttons swallow the mouse.
bool Ebenenknopf::event(QEvent* ereignis) {
    if (!isEnabled() && ereignis->type() == QEvent::MouseButtonPress) return false;
    return Taste::event(ereignis);
}

void Ebenenknopf::keyPressEvent(QKeyEvent* ereignis) {
    const QScopedValueRollback merker(getastet_, true);
    Taste::keyPressEvent(ereignis);
}

void Ebenenknopf::keyReleaseEvent(QKeyEvent* ereignis) {
    const QScopedValueRollback merker(getastet_, true);
    Taste::keyReleaseEvent(ereignis);
}

void Ebenenknopf::paintEvent(QPaintEvent*) {
    constexpr qreal rundung = 3;
    const bool gewaehlt = !isEnabled();
    const QColor betonung(stilfarben::betonung);
    QColor grund(stilfarben::tafel);
    if (gewaehlt)
        grund = betonung;
    else if (isDown() || underMouse())
        grund = QColor(stilfarben::griff);
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    const qreal strich = hasFocus() ? 2 : 1, mitte = strich / 2;
    maler.setPen(QPen(hasFocus() ? betonung : QColor(stilfarben::tafelrand), strich));
    maler.setBrush(grund);
    maler.drawRoundedRect(QRectF(rect()).adjusted(mitte, mitte, -mitte, -mitte), rundung, rundung);
    if (betont_) {
        maler.setPen(Qt::white);
        maler.drawRoundedRect(QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5), rundung, rundung);
    }
    maler.setPen(gewaehlt ? QColor(Qt::white) : palette().color(QPalette::Active, QPalette::ButtonText));
    maler.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, text());
}

}  // namespace velmaris
