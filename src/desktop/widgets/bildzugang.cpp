#include "desktop/widgets/bildzugang.h"

#include "desktop/platform/qt_text.h"
#include "desktop/widgets/bildflaeche.h"
#include "toolkit/bildmitnahme.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace velmaris {
namespace {

class Bildzugang : public QAccessibleWidget {
  public:
    explicit Bildzugang(Bildflaeche& flaeche)
        : QAccessibleWidget(&flaeche, flaeche.feld().gedrueckt ? QAccessible::Button : QAccessible::Graphic) {
    }

    [[nodiscard]] QString text(QAccessible::Text was) const override {
        const auto& flaeche = static_cast<const Bildflaeche&>(*widget());
        const Bildfeld& feld = flaeche.feld();
        if (was == QAccessible::Name && flaeche.accessibleName().isEmpty()) return qtext(bildname(feld));
        if (was == QAccessible::Description && feld.werte) return qtext(wertesatz(feld.werte()));
        return QAccessibleWidget::text(was);
    }
};

QAccessibleInterface* zugang(const QString&, QObject* objekt) {
    auto* flaeche = qobject_cast<Bildflaeche*>(objekt);
    return flaeche == nullptr ? nullptr : new Bildzugang(*flaeche);
}

}  // namespace

void bildzugang_einrichten() {
    [[maybe_unused]] static const bool eingerichtet = (QAccessible::installFactory(zugang), true);
}

}  // namespace velmaris
