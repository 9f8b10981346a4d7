#pragma once

#include <QLabel>
#include <functional>

namespace velmaris {

/// An entry of a list that is made of labels: wraps long texts, lights up under the pointer and with the
/// focus, and is chosen by a click, Enter or the space bar.
class Auswahleintrag : public QLabel {
    Q_OBJECT

  public:
    explicit Auswahleintrag(QWidget* liste);

    std::function<void()> gewaehlt;

  protected:
    void mousePressEvent(QMouseEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void enterEvent(QEnterEvent* ereignis) override;
    void leaveEvent(QEvent* ereignis) override;
    void focusInEvent(QFocusEvent* ereignis) override;
    void focusOutEvent(QFocusEvent* ereignis) override;

  private:
    void hervorheben(bool an);
};

}  // namespace velmaris
