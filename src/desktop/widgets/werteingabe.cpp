#include "desktop/widgets/werteingabe.h"

#include "desktop/platform/qt_text.h"
#include "desktop/widgets/eingabetipp.h"
#include "desktop/widgets/schwebeschild.h"
#include "desktop/widgets/scrollleiste.h"
#include "planes/eingabewert.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <utility>

namespace velmaris {
namespace {

/// Room for the longest value with a sign and a unit.
QSize zeilengroesse(const QLineEdit& zeile) {
    const int breite = zeile.fontMetrics().horizontalAdvance(QStringLiteral("-00,00 W/(m²K)"));
    return {breite, zeile.sizeHint().height()};
}

/// A key that begins a number.
bool beginnt_zahl(const QKeyEvent& ereignis) {
    constexpr auto befehle = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const QString text = ereignis.text();
    return (ereignis.modifiers() & befehle) == Qt::NoModifier && text.size() == 1 &&
           QStringLiteral("0123456789-,.").contains(text);
}

}  // namespace

Werteingabe::Werteingabe(const Eingabefeld& feld, Scrollleiste& leiste, QLabel& anzeige, QWidget& ebene,
                         std::string sprache)
    : QObject(&leiste),
      feld_(feld),
      leiste_(leiste),
      anzeige_(anzeige),
      ebene_(ebene),
      sprache_(std::move(sprache)) {
    leiste.installEventFilter(this);
    anzeige.installEventFilter(this);
    anzeige.setCursor(Qt::IBeamCursor);
    const Zweisprachig wie{"Doppelklick oder F2: Wert eintippen", "Double click or F2: type a value"};
    anzeige.setToolTip(anzeige.toolTip() + tippabsatz(qtext(wie.in(sprache_))));
}

bool Werteingabe::eventFilter(QObject* ziel, QEvent* ereignis) {
    switch (ereignis->type()) {
        case QEvent::MouseButtonDblClick:
            if (ziel != &anzeige_) return false;
            oeffne({});
            return true;
        case QEvent::KeyPress: {
            const auto& taste = static_cast<const QKeyEvent&>(*ereignis);
            return ziel == zeile_ ? taste_der_zeile(taste) : taste_der_leiste(taste);
        }
        case QEvent::FocusOut:
            // A menu over the line gives the focus back.
            if (ziel == zeile_ && static_cast<QFocusEvent*>(ereignis)->reason() != Qt::PopupFocusReason)
                schliesse();
            return false;
        case QEvent::Move:
        case QEvent::Resize:
            if (ziel == &anzeige_ && zeile_ != nullptr) lege();
            return false;
        default:
            return false;
    }
}

bool Werteingabe::taste_der_leiste(const QKeyEvent& ereignis) {
    if (zeile_ != nullptr || leiste_.isSliderDown()) return false;
    const bool f2 = ereignis.key() == Qt::Key_F2;
    if (!f2 && !beginnt_zahl(ereignis)) return false;
    oeffne(f2 ? QString() : ereignis.text());
    return true;
}

bool Werteingabe::taste_der_zeile(const QKeyEvent& ereignis) {
    switch (ereignis.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            uebernimm();
            return true;
        case Qt::Key_Escape:
            schliesse();
            return true;
        default:
            return false;
    }
}

/// Without a text it holds the value, ready to be typed over.
void Werteingabe::oeffne(const QString& text) {
    if (!leiste_.isEnabled() || zeile_ != nullptr) return;
    zeile_ = new QLineEdit(&ebene_);
    zeile_->setObjectName(QStringLiteral("Werteingabe"));
    zeile_->setAccessibleName(leiste_.accessibleName());
    zeile_->setAlignment(anzeige_.alignment());
    zeile_->setText(text.isEmpty() ? qtext(feld_.zeile().zahl(feld_.position())) : text);
    if (text.isEmpty()) zeile_->selectAll();
    zeile_->installEventFilter(this);
    QWidget::setTabOrder(&leiste_, zeile_);
    lege();
    zeile_->show();
    zeile_->setFocus(Qt::OtherFocusReason);
    connect(zeile_, &QLineEdit::textEdited, this, [this] {
        if (einwand_ != nullptr) einwand_->hide();
    });
}

void Werteingabe::lege() {
    const QRect ort(anzeige_.mapTo(&ebene_, QPoint()), anzeige_.size());
    zeile_->setGeometry(
        QStyle::alignedRect(Qt::LeftToRight, anzeige_.alignment(), zeilengroesse(*zeile_), ort));
    hineinruecken(*zeile_);
}

/// The field has the focus before it moves, as by a drag.
void Werteingabe::uebernimm() {
    const auto wert = eingabewert(feld_.zeile(), utf8(zeile_->text()));
    if (const auto* einwand = std::get_if<Zweisprachig>(&wert)) {
        sage(qtext(einwand->in(sprache_)));
        return;
    }
    schliesse();
    leiste_.setValue(std::get<int>(wert));
}

void Werteingabe::schliesse() {
    QLineEdit* alte = std::exchange(zeile_, nullptr);
    if (alte == nullptr) return;
    if (einwand_ != nullptr) einwand_->hide();
    if (alte->window()->focusWidget() == alte) leiste_.setFocus(Qt::OtherFocusReason);
    alte->hide();
    alte->deleteLater();
}

void Werteingabe::sage(const QString& einwand) {
    if (einwand_ == nullptr) einwand_ = new Schwebeschild(&ebene_);
    einwand_->setText(einwand);
    einwand_->adjustSize();
    const QRect zeile = zeile_->geometry();
    const bool darunter = zeile.bottom() + einwand_->height() < ebene_.height();
    einwand_->move(zeile.left(), darunter ? zeile.bottom() + 1 : zeile.top() - einwand_->height());
    einwand_->raise();
    einwand_->show();
    zeile_->selectAll();
    zeile_->setAccessibleDescription(einwand);
    QAccessibleEvent ruf(einwand_, QAccessible::Alert);
    QAccessible::updateAccessibility(&ruf);
}

}  // namespace velmaris
