#include "desktop/widgets/binde.h"

#include "desktop/platform/massstab.h"
#include "desktop/platform/qt_text.h"
#include "desktop/widgets/eingabetipp.h"
#include "desktop/widgets/scrollleiste.h"

#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStringList>
#include <QVariant>
#include <QWidget>
#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

/// Names the widget after the record, shows the record's state and goes on showing it as long as the
/// widget lives.
void anschliessen(QWidget& fenster, Feld& feld, const std::function<void()>& zeigen) {
    fenster.setObjectName(qtext(feld.name));
    feld.ansicht = zeigen;
    QObject::connect(&fenster, &QObject::destroyed, [&feld] { feld.ansicht = nullptr; });
    zeigen();
}

/// What has no text on it needs a name for screen readers; the view may have given a better one.
void benennen(QWidget& fenster, const Feld& feld) {
    if (fenster.accessibleName().isEmpty()) fenster.setAccessibleName(qtext(feld.name));
}

/// Text colour of a label; nothing stands for the one that the view gave it.
void farbe_setzen(QWidget& fenster, std::optional<QColor> farbe) {
    constexpr const char* eigene = "farbe_der_ansicht";
    const QVariant gemerkt = fenster.property(eigene);
    if (!farbe && !gemerkt.isValid()) return;
    QPalette palette = fenster.palette();
    if (!gemerkt.isValid()) fenster.setProperty(eigene, palette.color(QPalette::WindowText));
    palette.setColor(QPalette::WindowText, farbe ? *farbe : gemerkt.value<QColor>());
    fenster.setPalette(palette);
}

void eintraege_zeigen(QComboBox& kasten, const std::vector<std::string>& eintraege) {
    QStringList texte;
    for (const std::string& eintrag : eintraege)
        texte.append(qtext(eintrag));
    QStringList gezeigt;
    for (int i = 0; i < kasten.count(); ++i)
        gezeigt.append(kasten.itemText(i));
    if (texte == gezeigt) return;

    kasten.clear();
    kasten.addItems(texte);
}

/// The whole text of the list comes before the tip that the view gave it, for the box may be narrow.
void liste_zeigen(QComboBox& kasten, const Auswahlliste& liste, const QString& tipp) {
    const QSignalBlocker still(kasten);
    eintraege_zeigen(kasten, liste.eintraege());
    const QString text = qtext(liste.text());
    kasten.setPlaceholderText(liste.index() < 0 ? text : QString());
    kasten.setCurrentIndex(liste.index());
    kasten.setToolTip(tipp.isEmpty() ? text : tippabsatz(text) + tipp);
    grundzustand(kasten, liste);
}

/// The cursor keeps its distance from the end, so that it stays behind what is typed when characters drop
/// out.
void zeile_zeigen(QLineEdit& zeile, const QString& text) {
    if (zeile.text() == text) return;
    const auto dahinter = zeile.text().size() - zeile.cursorPosition();
    zeile.setText(text);
    zeile.setCursorPosition(static_cast<int>(std::max<qsizetype>(text.size() - dahinter, 0)));
}

/// Tab comes to the option that is set; without one it comes to each.
void optionen_zeigen(std::span<QAbstractButton* const> knoepfe, const Optionsgruppe& gruppe) {
    for (int i = 0; i < static_cast<int>(knoepfe.size()); ++i) {
        QAbstractButton& knopf = *knoepfe[static_cast<std::size_t>(i)];
        const QSignalBlocker still(knopf);
        const bool gesetzt = gruppe.gesetzt(gruppe.erste() + i);
        knopf.setChecked(gesetzt);
        knopf.setFocusPolicy(gesetzt || !gruppe.gesetzt() ? Qt::StrongFocus : Qt::ClickFocus);
        grundzustand(knopf, gruppe);
    }
}

void anzeige_zeigen(QLabel& schild, const Anzeige& anzeige, double pixel_je_einheit) {
    schild.setText(schildtext(anzeige.text()));
    std::optional<QColor> farbe;
    if (anzeige.schriftfarbe()) farbe = qfarbe(*anzeige.schriftfarbe());
    if (anzeige.verborgen()) farbe = schild.palette().color(schild.backgroundRole());
    farbe_setzen(schild, farbe);
    if (const std::optional<Platz> platz = anzeige.platz())
        lege(schild, QPointF(platz->links, platz->oben) * pixel_je_einheit);
    grundzustand(schild, anzeige);
}

}  // namespace

void grundzustand(QWidget& fenster, const Feld& feld) {
    fenster.setEnabled(feld.aktiv());
    if (const std::optional<Rechteck>& lage = feld.lage())
        lege(fenster, QRectF(lage->links, lage->oben, lage->breite, lage->hoehe));
    if (fenster.isHidden() == feld.sichtbar()) fenster.setVisible(feld.sichtbar());
}

// Bindings without a handler have no use for the guard, but are made in the same way as the others.
// NOLINTBEGIN(readability-convert-member-functions-to-static)
void Binder::binde(QWidget& fenster, Feld& feld) const {
    anschliessen(fenster, feld, [&fenster, &feld] { grundzustand(fenster, feld); });
}

void Binder::binde(QLabel& schild, Anzeige& anzeige, double pixel_je_einheit) const {
    schild.setTextFormat(Qt::PlainText);
    anschliessen(schild, anzeige, [&schild, &anzeige, pixel_je_einheit] {
        anzeige_zeigen(schild, anzeige, pixel_je_einheit);
    });
}

void Binder::binde(QGroupBox& rahmen, Anzeige& anzeige) const {
    anschliessen(rahmen, anzeige, [&rahmen, &anzeige] {
        rahmen.setTitle(qtext(anzeige.text()));
        grundzustand(rahmen, anzeige);
    });
}

void Binder::binde(QPlainTextEdit& ansicht, Anzeige& anzeige) const {
    benennen(ansicht, anzeige);
    anschliessen(ansicht, anzeige, [&ansicht, &anzeige] {
        const QString text = zeilentext(anzeige.text());
        if (ansicht.toPlainText() != text) ansicht.setPlainText(text);
        grundzustand(ansicht, anzeige);
    });
}

void Binder::binde(QDialog& fenster, Anzeige& anzeige) const {
    anschliessen(fenster, anzeige, [&fenster, &anzeige] {
        fenster.setWindowTitle(qtext(anzeige.text()));
        grundzustand(fenster, anzeige);
    });
}
// NOLINTEND(readability-convert-member-functions-to-static)

void Binder::binde(Scrollleiste& leiste, Scrollfeld& feld) const {
    benennen(leiste, feld);
    leiste.schritte(feld.kleiner_schritt(), feld.grosser_schritt());
    const auto zeigen = [&leiste, &feld] {
        const QSignalBlocker still(leiste);
        leiste.setRange(feld.minimum(), feld.maximum());
        leiste.setValue(feld.position());
        grundzustand(leiste, feld);
    };
    anschliessen(leiste, feld, zeigen);
    QObject::connect(&leiste, &QAbstractSlider::valueChanged, &leiste,
                     [&feld, zeigen, wache = wache_](int stellung) {
                         wache->fuehre_aus([&] { feld.bewege(stellung); });
                         zeigen();
                     });
}

void Binder::binde(QComboBox& kasten, Auswahlliste& liste) const {
    benennen(kasten, liste);
    kasten.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    QPalette palette = kasten.palette();
    palette.setColor(QPalette::PlaceholderText, palette.color(QPalette::ButtonText));
    kasten.setPalette(palette);
    const auto zeigen = [&kasten, &liste, tipp = kasten.toolTip()] { liste_zeigen(kasten, liste, tipp); };
    anschliessen(kasten, liste, zeigen);
    QObject::connect(&kasten, &QComboBox::activated, &kasten, [&liste, zeigen, wache = wache_](int zeile) {
        wache->fuehre_aus([&] { liste.setze(zeile); });
        zeigen();
    });
}

void Binder::binde(QCheckBox& kasten, Pruefeld& feld) const {
    const auto zeigen = [&kasten, &feld] {
        const QSignalBlocker still(kasten);
        kasten.setChecked(feld.wert() != 0);
        grundzustand(kasten, feld);
    };
    anschliessen(kasten, feld, zeigen);
    QObject::connect(&kasten, &QCheckBox::clicked, &kasten, [&feld, zeigen, wache = wache_](bool gesetzt) {
        wache->fuehre_aus([&] { feld.setze(gesetzt ? 1 : 0); });
        zeigen();
    });
}

void Binder::binde(std::span<QRadioButton* const> knoepfe, Optionsgruppe& gruppe) const {
    // The group of the toolkit must let go of its buttons' exclusion while none is to be set.
    auto* verbund = new QButtonGroup(knoepfe.front());
    for (QRadioButton* knopf : knoepfe)
        verbund->addButton(knopf);
    const auto zeigen = [verbund, &gruppe] {
        verbund->setExclusive(false);
        const QList<QAbstractButton*> alle = verbund->buttons();
        optionen_zeigen({alle.constData(), static_cast<std::size_t>(alle.size())}, gruppe);
        verbund->setExclusive(true);
    };
    anschliessen(*knoepfe.front(), gruppe, zeigen);
    int option = gruppe.erste();
    for (QRadioButton* knopf : knoepfe) {
        knopf->setObjectName(qtext(gruppe.name + std::to_string(option)));
        QObject::connect(knopf, &QRadioButton::clicked, knopf, [&gruppe, option, zeigen, wache = wache_] {
            wache->fuehre_aus([&] { gruppe.setze(option); });
            zeigen();
        });
        ++option;
    }
}

void Binder::binde(QLineEdit& zeile, Textfeld& feld) const {
    benennen(zeile, feld);
    const auto zeigen = [&zeile, &feld] {
        zeile_zeigen(zeile, qtext(feld.text()));
        grundzustand(zeile, feld);
    };
    anschliessen(zeile, feld, zeigen);
    QObject::connect(&zeile, &QLineEdit::textEdited, &zeile,
                     [&feld, zeigen, wache = wache_](const QString& text) {
                         wache->fuehre_aus([&] { feld.tippe(utf8(text)); });
                         zeigen();
                     });
    QObject::connect(&zeile, &QLineEdit::returnPressed, &zeile,
                     [&feld, wache = wache_] { wache->fuehre_aus([&] { feld.bestaetige(); }); });
}

void Binder::binde(QAbstractButton& schalter, Knopf& knopf) const {
    anschliessen(schalter, knopf, [&schalter, &knopf] {
        if (!knopf.text().empty()) schalter.setText(qtext(knopf.text()));
        grundzustand(schalter, knopf);
    });
    QObject::connect(&schalter, &QAbstractButton::clicked, &schalter,
                     [&knopf, wache = wache_] { wache->fuehre_aus([&] { knopf.druecke(); }); });
}

void Binder::binde(QAction& eintrag, Menuepunkt& punkt) const {
    eintrag.setObjectName(qtext(punkt.name));
    const auto zeigen = [&eintrag, &punkt] {
        const QSignalBlocker still(eintrag);
        eintrag.setText(qtext(punkt.text()));
        eintrag.setCheckable(punkt.angekreuzt());
        eintrag.setChecked(punkt.angekreuzt());
        eintrag.setEnabled(punkt.aktiv());
        eintrag.setVisible(punkt.sichtbar());
    };
    punkt.ansicht = zeigen;
    QObject::connect(&eintrag, &QObject::destroyed, [&punkt] { punkt.ansicht = nullptr; });
    zeigen();
    QObject::connect(&eintrag, &QAction::triggered, &eintrag, [&punkt, zeigen, wache = wache_] {
        wache->fuehre_aus([&] { punkt.druecke(); });
        zeigen();
    });
}

std::optional<int> fokusstellung(const QWidget& fenster) {
    const auto* leiste = qobject_cast<const Scrollleiste*>(fenster.window()->focusWidget());
    return leiste ? std::optional(leiste->value()) : std::nullopt;
}

}  // namespace velmaris
