#pragma once

#include <QFrame>

class QLabel;

namespace velmaris {

/// The panel of a floating text. It stays inside its plane, above everything else there.
class Tippfenster : public QFrame {
    Q_OBJECT

  public:
    explicit Tippfenster(QWidget* ebene);

    [[nodiscard]] QLabel* text() const { return text_; }

    /// What frame and text need; a frame alone would ask for its edge only.
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void moveEvent(QMoveEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    void showEvent(QShowEvent* ereignis) override;

  private:
    QLabel* text_;
};

}  // namespace velmaris
