#include "desktop/widgets/tippfenster.h"

#include "desktop/widgets/schwebeschild.h"

#include <QLabel>
#include <QVBoxLayout>

namespace velmaris {

Tippfenster::Tippfenster(QWidget* ebene) : QFrame(ebene), text_(new QLabel(this)) {
    setFrameShape(QFrame::Box);
    tippfarben(*this);
    auto* spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(6, 4, 6, 4);
    spalte->addWidget(text_);
}

QSize Tippfenster::sizeHint() const {
    return layout()->totalSizeHint();
}

void Tippfenster::moveEvent(QMoveEvent* ereignis) {
    QFrame::moveEvent(ereignis);
    hineinruecken(*this);
}

void Tippfenster::resizeEvent(QResizeEvent* ereignis) {
    QFrame::resizeEvent(ereignis);
    hineinruecken(*this);
}

void Tippfenster::showEvent(QShowEvent* ereignis) {
    QFrame::showEvent(ereignis);
    raise();
    hineinruecken(*this);
}

}  // namespace velmaris
