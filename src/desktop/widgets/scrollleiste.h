#pragma once

#include <QScrollBar>

class QWheelEvent;

namespace velmaris {

/// The widget of a scroll field: a scroll bar that takes the focus, whose large step may be
/// negative (a click beside the thumb then moves against the click), and whose wheel moves by the small step.
/// Up, Page Up and the wheel away from the user lead to the upper end of a vertical bar and to the right end
/// of a horizontal one.
class Scrollleiste : public QScrollBar {
    Q_OBJECT

  public:
    explicit Scrollleiste(Qt::Orientation richtung, QWidget* eltern = nullptr);

    /// Steps in positions; `gross` may be negative.
    void schritte(int klein, int gross);

  protected:
    void wheelEvent(QWheelEvent* ereignis) override;

  private:
    void grosser_schritt(int aktion);

    int gross_ = 1;
    int raddrehung_ = 0;  ///< part of a wheel notch not used yet, in eighths of a degree
};

}  // namespace velmaris
