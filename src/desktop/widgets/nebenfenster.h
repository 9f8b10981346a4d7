#pragma once

#include "desktop/platform/fehlerwache.h"

#include <QDialog>
#include <functional>

namespace velmaris {

/// A window beside the main window whose record decides whether it is open: the frame's close box and Escape
/// only ask the record. With it the keys go back to the window that it was opened from.
class Nebenfenster : public QDialog {
    Q_OBJECT

  public:
    /// `schliessen` is run by the close box and by Escape.
    Nebenfenster(const Fehlerwache& wache, std::function<void()> schliessen, QWidget* eltern);

    /// Lays the controls out; run with each change of size, where it is set.
    std::function<void(QSize)> anordnen;

    void reject() override;
    void setVisible(bool sichtbar) override;

  protected:
    void resizeEvent(QResizeEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;

  private:
    const Fehlerwache& wache_;
    std::function<void()> schliessen_;
};

}  // namespace velmaris
