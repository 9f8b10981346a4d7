#pragma once

#include <QScrollBar>

class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace velmaris {

/// The widget of a scroll field: a scroll bar that takes the focus, whose large step may be
/// negative (a click beside the thumb then moves against the click), and whose wheel moves by the small step.
/// Up, Page Up and the wheel away from the user lead to the upper end of a vertical bar and to the right end
/// of a horizontal one. Shift with an arrow or an arrow key, and Ctrl with the wheel, move by one position.
/// Escape ends a drag of the thumb where it began.
class Scrollleiste : public QScrollBar {
    Q_OBJECT

  public:
    explicit Scrollleiste(Qt::Orientation richtung, QWidget* eltern = nullptr);

    /// Steps in positions; `gross` may be negative.
    void schritte(int klein, int gross);

  protected:
    void keyPressEvent(QKeyEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
    void wheelEvent(QWheelEvent* ereignis) override;

  private:
    void grosser_schritt(int aktion);
    void zug_abbrechen();

    int klein_ = 1;
    int gross_ = 1;
    int vor_dem_zug_ = 0;
    int raddrehung_ = 0;  ///< part of a wheel notch not used yet, in eighths of a degree
};

}  // namespace velmaris
