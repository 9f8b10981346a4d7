#pragma once

#include <QLabel>

namespace velmaris {

/// A cell of a grid of texts: a line at its right and lower edge, a text that is too long ends with an
/// ellipsis. Its width does not follow the text.
class Gitterzelle : public QLabel {
    Q_OBJECT

  public:
    /// A cell of the head has a ground of its own.
    Gitterzelle(bool kopf, QWidget* eltern);

  protected:
    void paintEvent(QPaintEvent* ereignis) override;

  private:
    bool kopf_;
};

}  // namespace velmaris
