#include "desktop/widgets/nebenfenster.h"

#include <QCloseEvent>

namespace velmaris {

Nebenfenster::Nebenfenster(const Fehlerwache& wache, std::function<void()> schliessen, QWidget* eltern)
    : QDialog(eltern), wache_(wache), schliessen_(std::move(schliessen)) {}

void Nebenfenster::reject() {
    wache_.fuehre_aus(schliessen_);
}

void Nebenfenster::resizeEvent(QResizeEvent* ereignis) {
    QDialog::resizeEvent(ereignis);
    wache_.fuehre_aus([this] {
        if (anordnen) anordnen(size());
    });
}

void Nebenfenster::setVisible(bool sichtbar) {
    const bool hat_die_tasten = isActiveWindow();
    QDialog::setVisible(sichtbar);
    if (!sichtbar && hat_die_tasten && parentWidget() != nullptr) parentWidget()->activateWindow();
}

void Nebenfenster::closeEvent(QCloseEvent* ereignis) {
    ereignis->ignore();
    reject();
}

}  // namespace velmaris
