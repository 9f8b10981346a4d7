#pragma once

#include <QPushButton>

namespace velmaris {

/// A button of the bars that choose the plane on show. It is disabled while its plane shows, and then looks
/// chosen rather than dead.
class Ebenenknopf : public QPushButton {
    Q_OBJECT

  public:
    explicit Ebenenknopf(QWidget* leiste);

  protected:
    void paintEvent(QPaintEvent* ereignis) override;
};

}  // namespace velmaris
