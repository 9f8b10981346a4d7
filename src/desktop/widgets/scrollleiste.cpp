#include "desktop/widgets/scrollleiste.h"

#include <QKeyEvent>
#include <QMouseEvent>
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
    klein_ = klein;
    gross_ = gross;
}

/// The base class knows no negative page steps; it lets the slider position be corrected before it counts.
void Scrollleiste::grosser_schritt(int aktion) {
    if (aktion == SliderPageStepAdd) setSliderPosition(value() + gross_);
    if (aktion == SliderPageStepSub) setSliderPosition(value() - gross_);
}

void Scrollleiste::keyPressEvent(QKeyEvent* ereignis) {
    if (ereignis->key() == Qt::Key_Escape && isSliderDown()) {
        zug_abbrechen();
        return;
    }
    setSingleStep(ereignis->modifiers().testFlag(Qt::ShiftModifier) ? 1 : klein_);
    QScrollBar::keyPressEvent(ereignis);
    setSingleStep(klein_);
}

/// An arrow that stays pressed goes on with the step that it began with.
void Scrollleiste::mousePressEvent(QMouseEvent* ereignis) {
    if (!isSliderDown()) vor_dem_zug_ = value();
    setSingleStep(ereignis->modifiers().testFlag(Qt::ShiftModifier) ? 1 : klein_);
    QScrollBar::mousePressEvent(ereignis);
}

void Scrollleiste::mouseReleaseEvent(QMouseEvent* ereignis) {
    QScrollBar::mouseReleaseEvent(ereignis);
    setSingleStep(klein_);
}

/// The base class ends a drag when the button is let go, and takes no notice of the button after that.
void Scrollleiste::zug_abbrechen() {
    QMouseEvent los(QEvent::MouseButtonRelease, {}, {}, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    mouseReleaseEvent(&los);
    setValue(vor_dem_zug_);
}

void Scrollleiste::wheelEvent(QWheelEvent* ereignis) {
    constexpr int raste = QWheelEvent::DefaultDeltasPerStep;
    setFocus(Qt::MouseFocusReason);
    const QPoint drehung = ereignis->angleDelta();
    raddrehung_ += drehung.y() != 0 ? drehung.y() : -drehung.x();
    const int rasten = raddrehung_ / raste;
    raddrehung_ -= rasten * raste;
    const int schritt = ereignis->modifiers().testFlag(Qt::ControlModifier) ? 1 : klein_;
    setValue(value() + (invertedControls() ? -rasten : rasten) * schritt);
    ereignis->accept();
}

}  // namespace velmaris
