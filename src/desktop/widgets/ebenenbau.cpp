#include "desktop/widgets/ebenenbau.h"

#include "desktop/platform/bruch.h"
#include "desktop/platform/qt_schrift.h"
#include "desktop/platform/qt_text.h"
#include "desktop/platform/stil.h"
#include "desktop/widgets/aufklappliste.h"
#include "desktop/widgets/bildflaeche.h"
#include "desktop/widgets/ebenenknopf.h"
#include "desktop/widgets/eingabetipp.h"
#include "desktop/widgets/mitnehmen.h"
#include "desktop/widgets/scrollleiste.h"
#include "desktop/widgets/taste.h"
#include "desktop/widgets/werteingabe.h"
#include "language/beschriftungen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

namespace velmaris {
namespace {

/// Widths of the columns of a table of scroll fields: caption, (scroll field), value, unit.
constexpr int spalte_wort = 78;
constexpr int spalte_wert = 42;
constexpr int spalte_einheit = 46;

/// Calls a routine on one kind of event of the widget that it belongs to.
class Waechter : public QObject {
  public:
    Waechter(QWidget& fenster, const Fehlerwache& wache, QEvent::Type art, std::function<void()> tu)
        : QObject(&fenster), wache_(wache), art_(art), tu_(std::move(tu)) {
        fenster.installEventFilter(this);
    }

    bool eventFilter(QObject* fenster, QEvent* ereignis) override {
        if (ereignis->type() == art_) wache_.fuehre_aus(tu_);
        return QObject::eventFilter(fenster, ereignis);
    }

  private:
    const Fehlerwache& wache_;
    QEvent::Type art_;
    std::function<void()> tu_;
};

void als_einheit(QLabel& schild) {
    QPalette palette = schild.palette();
    palette.setColor(QPalette::WindowText, QColor(stilfarben::nebenschrift));
    schild.setPalette(palette);
}

}  // namespace

void Ebenenbau::tipp(QWidget& fenster, std::string_view feld) const {
    const Eingabehinweis* hinweis = eingabehinweis(name_, feld);
    if (hinweis != nullptr) eingabetipp(fenster, *hinweis, mittel_.sprache);
}

std::string Ebenenbau::text(std::string_view feld) const {
    return beschriftung(name_, feld, mittel_.sprache);
}

QLabel* Ebenenbau::schild(const std::string& text) const {
    auto* schild = new QLabel(schildtext(text), &ebene_);
    schild->setTextFormat(Qt::PlainText);
    return schild;
}

QLabel* Ebenenbau::wort(std::string_view feld) const {
    QLabel* neu = schild(text(feld));
    neu->setObjectName(qtext(feld));
    return neu;
}

QLabel* Ebenenbau::einheit(std::string_view feld) const {
    QLabel* neu = wort(feld);
    als_einheit(*neu);
    return neu;
}

QLabel* Ebenenbau::bruch(std::string_view feld) const {
    auto* neu = new Bruch(&ebene_);
    neu->setText(qtext(text(feld)));
    neu->setObjectName(qtext(feld));
    als_einheit(*neu);
    return neu;
}

/// A frame whose ground is known to what stands on it.
QGroupBox* Ebenenbau::tafel() const {
    auto* neu = new QGroupBox(&ebene_);
    QPalette farben = neu->palette();
    farben.setColor(QPalette::Window, QColor(stilfarben::tafel));
    neu->setPalette(farben);
    return neu;
}

QGroupBox* Ebenenbau::rahmen(std::string_view feld) const {
    QGroupBox* neu = tafel();
    neu->setTitle(qtext(text(feld)));
    neu->setObjectName(qtext(feld));
    return neu;
}

QGroupBox* Ebenenbau::rahmen(Feld& feld) const {
    QGroupBox* neu = rahmen(feld.name);
    mittel_.binder.binde(static_cast<QWidget&>(*neu), feld);
    return neu;
}

QGroupBox* Ebenenbau::rahmen(Anzeige& titel) const {
    QGroupBox* neu = tafel();
    mittel_.binder.binde(*neu, titel);
    return neu;
}

QLabel* Ebenenbau::anzeige(Anzeige& anzeige) const {
    auto* neu = new QLabel(&ebene_);
    mittel_.binder.binde(*neu, anzeige);
    return neu;
}

QLabel* Ebenenbau::zahl(Anzeige& anzeige) const {
    QLabel* neu = this->anzeige(anzeige);
    neu->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return neu;
}

Scrollleiste* Ebenenbau::leiste(Scrollfeld& feld, const std::string& zweck, Qt::Orientation richtung) const {
    auto* neu = new Scrollleiste(richtung, &ebene_);
    neu->setObjectName(qtext(feld.name));  // screen readers are told what it is by this, from here on
    neu->setAccessibleName(qtext(zweck).simplified());
    mittel_.binder.binde(*neu, feld);
    return neu;
}

Scrollleiste* Ebenenbau::eingabe(Eingabefeld& feld, QLabel& wert, const std::string& zweck,
                                 Qt::Orientation richtung) const {
    Scrollleiste* neu = mit_tipp(leiste(feld, zweck, richtung), feld.name);
    tipp(wert, feld.name);
    new Werteingabe(feld, *neu, wert, ebene_, mittel_.sprache);
    return neu;
}

QComboBox* Ebenenbau::liste(Auswahlliste& liste, const std::string& zweck) const {
    auto* neu = mit_tipp(new Aufklappliste(&ebene_), liste.name);
    neu->setFixedHeight(mass::liste);
    neu->setAccessibleName(qtext(zweck).simplified());
    mittel_.binder.binde(*neu, liste);
    return neu;
}

QLineEdit* Ebenenbau::textfeld(Textfeld& feld, const std::string& zweck) const {
    auto* neu = mit_tipp(new QLineEdit(&ebene_), feld.name);
    neu->setAccessibleName(qtext(zweck).simplified());
    mittel_.binder.binde(*neu, feld);
    return neu;
}

QPlainTextEdit* Ebenenbau::textansicht(Anzeige& anzeige, int schriftpixel, const std::string& zweck) const {
    auto* neu = new QPlainTextEdit(&ebene_);
    QFont schrift(feste_familie());
    schrift.setPixelSize(schriftpixel);
    neu->setFont(schrift);
    neu->setReadOnly(true);
    neu->setUndoRedoEnabled(false);
    neu->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    neu->setLineWrapMode(QPlainTextEdit::NoWrap);
    neu->setTabChangesFocus(true);
    neu->setAccessibleName(qtext(zweck).simplified());
    mittel_.binder.binde(*neu, anzeige);
    return neu;
}

QCheckBox* Ebenenbau::pruefung(Pruefeld& feld) const {
    auto* neu = mit_tipp(new QCheckBox(qtext(text(feld.name)), &ebene_), feld.name);
    mittel_.binder.binde(*neu, feld);
    return neu;
}

std::vector<QRadioButton*> Ebenenbau::optionen(Optionsgruppe& gruppe) const {
    std::vector<QRadioButton*> neue;
    for (int i = gruppe.erste(); i < gruppe.erste() + gruppe.anzahl(); ++i)
        neue.push_back(
            mit_tipp(new QRadioButton(qtext(text(gruppe.name + std::to_string(i))), &ebene_), gruppe.name));
    mittel_.binder.binde(neue, gruppe);
    return neue;
}

QPushButton* Ebenenbau::knopf(Knopf& knopf) const {
    return beschriftet(mit_tipp(new Taste(&ebene_), knopf.name), knopf);
}

QPushButton* Ebenenbau::reiter(Knopf& knopf) const {
    auto* neu = new Ebenenknopf(&ebene_);
    neu->setMinimumHeight(mass::knopf);
    return beschriftet(neu, knopf);
}

QPushButton* Ebenenbau::beschriftet(QPushButton* neu, Knopf& knopf) const {
    for (const Beschriftung& zeile : beschriftungen(name_)) {
        if (zeile.feld == knopf.name) neu->setText(qtext(text(knopf.name)));
    }
    mittel_.binder.binde(*neu, knopf);
    return neu;
}

Bildflaeche* Ebenenbau::bild(Bildfeld& feld, Farbe hintergrund) const {
    auto* neu = new Bildflaeche(feld, mittel_.wache, &ebene_, hintergrund);
    bildmenue(*neu, feld, mittel_);
    return neu;
}

void Ebenenbau::zeile(QGridLayout& tabelle, std::string_view beschriftung, Eingabefeld& feld, Anzeige& wert,
                      QLabel* einheit) const {
    const int reihe = tabelle.rowCount();
    const int anfang = beschriftung.empty() ? 0 : 1;
    auto* rahmen = static_cast<QGroupBox*>(tabelle.parentWidget());
    std::string zweck = utf8(rahmen->title());
    if (beschriftung.empty()) {
        tipp(*rahmen, feld.name);
    } else {
        tabelle.addWidget(mit_tipp(wort(beschriftung), feld.name), reihe, 0);
        zweck += " " + text(beschriftung);
    }
    QLabel* anzeige = zahl(wert);
    tabelle.addWidget(eingabe(feld, *anzeige, zweck), reihe, anfang, 1, 2 - anfang);
    tabelle.addWidget(anzeige, reihe, 2);
    if (einheit != nullptr) tabelle.addWidget(einheit, reihe, 3);
}

QGridLayout* schiebertabelle(QGroupBox& rahmen) {
    auto* tabelle = new QGridLayout(&rahmen);
    tabelle->setContentsMargins(mass::rand, 0, mass::rand, mass::innenrand);
    tabelle->setHorizontalSpacing(mass::abstand);
    tabelle->setVerticalSpacing(mass::zeilenabstand);
    tabelle->setColumnMinimumWidth(0, spalte_wort);
    tabelle->setColumnStretch(1, 1);
    tabelle->setColumnMinimumWidth(2, spalte_wert);
    tabelle->setColumnMinimumWidth(3, spalte_einheit);
    return tabelle;
}

QVBoxLayout* stapel(QWidget& rahmen) {
    auto* neu = new QVBoxLayout(&rahmen);
    neu->setContentsMargins(mass::rand, 0, mass::rand, mass::innenrand);
    neu->setSpacing(mass::zeilenabstand);
    return neu;
}

void bei_ereignis(QWidget& fenster, QEvent::Type art, const Fehlerwache& wache, std::function<void()> tu) {
    new Waechter(fenster, wache, art, std::move(tu));
}

void bei_mausbewegung(QWidget& fenster, const Fehlerwache& wache, std::function<void()> tu) {
    fenster.setMouseTracking(true);
    bei_ereignis(fenster, QEvent::MouseMove, wache, std::move(tu));
}

void bei_mausdruck(QWidget& fenster, const Fehlerwache& wache, std::function<void()> tu) {
    bei_ereignis(fenster, QEvent::MouseButtonPress, wache, std::move(tu));
}

}  // namespace velmaris
