#include "desktop/widgets/ebenenfokus.h"

#include "desktop/widgets/fokusweg.h"

#include <QApplication>
#include <QWidget>

namespace velmaris {

Ebenenfokus::Ebenenfokus(QWidget& flaeche) : flaeche_(flaeche) {
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, const QWidget* jetzt) { verfolgen(jetzt); });
}

void Ebenenfokus::gehe_zu(const QString& ebene) {
    merke(ebene);
    auto* fenster = flaeche_.findChild<QWidget*>(ebene, Qt::FindDirectChildrenOnly);
    if (fenster == nullptr) return;
    QWidget* erstes = naechster_halt(*fenster, true, *fenster);
    (erstes != nullptr ? erstes : fenster)->setFocus();
}

/// A plane lies on the surface and, unlike a bar, takes the focus of a click.
void Ebenenfokus::verfolgen(const QWidget* fokus) {
    if (fokus == nullptr || !flaeche_.isAncestorOf(fokus)) return;
    const QWidget* ort = fokus;
    while (ort->parentWidget() != &flaeche_)
        ort = ort->parentWidget();
    if (ort->focusPolicy() != Qt::NoFocus) merke(ort->objectName());
}

}  // namespace velmaris
