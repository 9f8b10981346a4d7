#include "desktop/platform/qt_drucker.h"
#include "desktop/platform/qt_text.h"
#include "desktop/platform/stil.h"
#include "desktop/views/ansichten.h"
#include "desktop/widgets/nebenfenster.h"
#include "language/beschriftungen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace velmaris {
namespace {

constexpr int mindestbreite = 460;
constexpr int knopfbreite = 90;

/// An empty dialog, as large as what it holds, with a column for that.
Nebenfenster* dialog(const char* name, const Ansichtsmittel& mittel, Knopf& schliessen, QWidget* eltern) {
    auto* fenster = new Nebenfenster(
        mittel.wache, [&schliessen] { schliessen.druecke(); }, eltern);
    fenster->setWindowModality(Qt::ApplicationModal);
    fenster->setWindowTitle(qtext(beschriftung(name, fenstertitel, mittel.sprache)));
    auto* spalte = new QVBoxLayout(fenster);
    spalte->setSpacing(mass::gruppenabstand);
    spalte->setSizeConstraint(QLayout::SetFixedSize);
    return fenster;
}

/// A text that wraps, in a frame of which it takes the width.
QLabel* umbrechend(QLabel* schild) {
    schild->setWordWrap(true);
    return schild;
}

QGroupBox* druckerrahmen(Drucken& drucken, const Ebenenbau& bau) {
    QGroupBox* rahmen = bau.rahmen("Frame1");
    auto* reihe = new QHBoxLayout(rahmen);
    reihe->setContentsMargins(mass::rand, mass::zeilenabstand, mass::rand, mass::rand);
    reihe->addWidget(umbrechend(bau.anzeige(drucken.DruckerName)), 1);
    QPushButton* aendern = bau.knopf(drucken.Command3);
    aendern->setMinimumWidth(knopfbreite);
    reihe->addWidget(aendern);
    return rahmen;
}

QGroupBox* ausgabenrahmen(Drucken& drucken, const Ebenenbau& bau) {
    QGroupBox* rahmen = bau.rahmen("Frame2");
    auto* spalte = new QVBoxLayout(rahmen);
    spalte->setContentsMargins(mass::rand, mass::zeilenabstand, mass::rand, mass::rand);
    for (int i = 1; i <= druckausgaben; ++i)
        spalte->addWidget(bau.pruefung(drucken.Druckausgabe(i)));
    return rahmen;
}

/// Buttons at the right of a row, the first of them pressed by Enter.
QHBoxLayout* knopfreihe(QWidget* links, QPushButton* ja, QPushButton* nein) {
    auto* reihe = new QHBoxLayout;
    reihe->addWidget(links, 1);
    ja->setDefault(true);
    for (QPushButton* knopf : {ja, nein}) {
        knopf->setMinimumWidth(knopfbreite);
        reihe->addWidget(knopf);
    }
    return reihe;
}

QWidget* druckerwahl_ansicht(Druckerwahl& wahl, const Ansichtsmittel& mittel, QWidget* eltern) {
    Nebenfenster* fenster = dialog("Druckerwahl", mittel, wahl.Abbrechen, eltern);
    const Ebenenbau bau(*fenster, "Druckerwahl", mittel);
    auto* spalte = static_cast<QVBoxLayout*>(fenster->layout());
    QGroupBox* rahmen = bau.rahmen("Frame1");
    rahmen->setMinimumWidth(mindestbreite);
    spalte->addWidget(rahmen);
    auto* innen = new QVBoxLayout(rahmen);
    innen->setContentsMargins(mass::rand, mass::zeilenabstand, mass::rand, mass::rand);
    innen->addWidget(bau.liste(wahl.Druckerliste, bau.text("Frame1")));
    spalte->addLayout(knopfreihe(umbrechend(bau.anzeige(wahl.Hinweis)), bau.knopf(wahl.OK_Button),
                                 bau.knopf(wahl.Abbrechen)));
    mittel.binder.binde(static_cast<QWidget&>(*fenster), wahl.fenster);
    return fenster;
}

}  // namespace

QWidget* druck_ansicht(Drucken& drucken, const Ansichtsmittel& mittel, QWidget* eltern) {
    Nebenfenster* fenster = dialog("Drucken", mittel, drucken.Command2, eltern);
    const Ebenenbau bau(*fenster, "Drucken", mittel);
    auto* spalte = static_cast<QVBoxLayout*>(fenster->layout());
    spalte->addWidget(druckerrahmen(drucken, bau));
    QGroupBox* ausgaben = ausgabenrahmen(drucken, bau);
    ausgaben->setMinimumWidth(mindestbreite);
    spalte->addWidget(ausgaben);
    QLabel* unten = umbrechend(bau.anzeige(drucken.DruckerNameUnten));
    spalte->addLayout(knopfreihe(unten, bau.knopf(drucken.Command1), bau.knopf(drucken.Command2)));
    drucken.dokument = qt_drucker;
    druckerwahl_ansicht(drucken.wahl, mittel, fenster);
    mittel.binder.binde(static_cast<QWidget&>(*fenster), drucken.fenster);
    return fenster;
}

}  // namespace velmaris
