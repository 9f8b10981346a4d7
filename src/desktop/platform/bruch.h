#pragma once

#include <QLabel>

namespace velmaris {

/// A unit as a fraction: the first word of its text over the rest.
class Bruch : public QLabel {
    Q_OBJECT

  public:
    explicit Bruch(QWidget* eltern = nullptr) : QLabel(eltern) {}

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* ereignis) override;
};

}  // namespace velmaris
