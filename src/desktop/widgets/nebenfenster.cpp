#include "desktop/widgets/nebenfenster.h"

#include "desktop/platform/massstab.h"

#include <QCloseEvent>
#include <QLayout>
#include <algorithm>

namespace velmaris {

Nebenfenster::Nebenfenster(const Fehlerwache& wache, std::function<void()> schliessen, QWidget* eltern)
    : QDialog(eltern), wache_(wache), schliessen_(std::move(schliessen)), massstab_(*this) {}

void Nebenfenster::einheitsgroesse(QSize bevorzugt, QSize mindestens) {
    bevorzugt_ = bevorzugt;
    mindestens_ = mindestens;
    if (ist_veraenderlich()) resize(bevorzugt.boundedTo(bildschirmplatz(*this)));
}

bool Nebenfenster::ist_veraenderlich() const {
    return layout() == nullptr || layout()->sizeConstraint() != QLayout::SetFixedSize;
}

double Nebenfenster::oeffnungsmassstab() const {
    const double unten = parentWidget() == nullptr ? erster_massstab(*this) : massstab(*parentWidget());
    const QSize einheiten =
        mindestens_.isEmpty() ? (QSizeF(sizeHint()) / massstab(*this)).toSize() : mindestens_;
    return std::min(unten, passender_massstab(bildschirmplatz(*this), einheiten));
}

void Nebenfenster::reject() {
    wache_.fuehre_aus(schliessen_);
}

void Nebenfenster::resizeEvent(QResizeEvent* ereignis) {
    QDialog::resizeEvent(ereignis);
    if (ist_veraenderlich() && !mindestens_.isEmpty())
        massstab_.setze(passender_massstab(size(), mindestens_));
    wache_.fuehre_aus([this] {
        if (anordnen) anordnen(QSizeF(size()) / massstab(*this));
    });
}

/// Takes over a scale of the window below that is new to it; else the size that the user gave stays.
void Nebenfenster::an_eltern_anpassen() {
    const double neuer = oeffnungsmassstab();
    if (neuer == letzter_massstab_) return;
    letzter_massstab_ = neuer;
    if (ist_veraenderlich()) {
        resize((QSizeF(bevorzugt_) * neuer).toSize().boundedTo(bildschirmplatz(*this)));
    } else {
        massstab_.setze(neuer);
    }
}

void Nebenfenster::setVisible(bool sichtbar) {
    if (sichtbar && isHidden()) an_eltern_anpassen();
    const bool hat_die_tasten = isActiveWindow();
    QDialog::setVisible(sichtbar);
    if (!sichtbar && hat_die_tasten && parentWidget() != nullptr) parentWidget()->activateWindow();
}

void Nebenfenster::closeEvent(QCloseEvent* ereignis) {
    ereignis->ignore();
    reject();
}

}  // namespace velmaris
