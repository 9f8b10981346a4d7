#include "desktop/platform/qt_text.h"
#include "desktop/platform/stil.h"
#include "desktop/views/ansichten.h"
#include "desktop/widgets/gitterzelle.h"
#include "desktop/widgets/nebenfenster.h"
#include "desktop/widgets/scrollleiste.h"

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

/// What the window takes once all its steps are shown; it has the width of them from the beginning.
constexpr QSize ganze_groesse(1010, 670);

constexpr int spalten_der_tabelle = static_cast<int>(Importvorschau::reihen);

QGridLayout* raster(QGroupBox& rahmen) {
    auto* neu = new QGridLayout(&rahmen);
    neu->setContentsMargins(mass::rand, 0, mass::rand, mass::rand);
    neu->setHorizontalSpacing(mass::abstand);
    neu->setVerticalSpacing(mass::ebenenabstand);
    return neu;
}

/// Rows of one height, so that those of frames side by side are level.
void zeilen_angleichen(QGridLayout& tabelle) {
    for (int reihe = 0; reihe < tabelle.rowCount(); ++reihe)
        tabelle.setRowMinimumHeight(reihe, mass::liste);
}

/// A button with some air beside its caption.
QPushButton* knopf(Knopf& feld, const Ebenenbau& bau) {
    QPushButton* neu = bau.knopf(feld);
    neu->setMinimumWidth(neu->sizeHint().width() + 2 * mass::rand);
    return neu;
}

QGroupBox* quelle(E_Klimaimport& e, const Ebenenbau& bau) {
    QGroupBox* rahmen = bau.rahmen(e.Frame1);
    QGridLayout& tabelle = *raster(*rahmen);
    tabelle.addWidget(bau.textfeld(e.DateinameBox, e.Frame1.text()), 0, 0);
    tabelle.addWidget(knopf(e.Command1, bau), 0, 1);
    QLabel* erkannt = bau.anzeige(e.Erkannt);
    QPalette palette = erkannt->palette();
    palette.setColor(QPalette::WindowText, QColor(stilfarben::betonung));
    erkannt->setPalette(palette);
    erkannt->setFixedHeight(mass::leiste);
    tabelle.addWidget(erkannt, 1, 0, 1, 2);
    return rahmen;
}

QGroupBox* dateivorschau(E_Klimaimport& e, const Ebenenbau& bau) {
    constexpr int zeilen = 9;
    QGroupBox* rahmen = bau.rahmen(e.Frame5);
    QPlainTextEdit* ansicht = bau.textansicht(e.Dateiansicht, mass::ebenenschrift, e.Frame5.text());
    ansicht->setFixedHeight(zeilen * ansicht->fontMetrics().lineSpacing() + 2 * mass::rand + mass::leiste);
    raster(*rahmen)->addWidget(ansicht, 0, 0);
    return rahmen;
}

QGroupBox* datenformat(E_Klimaimport& e, const Ebenenbau& bau) {
    QGroupBox* rahmen = bau.rahmen(e.Frame2);
    QGridLayout& tabelle = *raster(*rahmen);
    int reihe = 0;
    for (QRadioButton* option : bau.optionen(e.Datentrennung))
        tabelle.addWidget(option, reihe++, 0, 1, 3);
    tabelle.addWidget(bau.anzeige(e.Label_Kopfzeilen), reihe, 0);
    tabelle.addWidget(bau.textfeld(e.Kopfzeilen, e.Label_Kopfzeilen.text()), reihe++, 1);
    tabelle.addWidget(bau.anzeige(e.Label_Dezimalzeichen), reihe, 0);
    tabelle.addWidget(bau.liste(e.Dezimalzeichen, e.Label_Dezimalzeichen.text()), reihe++, 1);
    tabelle.setColumnMinimumWidth(1, 110);
    tabelle.setColumnStretch(2, 1);
    zeilen_angleichen(tabelle);
    return rahmen;
}

/// A number without a sign, and the list that tells its sign.
struct Winkel {
    Anzeige& wort;
    Textfeld& zahl;
    Auswahlliste& zusatz;
};

QGroupBox* standort(E_Klimaimport& e, const Ebenenbau& bau) {
    QGroupBox* rahmen = bau.rahmen(e.Frame3);
    QGridLayout& tabelle = *raster(*rahmen);
    tabelle.addWidget(bau.anzeige(e.Label_Standortname), 0, 0);
    tabelle.addWidget(bau.textfeld(e.Standortname, e.Label_Standortname.text()), 0, 1, 1, 3);
    tabelle.addWidget(bau.anzeige(e.Label_Land), 1, 0);
    tabelle.addWidget(bau.textfeld(e.Land, e.Label_Land.text()), 1, 1, 1, 3);
    int reihe = 2;
    for (const Winkel& winkel : {Winkel{e.Label_Breitengrad, e.Breitengrad, e.Breitezusatz},
                                 Winkel{e.Label_Laengengrad, e.Laengengrad, e.Laengezusatz}}) {
        tabelle.addWidget(bau.anzeige(winkel.wort), reihe, 0);
        tabelle.addWidget(bau.textfeld(winkel.zahl, winkel.wort.text()), reihe, 1);
        tabelle.addWidget(bau.liste(winkel.zusatz, winkel.wort.text()), reihe++, 2);
    }
    tabelle.addWidget(bau.anzeige(e.Label_Zeitzone), reihe, 0);
    tabelle.addWidget(bau.liste(e.GMT, e.Label_Zeitzone.text()), reihe, 1);
    tabelle.addWidget(bau.textfeld(e.Zeitzone, e.Label_Zeitzone.text()), reihe++, 2);
    QLabel* hinweis = bau.anzeige(e.Ortshinweis);
    hinweis->setWordWrap(true);
    hinweis->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    tabelle.addWidget(hinweis, 2, 3, 3, 1);
    for (const int spalte : {1, 2})
        tabelle.setColumnMinimumWidth(spalte, 90);
    tabelle.setColumnStretch(3, 1);
    zeilen_angleichen(tabelle);
    return rahmen;
}

Gitterzelle* zelle(Anzeige& anzeige, bool kopf, const Ebenenbau& bau, QGroupBox* rahmen) {
    auto* neu = new Gitterzelle(kopf, rahmen);
    bau.mittel().binder.binde(*neu, anzeige);
    return neu;
}

QGroupBox* datenzuordnung(E_Klimaimport& e, const Ebenenbau& bau) {
    Importvorschau& v = e.vorschau;
    QGroupBox* rahmen = bau.rahmen(e.Frame4);
    QGridLayout& tabelle = *raster(*rahmen);
    tabelle.setSpacing(0);
    tabelle.setColumnMinimumWidth(0, 48);
    for (int j = 0; j < spalten_der_tabelle; ++j) {
        const auto spalte = static_cast<std::size_t>(j);
        tabelle.addWidget(zelle(v.Spalte.at(spalte), true, bau, rahmen), 0, j + 1);
        QComboBox* liste = bau.liste(v.Datenreihe.at(spalte), e.Frame4.text() + " " + std::to_string(j + 1));
        liste->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        tabelle.addWidget(liste, 1, j + 1);
        tabelle.setColumnStretch(j + 1, 1);
    }
    for (int i = 0; i < spalten_der_tabelle; ++i) {
        const auto zeile = static_cast<std::size_t>(i);
        tabelle.addWidget(zelle(v.Zeilenzaehler.at(zeile), true, bau, rahmen), i + 2, 0);
        for (int j = 0; j < spalten_der_tabelle; ++j)
            tabelle.addWidget(zelle(v.Zelle.at(zeile).at(static_cast<std::size_t>(j)), false, bau, rahmen),
                              i + 2, j + 1);
    }
    tabelle.addWidget(bau.leiste(v.VScroll1, bau.text("VScroll1"), Qt::Vertical), 2, spalten_der_tabelle + 1,
                      spalten_der_tabelle, 1);
    tabelle.addWidget(bau.leiste(v.HScroll1, bau.text("HScroll1")), spalten_der_tabelle + 2, 1, 1,
                      spalten_der_tabelle);
    return rahmen;
}

/// The progress bar, which keeps its place while it is hidden. While an import runs, the window lives on.
QProgressBar* fortschrittsbalken(E_Klimaimport& e, const Ebenenbau& bau, QWidget* fenster) {
    constexpr int ganz = 1000;
    auto* balken = new QProgressBar(fenster);
    balken->setRange(0, ganz);
    balken->setAccessibleName(qtext(bau.text("Fortschritt")));
    QSizePolicy platz = balken->sizePolicy();
    platz.setRetainSizeWhenHidden(true);
    balken->setSizePolicy(platz);
    bau.mittel().binder.binde(static_cast<QWidget&>(*balken), e.Fortschritt);
    e.fortschritt = [balken](double anteil) {
        balken->setValue(static_cast<int>(std::lround(anteil * ganz)));
        QApplication::processEvents();
        return true;
    };
    QObject::connect(balken, &QObject::destroyed, [&e] { e.fortschritt = nullptr; });
    return balken;
}

/// Puts the window where it still fits on the screen once all its steps are shown.
void platzieren(QWidget& fenster, QSize ganz) {
    const QRect schirm = fenster.screen()->availableGeometry();
    const QPoint mitte = fenster.parentWidget()->frameGeometry().center();
    const QPoint ecke = mitte - QPoint(ganz.width() / 2, ganz.height() / 2);
    const QPoint letzte = schirm.bottomRight() - QPoint(ganz.width(), ganz.height());
    fenster.move(std::max(schirm.left(), std::min(ecke.x(), letzte.x())),
                 std::max(schirm.top(), std::min(ecke.y(), letzte.y())));
}

}  // namespace

QWidget* klimaimport_ansicht(E_Klimaimport& e, const Ansichtsmittel& mittel, QWidget* eltern) {
    auto* fenster = new Nebenfenster(
        mittel.wache, [&e] { e.Command3.druecke(); }, eltern);
    fenster->setWindowModality(Qt::WindowModal);
    QFont schrift = fenster->font();
    schrift.setPixelSize(mass::ebenenschrift);
    fenster->setFont(schrift);
    const Ebenenbau bau(*fenster, "E_Klimaimport", mittel);
    auto* spalte = new QVBoxLayout(fenster);
    spalte->setSpacing(mass::abstand);
    spalte->addStrut(ganze_groesse.width() - 2 * mass::rand);
    spalte->addWidget(quelle(e, bau));
    spalte->addWidget(dateivorschau(e, bau));
    auto* mitte = new QHBoxLayout;
    mitte->addWidget(datenformat(e, bau));
    mitte->addWidget(standort(e, bau), 1);
    spalte->addLayout(mitte);
    spalte->addWidget(datenzuordnung(e, bau));
    auto* reihe = new QHBoxLayout;
    reihe->addWidget(fortschrittsbalken(e, bau, fenster), 1);
    reihe->addWidget(knopf(e.Command2, bau));
    reihe->addWidget(knopf(e.Command3, bau));
    spalte->addLayout(reihe);
    spalte->setSizeConstraint(QLayout::SetFixedSize);
    fenster->einheitsgroesse(ganze_groesse, ganze_groesse);
    mittel.binder.binde(*fenster, e.ebene);
    e.ebene.ansicht = [fenster, zeigen = e.ebene.ansicht] {
        if (fenster->isHidden()) platzieren(*fenster, ganze_groesse * fenster->oeffnungsmassstab());
        zeigen();
    };
    return fenster;
}

}  // namespace velmaris
