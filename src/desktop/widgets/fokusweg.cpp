#include "desktop/widgets/fokusweg.h"

#include <QWidget>

namespace velmaris {
namespace {

bool haelt_tabulator(const QWidget& ort) {
    return (ort.focusPolicy() & Qt::TabFocus) == Qt::TabFocus && ort.isEnabled() &&
           ort.isVisibleTo(ort.window());
}

QWidget* nachbar(const QWidget& ort, bool weiter) {
    return weiter ? ort.nextInFocusChain() : ort.previousInFocusChain();
}

}  // namespace

QWidget* naechster_halt(const QWidget& von, bool weiter, const QWidget& bereich) {
    for (QWidget* ort = nachbar(von, weiter); ort != &von; ort = nachbar(*ort, weiter)) {
        if (bereich.isAncestorOf(ort) && haelt_tabulator(*ort)) return ort;
    }
    return nullptr;
}

}  // namespace velmaris
