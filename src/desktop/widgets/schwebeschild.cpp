#include "desktop/widgets/schwebeschild.h"

#include <QToolTip>
#include <algorithm>

namespace velmaris {

void hineinruecken(QWidget& fenster) {
    const QSize platz = fenster.parentWidget()->size() - fenster.size();
    const QPoint ort(std::clamp(fenster.x(), 0, std::max(0, platz.width())),
                     std::clamp(fenster.y(), 0, std::max(0, platz.height())));
    if (ort != fenster.pos()) fenster.move(ort);
}

void tippfarben(QWidget& fenster) {
    QPalette farben = QToolTip::palette();
    farben.setColor(QPalette::Window, farben.color(QPalette::ToolTipBase));
    farben.setColor(QPalette::WindowText, farben.color(QPalette::ToolTipText));
    fenster.setPalette(farben);
    fenster.setAutoFillBackground(true);
}

Schwebeschild::Schwebeschild(QWidget* bild) : QLabel(bild) {
    setFrameShape(QFrame::Box);
    setMargin(2);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    tippfarben(*this);
}

void Schwebeschild::moveEvent(QMoveEvent* ereignis) {
    QLabel::moveEvent(ereignis);
    hineinruecken(*this);
}

}  // namespace velmaris
