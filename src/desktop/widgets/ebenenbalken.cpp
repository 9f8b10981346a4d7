#include "desktop/widgets/ebenenbalken.h"

#include "desktop/platform/stil.h"
#include "desktop/widgets/ebenenknopf.h"
#include "desktop/widgets/fokusweg.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>

namespace velmaris {

Ebenenbalken::Ebenenbalken(Ebenenleiste& leiste, const Binder& binder, QWidget* eltern)
    : QWidget(eltern), leiste_(leiste) {
    auto* reihe = new QHBoxLayout(this);
    reihe->setContentsMargins(mass::zeilenabstand, 2, mass::zeilenabstand, 1);
    reihe->setSpacing(2);
    for (const Ebenenleiste::Eintrag& eintrag : leiste.eintraege()) {
        auto* knopf = new Ebenenknopf(this);
        binder.binde(*knopf, *eintrag.knopf);
        reihe->addWidget(knopf);
        knoepfe_.push_back(knopf);
    }
    binder.binde(*this, leiste.leiste);
}

bool Ebenenbalken::behaelt_fokus() {
    if (std::none_of(knoepfe_.begin(), knoepfe_.end(), [](const Ebenenknopf* k) { return k->getastet(); }))
        return false;
    setAccessibleName(gewaehlter()->text());
    setFocus();
    return true;
}

Ebenenknopf* Ebenenbalken::gewaehlter() const {
    return *std::find_if(knoepfe_.begin(), knoepfe_.end(),
                         [](const Ebenenknopf* k) { return !k->isEnabled(); });
}

void Ebenenbalken::betonen(bool an) {
    for (Ebenenknopf* knopf : knoepfe_)
        knopf->betone(an && knopf == gewaehlter());
}

void Ebenenbalken::focusInEvent(QFocusEvent* ereignis) {
    QWidget::focusInEvent(ereignis);
    betonen(true);
}

void Ebenenbalken::focusOutEvent(QFocusEvent* ereignis) {
    QWidget::focusOutEvent(ereignis);
    betonen(false);
}

/// The arrow keys lead to the neighbours, as they do from a button.
void Ebenenbalken::keyPressEvent(QKeyEvent* ereignis) {
    const int taste = ereignis->key();
    if (taste == Qt::Key_Right || taste == Qt::Key_Down) {
        focusNextPrevChild(true);
    } else if (taste == Qt::Key_Left || taste == Qt::Key_Up) {
        focusNextPrevChild(false);
    } else {
        QWidget::keyPressEvent(ereignis);
    }
}

void Ebenenbalken::mousePressEvent(QMouseEvent* ereignis) {
    const bool auf_gewaehltem = gewaehlter()->geometry().contains(ereignis->position().toPoint());
    if (ereignis->button() == Qt::LeftButton && auf_gewaehltem) leiste_.zuwenden();
}

bool Ebenenbalken::focusNextPrevChild(bool weiter) {
    if (!hasFocus()) return QWidget::focusNextPrevChild(weiter);
    QWidget* ziel = naechster_halt(*gewaehlter(), weiter, *window());
    if (ziel != nullptr) ziel->setFocus(weiter ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return ziel != nullptr;
}

}  // namespace velmaris
