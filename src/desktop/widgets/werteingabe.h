#pragma once

#include "planes/scrolltabelle.h"

#include <QObject>
#include <string>

class QKeyEvent;
class QLabel;
class QLineEdit;

namespace velmaris {

class Schwebeschild;
class Scrollleiste;

/// Lets a value be typed: a double click on the display of a scroll field, or F2 or the first character of
/// a number at the field, opens a line over the display. Enter moves the field to the nearest position, as
/// a drag does; a text that is no value in range stays, with the range told below. Escape and the loss of the
/// focus leave the value. A field that cannot be used does not open.
class Werteingabe : public QObject {
    Q_OBJECT

  public:
    /// Belongs to the field's widget. `ebene` carries the line; display and field stand on it.
    Werteingabe(const Eingabefeld& feld, Scrollleiste& leiste, QLabel& anzeige, QWidget& ebene,
                std::string sprache);

    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

  private:
    void oeffne(const QString& text);
    void lege();
    void uebernimm();
    void schliesse();
    void sage(const QString& einwand);
    [[nodiscard]] bool taste_der_leiste(const QKeyEvent& ereignis);
    [[nodiscard]] bool taste_der_zeile(const QKeyEvent& ereignis);

    const Eingabefeld& feld_;
    Scrollleiste& leiste_;
    QLabel& anzeige_;
    QWidget& ebene_;
    std::string sprache_;
    QLineEdit* zeile_ = nullptr;        ///< while it is open
    Schwebeschild* einwand_ = nullptr;  ///< below the line, from the first objection on
};

}  // namespace velmaris
