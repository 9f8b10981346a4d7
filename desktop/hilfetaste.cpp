#include "desktop/hilfetaste.h"

#include "desktop/qt_text.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace velmaris {
namespace {

constexpr QLatin1String leiste("_Menue");

/// Planes and windows with a page of their own carry its name.
bool hat_seite(const QString& name) {
    const bool ebene = name.startsWith(QLatin1String("E_")) || name.startsWith(QLatin1String("A_"));
    return (ebene && !name.endsWith(leiste)) || name == QLatin1String("Drucken");
}

/// The plane on show within a widget whose name begins so.
QString gezeigte_ebene(const QWidget& flaeche, QStringView anfang) {
    for (const QWidget* ebene : flaeche.findChildren<QWidget*>()) {
        QString name = ebene->objectName();
        if (!ebene->isHidden() && !ebene->isWindow() && hat_seite(name) && name.startsWith(anfang))
            return name;
    }
    return {};
}

/// The page for a widget: that of the plane or window around it; from a button bar, or where no plane holds
/// the focus, that of the plane on show.
QString seite_zu(const QWidget* von) {
    for (const QWidget* ort = von; ort != nullptr; ort = ort->parentWidget()) {
        QString name = ort->objectName();
        if (hat_seite(name)) return name;
        if (name.endsWith(leiste)) return gezeigte_ebene(*ort->parentWidget(), QStringView(name).left(2));
        if (QString ebene = gezeigte_ebene(*ort, u"E_"); !ebene.isEmpty()) return ebene;
    }
    return {};
}

bool ist_f1(const QEvent& ereignis) {
    const auto& taste = static_cast<const QKeyEvent&>(ereignis);
    return taste.key() == Qt::Key_F1 && taste.modifiers() == Qt::NoModifier;
}

}  // namespace

Hilfetaste::Hilfetaste(std::function<void(const std::string& seite)> zeigen) : zeigen_(std::move(zeigen)) {
    qApp->installEventFilter(this);
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
