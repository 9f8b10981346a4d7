#include "desktop/help/suchleiste.h"

#include "desktop/platform/qt_text.h"
#include "toolkit/wort.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTextBrowser>
#include <QToolButton>

namespace velmaris {

Suchleiste::Suchleiste(QTextBrowser& seite, const std::string& sprache, QWidget* eltern)
    : QWidget(eltern),
      seite_(seite),
      sprache_(sprache),
      feld_(new QLineEdit(this)),
      meldung_(new QLabel(this)) {
    setObjectName(QStringLiteral("Suchleiste"));
    auto* schild = new QLabel(wort("Auf dieser Seite suchen:", "Find on this page:"), this);
    schild->setBuddy(feld_);
    feld_->setObjectName(QStringLiteral("Suchtext"));
    feld_->setAccessibleName(schild->text());
    meldung_->setObjectName(QStringLiteral("Suchmeldung"));
    auto* vor = knopf("SucheVor", wort("Nächste Stelle", "Next"), wort("F3, Eingabe", "F3, Enter"));
    auto* zurueck = knopf("SucheZurueck", wort("Vorige Stelle", "Previous"),
                          wort("Umschalt+F3, Umschalt+Eingabe", "Shift+F3, Shift+Enter"));
    auto* zu = knopf("SucheSchliessen", wort("Schließen", "Close"), QStringLiteral("Esc"));
    auto* reihe = new QHBoxLayout(this);
    for (QWidget* teil : std::initializer_list<QWidget*>{schild, feld_, vor, zurueck})
        reihe->addWidget(teil);
    reihe->addWidget(meldung_, 1);
    reihe->addWidget(zu);
    hide();
    connect(feld_, &QLineEdit::textEdited, this, [this] { suche_beim_tippen(); });
    connect(vor, &QAbstractButton::clicked, this, [this] { suche(false); });
    connect(zurueck, &QAbstractButton::clicked, this, [this] { suche(true); });
    connect(zu, &QAbstractButton::clicked, this, [this] { schliesse(); });
    connect(&seite, &QTextBrowser::sourceChanged, this, [this] { melde({}); });
}

QString Suchleiste::wort(const char* de, const char* en) const {
    return qtext(Wort{de, en}.in(sprache_));
}

QAbstractButton* Suchleiste::knopf(const char* name, const QString& text, const QString& tasten) {
    auto* neu = new QToolButton(this);
    neu->setObjectName(QLatin1String(name));
    neu->setText(text);
    neu->setToolTip(text + QLatin1String(" (") + tasten + QLatin1Char(')'));
    neu->setAutoRaise(true);
    return neu;
}

void Suchleiste::oeffne() {
    const QTextCursor stelle = seite_.textCursor();
    if (!seite_.viewport()->rect().intersects(seite_.cursorRect(stelle)))
        seite_.setTextCursor(seite_.cursorForPosition({0, 0}));
    // A selection over several paragraphs is none of a word; blanks are sought as plain ones.
    const QString text = stelle.selectedText().replace(QChar::Nbsp, u' ');
    if (!text.isEmpty() && !text.contains(QChar::ParagraphSeparator)) feld_->setText(text);
    melde({});
    show();
    feld_->setFocus();
    feld_->selectAll();
}

void Suchleiste::schliesse() {
    hide();
    seite_.setFocus();
}

void Suchleiste::suche(bool rueckwaerts) {
    if (isHidden()) oeffne();
    melde({});
    if (feld_->text().isEmpty()) return;
    QTextCursor stelle = naechste_stelle(seite_.textCursor(), rueckwaerts);
    if (stelle.isNull()) {
        QTextCursor rand(seite_.document());
        if (rueckwaerts) rand.movePosition(QTextCursor::End);
        stelle = naechste_stelle(rand, rueckwaerts);
        melde(stelle.isNull() ? wort("Nicht gefunden", "Not found")
              : rueckwaerts   ? wort("Weiter vom Ende der Seite", "Continued from the end of the page")
                              : wort("Weiter vom Anfang der Seite", "Continued from the top of the page"));
    }
    if (!stelle.isNull()) seite_.setTextCursor(stelle);
}

/// The place after (before) the cursor, a null cursor if there is none up to the end of the page.
QTextCursor Suchleiste::naechste_stelle(const QTextCursor& von, bool rueckwaerts) const {
    const QTextDocument::FindFlags richtung =
        rueckwaerts ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    return seite_.document()->find(feld_->text(), von, richtung);
}

/// A word that grows stays where it was found as long as it fits.
void Suchleiste::suche_beim_tippen() {
    QTextCursor stelle = seite_.textCursor();
    stelle.setPosition(stelle.selectionStart());
    seite_.setTextCursor(stelle);
    suche(false);
}

/// Shown, and told to a screen reader.
void Suchleiste::melde(const QString& text) {
    meldung_->setText(text);
    if (text.isEmpty()) return;
    QAccessibleEvent ansage(meldung_, QAccessible::Alert);
    QAccessible::updateAccessibility(&ansage);
}

void Suchleiste::keyPressEvent(QKeyEvent* ereignis) {
    if (ereignis->key() != Qt::Key_Return && ereignis->key() != Qt::Key_Enter) {
        QWidget::keyPressEvent(ereignis);
    } else if (auto* knopf = qobject_cast<QAbstractButton*>(focusWidget())) {
        knopf->click();
    } else {
        suche(ereignis->modifiers().testFlag(Qt::ShiftModifier));
    }
}

}  // namespace velmaris
