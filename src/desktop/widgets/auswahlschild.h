#pragma once

#include <QLabel>
#include <functional>

namespace velmaris {

/// A text of a drop-down list, its closed field or one of its entries: wraps, and is pressed by the mouse.
class Auswahlschild : public QLabel {
    Q_OBJECT

  public:
    explicit Auswahlschild(QWidget* eltern);

    std::function<void()> gedrueckt;
    std::function<void(QPoint)> ueberfahren;  ///< the pointer moves over it, at this place of the screen

    /// Shows the text as the marked one, or as one of the others.
    void hervorheben(bool an);

  protected:
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseMoveEvent(QMouseEvent* ereignis) override;
};

}  // namespace velmaris
