#pragma once

#include "desktop/widgets/taste.h"

namespace velmaris {

/// A button of the bars that choose the plane on show. It is disabled while its plane shows, and then looks
/// chosen rather than dead; a press on it goes to the bar.
class Ebenenknopf : public Taste {
    Q_OBJECT

  public:
    explicit Ebenenknopf(QWidget* leiste);

    /// True while a key works at the button, as opposed to the mouse.
    [[nodiscard]] bool getastet() const { return getastet_; }

    /// Draws the chosen button as the one with the focus, which it cannot have itself.
    void betone(bool an);

  protected:
    bool event(QEvent* ereignis) override;
    void paintEvent(QPaintEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void keyReleaseEvent(QKeyEvent* ereignis) override;

  private:
    bool getastet_ = false;
    bool betont_ = false;
};

}  // namespace velmaris
