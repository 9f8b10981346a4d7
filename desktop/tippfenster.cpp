#include "desktop/tippfenster.h"

#include <QLabel>
#include <QToolTip>
#include <QVBoxLayout>
#include <algorithm>

namespace velmaris {

Tippfenster::Tippfenster(QWidget* ebene) : QFrame(ebene), text_(new QLabel(this)) {
    setFrameShape(QFrame::Box);
    setAutoFillBackground(true);
    QPalette farben = QToolTip::palette();
    farben.setColor(QPalette::Window, farben.color(QPalette::ToolTipBase));
    farben.setColor(QPalette::WindowText, farben.color(QPalette::ToolTipText));
    setPalette(farben);
    auto* spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(6, 4, 6, 4);
    spalte->addWidget(text_);
}

void Tippfenster::moveEvent(QMoveEvent* ereignis) {
    QFrame::moveEvent(ereignis);
    hineinruecken();
}

void Tippfenster::showEvent(QShowEvent* ereignis) {
    QFrame::showEvent(ereignis);
    raise();
    hineinruecken();
}

void Tippfenster::hineinruecken() {
    const QSize platz = parentWidget()->size() - size();
    const QPoint ort(std::clamp(x(), 0, std::max(0, platz.width())),
                     std::clamp(y(), 0, std::max(0, platz.height())));
    if (ort != pos()) move(ort);
}

}  // namespace velmaris
