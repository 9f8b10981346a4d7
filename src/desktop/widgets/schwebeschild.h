#pragma once

#include <QLabel>

namespace velmaris {

/// Moves a widget so that all of it lies inside its parent, as far as it fits.
void hineinruecken(QWidget& fenster);

/// The light colours of a floating text.
void tippfarben(QWidget& fenster);

/// A text that floats over a picture, inside of it.
class Schwebeschild : public QLabel {
    Q_OBJECT

  public:
    explicit Schwebeschild(QWidget* bild);

  protected:
    void moveEvent(QMoveEvent* ereignis) override;
};

}  // namespace velmaris
