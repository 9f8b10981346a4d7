#pragma once

#include "charts/A_Zoom.h"

#include <QDialog>

namespace velmaris {

/// The window of the enlarged temperature chart. It lays its controls out to its size, and closing it by the
/// frame is the same as by its button.
class Zoomfenster : public QDialog {
    Q_OBJECT

  public:
    Zoomfenster(A_Zoom& a, QWidget* eltern);

  protected:
    void resizeEvent(QResizeEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;
    void reject() override;

  private:
    A_Zoom& a_;
};

}  // namespace velmaris
