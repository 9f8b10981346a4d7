#include "desktop/widgets/zugang.h"

#include "desktop/platform/qt_text.h"
#include "desktop/widgets/aufklappliste.h"
#include "desktop/widgets/auswahlschild.h"
#include "desktop/widgets/auswahltafel.h"
#include "desktop/widgets/ebenenbalken.h"
#include "desktop/widgets/scrollleiste.h"
#include "planes/scrolltabelle.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

/// A scroll field of the inputs: numbers as its display shows them.
class Reglerzugang : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    Reglerzugang(Scrollleiste& leiste, const Scrollzeile& zeile)
        : QAccessibleWidget(&leiste, QAccessible::Slider), zeile_(zeile) {}

    void* interface_cast(QAccessible::InterfaceType art) override {
        if (art == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(art);
    }

    [[nodiscard]] QString text(QAccessible::Text was) const override {
        return was == QAccessible::Value ? qtext(zeile_.zahl_mit_einheit(leiste().value()))
                                         : QAccessibleWidget::text(was);
    }

    [[nodiscard]] QVariant currentValue() const override { return zeile_.gezeigt(leiste().value()); }
    [[nodiscard]] QVariant minimumValue() const override { return std::min(unten(), oben()); }
    [[nodiscard]] QVariant maximumValue() const override { return std::max(unten(), oben()); }
    [[nodiscard]] QVariant minimumStepSize() const override {
        return std::abs(oben() - unten()) * leiste().singleStep() / spanne();
    }

    /// The position is the one nearest to the number.
    void setCurrentValue(const QVariant& zahl) override {
        const double anteil = (zahl.toDouble() - unten()) / (oben() - unten());
        leiste().setValue(leiste().minimum() + static_cast<int>(std::lround(anteil * spanne())));
    }

  private:
    [[nodiscard]] Scrollleiste& leiste() const { return static_cast<Scrollleiste&>(*widget()); }
    [[nodiscard]] double unten() const { return zeile_.gezeigt(leiste().minimum()); }
    [[nodiscard]] double oben() const { return zeile_.gezeigt(leiste().maximum()); }
    [[nodiscard]] int spanne() const { return leiste().maximum() - leiste().minimum(); }

    const Scrollzeile& zeile_;
};

/// A list that drops down. The toolkit calls it by its text on some desktops, which leaves open what it is
/// for.
class Listenzugang : public QAccessibleWidget {
  public:
    explicit Listenzugang(QComboBox& kasten) : QAccessibleWidget(&kasten, QAccessible::ComboBox) {}

    [[nodiscard]] QString text(QAccessible::Text was) const override {
        return was == QAccessible::Value ? kasten().currentText() : QAccessibleWidget::text(was);
    }

    [[nodiscard]] int childCount() const override { return 1; }
    [[nodiscard]] QAccessibleInterface* child(int stelle) const override {
        return stelle == 0 ? QAccessible::queryAccessibleInterface(kasten().view()) : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* kind) const override {
        return kind->object() == kasten().view() ? 0 : -1;
    }

    [[nodiscard]] QStringList actionNames() const override { return {showMenuAction()}; }
    void doAction(const QString& name) override {
        if (name == showMenuAction()) kasten().showPopup();
    }

  private:
    [[nodiscard]] QComboBox& kasten() const { return static_cast<QComboBox&>(*widget()); }
};

/// An entry of a drop-down list of the energy plane, named by its text.
class Eintragszugang : public QAccessibleWidget {
  public:
    explicit Eintragszugang(Auswahlschild& schild) : QAccessibleWidget(&schild, QAccessible::ListItem) {}

    [[nodiscard]] QString text(QAccessible::Text was) const override {
        return was == QAccessible::Name ? static_cast<const QLabel*>(widget())->text()
                                        : QAccessibleWidget::text(was);
    }
};

/// As opposed to the closed field.
bool in_tafel(const QWidget& schild) {
    return qobject_cast<const Auswahltafel*>(schild.parentWidget()->parentWidget()) != nullptr;
}

QAccessibleInterface* zugang(const QString&, QObject* objekt) {
    if (auto* leiste = qobject_cast<Scrollleiste*>(objekt)) {
        const Scrollzeile* zeile = scrollzeile(utf8(leiste->objectName()));
        return zeile == nullptr ? nullptr : new Reglerzugang(*leiste, *zeile);
    }
    if (auto* kasten = qobject_cast<Aufklappliste*>(objekt)) return new Listenzugang(*kasten);
    if (auto* schild = qobject_cast<Auswahlschild*>(objekt); schild != nullptr && in_tafel(*schild))
        return new Eintragszugang(*schild);
    if (auto* tafel = qobject_cast<Auswahltafel*>(objekt))
        return new QAccessibleWidget(tafel, QAccessible::List);
    if (auto* balken = qobject_cast<Ebenenbalken*>(objekt))
        return new QAccessibleWidget(balken, QAccessible::PageTabList);
    return nullptr;
}

}  // namespace

void zugang_einrichten() {
    [[maybe_unused]] static const bool eingerichtet = (QAccessible::installFactory(zugang), true);
}

}  // namespace velmaris
