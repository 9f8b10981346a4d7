#include "desktop/widgets/scrollleiste.h"

#include <QWheelEvent>

namespace velmaris {

Scrollleiste::Scrollleiste(Qt::Orientation richtung, QWidget* eltern) : QScrollBar(richtung, eltern) {
    setFocusPolicy(Qt::WheelFocus);
    setContextMenuPolicy(Qt::NoContextMenu);
    setInvertedControls(richtung == Qt::Vertical);
    connect(this, &QAbstractSlider::actionTriggered, this, &Scrollleiste::grosser_schritt);
}

void Scrollleiste::schritte(int klein, int gross) {
    setSingleStep(klein);
    setPageStep(gross);
    gross_ = gross;
}

/// The base class knows no negative page steps; it lets the slider position be corrected before it counts.
void Scrollleiste::grosser_schritt(int aktion) {
    if (aktion == SliderPageStepAdd) setSliderPosition(value() + gross_);
    if (aktion == SliderPageStepSub) setSliderPosition(value() - gross_);
}

void Scrollleiste::wheelEvent(QWheelEvent* ereignis) {
    constexpr int raste = QWheelEvent::DefaultDeltasPerStep;
    setFocus(Qt::MouseFocusReason);
    const QPoint drehung = ereignis->angleDelta();
    raddrehung_ += drehung.y() != 0 ? drehung.y() : -drehung.x();
    const int rasten = raddrehung_ / raste;
    raddrehung_ -= rasten * raste;
    setValue(value() + (invertedControls() ? -rasten : rasten) * singleStep());
    ereignis->accept();
}

}  // namespace velmaris
