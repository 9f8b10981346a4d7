#pragma once

#include <QPushButton>

namespace velmaris {

/// Whether a key presses what has the focus: Enter or the space bar. One that is held down presses once.
[[nodiscard]] bool ist_drucktaste(const QKeyEvent& taste);

/// A button that Enter presses like the space bar while it has the focus, in every window and on every
/// desktop.
class Taste : public QPushButton {
    Q_OBJECT

  public:
    explicit Taste(QWidget* eltern);

  protected:
    void keyPressEvent(QKeyEvent* ereignis) override;
};

}  // namespace velmaris
