#include "desktop/help/hilfetaste.h"

#include "desktop/platform/qt_text.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace velmaris {
namespace {

/// Planes and windows with a page of their own carry its name; a button bar has none.
bool hat_seite(const QString& name) {
    const bool ebene = name.startsWith(QLatin1String("E_")) || name.startsWith(QLatin1String("A_"));
    return (ebene && !name.endsWith(QLatin1String("_Menue"))) || name == QLatin1String("Drucken");
}

bool ist_f1(const QEvent& ereignis) {
    const auto& taste = static_cast<const QKeyEvent&>(ereignis);
    return taste.key() == Qt::Key_F1 && taste.modifiers() == Qt::NoModifier;
}

}  // namespace

Hilfetaste::Hilfetaste(std::function<void(const std::string& seite)> zeigen,
                       std::function<QString()> ebene_in_gebrauch)
    : zeigen_(std::move(zeigen)), ebene_in_gebrauch_(std::move(ebene_in_gebrauch)) {
    qApp->installEventFilter(this);
}

QString Hilfetaste::seite_zu(const QWidget* von) const {
    for (const QWidget* ort = von; ort != nullptr; ort = ort->parentWidget()) {
        QString name = ort->objectName();
        if (hat_seite(name)) return name;
        if (name == QLatin1String("Haupt")) return ebene_in_gebrauch_();
    }
    return {};
}

bool Hilfetaste::eventFilter(QObject* fenster, QEvent* ereignis) {
    const bool vorab = ereignis->type() == QEvent::ShortcutOverride;
    const auto* ort = qobject_cast<const QWidget*>(fenster);
    if (ort == nullptr || (!vorab && ereignis->type() != QEvent::KeyPress) || !ist_f1(*ereignis))
        return false;
    ereignis->accept();
    if (!vorab) zeigen_(utf8(seite_zu(ort)));
    return true;
}

}  // namespace velmaris
