#pragma once

#include "desktop/platform/fehlerwache.h"
#include "desktop/widgets/binde.h"
#include "planes/scrolltabelle.h"
#include "project/sitzung.h"
#include "toolkit/felder.h"

#include <QEvent>
#include <QString>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QVBoxLayout;
class QWidget;

namespace velmaris {

class Bildflaeche;
class Scrollleiste;

/// What all views need beside the records that they show.
struct Ansichtsmittel {
    const Fehlerwache& wache;
    const Binder& binder;
    std::string sprache;  ///< language letter of the captions
    Sitzung& sitzung;
};

/// Makes the widgets of one window, bound and captioned. A widget belongs to the window until a layout or
/// `hinein` puts it elsewhere; widgets get the focus in the order in which they are made.
class Ebenenbau {
  public:
    /// `name` is the window's name in the caption tables.
    Ebenenbau(QWidget& ebene, std::string name, const Ansichtsmittel& mittel)
        : ebene_(ebene), name_(std::move(name)), mittel_(mittel) {}

    /// The caption of a control of this window; a control without one is a std::out_of_range.
    [[nodiscard]] std::string text(std::string_view feld) const;

    /// A fixed caption, named after its control.
    [[nodiscard]] QLabel* wort(std::string_view feld) const;

    /// A unit behind a display: a fixed caption in the colour of notes; a unit of two words is a fraction.
    [[nodiscard]] QLabel* einheit(std::string_view feld) const;
    [[nodiscard]] QLabel* bruch(std::string_view feld) const;

    /// A titled frame, with a fixed title or with one that its record carries.
    [[nodiscard]] QGroupBox* rahmen(std::string_view feld) const;
    [[nodiscard]] QGroupBox* rahmen(Feld& feld) const;
    [[nodiscard]] QGroupBox* rahmen(Anzeige& titel) const;

    /// A label whose text the record carries; `zahl` stands at the right of its place.
    QLabel* anzeige(Anzeige& anzeige) const;
    [[nodiscard]] QLabel* zahl(Anzeige& anzeige) const;

    /// A scroll field; `zweck` is what screen readers call it.
    [[nodiscard]] Scrollleiste* leiste(Scrollfeld& feld, const std::string& zweck,
                                       Qt::Orientation richtung = Qt::Horizontal) const;

    /// The scroll field of an input, whose display can be typed into.
    [[nodiscard]] Scrollleiste* eingabe(Eingabefeld& feld, QLabel& wert, const std::string& zweck,
                                        Qt::Orientation richtung = Qt::Horizontal) const;
    [[nodiscard]] QComboBox* liste(Auswahlliste& liste, const std::string& zweck) const;
    [[nodiscard]] QLineEdit* textfeld(Textfeld& feld, const std::string& zweck) const;

    /// A text of fixed pitch to be read and scrolled, letters of `schriftpixel`; `zweck` as above.
    [[nodiscard]] QPlainTextEdit* textansicht(Anzeige& anzeige, int schriftpixel,
                                              const std::string& zweck) const;
    [[nodiscard]] QCheckBox* pruefung(Pruefeld& feld) const;
    [[nodiscard]] std::vector<QRadioButton*> optionen(Optionsgruppe& gruppe) const;

    /// A button with its record's text, or else with the caption of its name, if there is one.
    QPushButton* knopf(Knopf& knopf) const;

    /// A button that shows one of several panels.
    QPushButton* reiter(Knopf& knopf) const;

    /// A picture with its context menu.
    Bildflaeche* bild(Bildfeld& feld, Farbe hintergrund = farben::weiss) const;

    /// A row of a table of inputs: caption, scroll field, value, unit. An empty caption leaves its column to
    /// the scroll field.
    void zeile(QGridLayout& tabelle, std::string_view beschriftung, Eingabefeld& feld, Anzeige& wert,
               QLabel* einheit) const;

    /// Gives a widget the tip of an input of this window, if there is one. The scroll fields, lists, fields
    /// and buttons made here have theirs; captions and frames get it by this.
    template <typename Fenster>
    Fenster* mit_tipp(Fenster* fenster, std::string_view feld) const {
        tipp(*fenster, feld);
        return fenster;
    }

    [[nodiscard]] const Ansichtsmittel& mittel() const { return mittel_; }

  private:
    void tipp(QWidget& fenster, std::string_view feld) const;
    [[nodiscard]] QLabel* schild(const std::string& text) const;
    [[nodiscard]] QGroupBox* tafel() const;
    QPushButton* beschriftet(QPushButton* neu, Knopf& knopf) const;

    QWidget& ebene_;
    std::string name_;
    const Ansichtsmittel& mittel_;
};

/// The layout of a table of scroll fields inside a frame, with columns of the same widths in all frames.
[[nodiscard]] QGridLayout* schiebertabelle(QGroupBox& rahmen);

/// Widgets one below the other, or side by side, inside a frame.
[[nodiscard]] QVBoxLayout* stapel(QWidget& rahmen);

/// Runs a routine whenever a widget gets an event of that kind, the pointer moves over it, or presses it.
void bei_ereignis(QWidget& fenster, QEvent::Type art, const Fehlerwache& wache, std::function<void()> tu);
void bei_mausbewegung(QWidget& fenster, const Fehlerwache& wache, std::function<void()> tu);
void bei_mausdruck(QWidget& fenster, const Fehlerwache& wache, std::function<void()> tu);

}  // namespace velmaris
