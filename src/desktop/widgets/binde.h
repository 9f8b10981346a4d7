#pragma once

#include "desktop/platform/fehlerwache.h"
#include "toolkit/felder.h"
#include "toolkit/textfeld.h"

#include <optional>
#include <span>

class QAbstractButton;
class QAction;
class QCheckBox;
class QComboBox;
class QDialog;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QRadioButton;
class QWidget;

namespace velmaris {

class Scrollleiste;

/// Brings what all records have in common to a widget: usable, shown, and the place if the record has one.
void grundzustand(QWidget& fenster, const Feld& feld);

/// Binds widgets to the records of the planes: the widget gets the record's name and shows its state from
/// then on, what the user does at the widget goes to the record, and a fault of the record's handler to the
/// guard. A record has one widget at a time, and outlives it.
class Binder {
  public:
    /// The guard must outlive all bound widgets.
    explicit Binder(const Fehlerwache& wache) : wache_(&wache) {}

    /// A plane, frame or other widget of which only being shown and being usable matter.
    void binde(QWidget& fenster, Feld& feld) const;

    void binde(Scrollleiste& leiste, Scrollfeld& feld) const;

    /// A text that is no entry stands in the box in place of one.
    void binde(QComboBox& kasten, Auswahlliste& liste) const;

    void binde(QCheckBox& kasten, Pruefeld& feld) const;

    /// One button for each option, in their order; a button's name is the group's with the option's number.
    void binde(std::span<QRadioButton* const> knoepfe, Optionsgruppe& gruppe) const;

    /// A label with a place of its own keeps to it, at its text's size; `pixel_je_einheit` is the scale of
    /// the places.
    void binde(QLabel& schild, Anzeige& anzeige, double pixel_je_einheit = 1) const;

    /// A frame whose title is the text.
    void binde(QGroupBox& rahmen, Anzeige& anzeige) const;

    /// A window whose title is the text.
    void binde(QDialog& fenster, Anzeige& anzeige) const;

    /// A view of a long text, shown from its beginning.
    void binde(QPlainTextEdit& ansicht, Anzeige& anzeige) const;

    void binde(QLineEdit& zeile, Textfeld& feld) const;

    /// A record without a text leaves the button its own.
    void binde(QAbstractButton& schalter, Knopf& knopf) const;

    /// A menu entry, with its check mark where it carries one.
    void binde(QAction& eintrag, Menuepunkt& punkt) const;

  private:
    const Fehlerwache* wache_;
};

/// Position of the scroll field that has the input focus in the window around a widget, nothing if none has.
/// The window keeps its focus while it is not the active one, as after a list that dropped down.
[[nodiscard]] std::optional<int> fokusstellung(const QWidget& fenster);

}  // namespace velmaris
