#include "desktop/platform/stil.h"

#include "desktop/platform/hausstil.h"
#include "desktop/platform/massstab.h"
#include "desktop/platform/qt_schrift.h"

#include <QApplication>
#include <QFileInfo>
#include <QIcon>
#include <QToolTip>

namespace velmaris {

QPalette palette_hell() {
    const QColor fenster(stilfarben::fenster);
    const QColor schrift(stilfarben::schrift);
    const QColor weiss(Qt::white);
    QPalette p(schrift, fenster, weiss, QColor(0xA0, 0xA0, 0xA0), QColor(0xC8, 0xC8, 0xC8), schrift, weiss,
               weiss, fenster);
    p.setColor(QPalette::AlternateBase, QColor(stilfarben::tafel));
    p.setColor(QPalette::Midlight, QColor(0xE3, 0xE3, 0xE3));
    p.setColor(QPalette::Shadow, QColor(0x69, 0x69, 0x69));
    p.setColor(QPalette::Highlight, QColor(stilfarben::betonung));
    p.setColor(QPalette::HighlightedText, weiss);
    p.setColor(QPalette::Link, QColor(stilfarben::betonung));
    p.setColor(QPalette::LinkVisited, QColor(0x6A, 0x3F, 0x8E));
    p.setColor(QPalette::ToolTipBase, QColor(0xFF, 0xFF, 0xE6));
    p.setColor(QPalette::ToolTipText, schrift);
    p.setColor(QPalette::PlaceholderText, QColor(stilfarben::nebenschrift));
    const QColor matt(0x8C, 0x90, 0x94);
    for (const QPalette::ColorRole rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, rolle, matt);
    p.setColor(QPalette::Disabled, QPalette::Base, fenster);
    p.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0xB8, 0xBC, 0xC0));
    return p;
}

void stil_setzen() {
    QApplication::setStyle(new Hausstil);
    QApplication::setPalette(palette_hell());
    QToolTip::setPalette(palette_hell());
    QFont font(sans_familie());
    font.setPixelSize(mass::schrift);
    QApplication::setFont(font);
    // The desktop may bring fonts of its own for single classes of widgets.
    for (const char* klasse : {"QMenu", "QMenuBar", "QMessageBox", "QTipLabel", "QStatusBar", "QTitleBar"})
        QApplication::setFont(font, klasse);
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
}

void tippschrift_setzen(double massstab) {
    QFont schrift = QToolTip::font();
    schrift.setPixelSize(schriftpixel(mass::schrift, massstab));
    if (schrift != QToolTip::font()) QToolTip::setFont(schrift);
}

void symbol_setzen(const std::filesystem::path& programmordner) {
    const QIcon bild(QFileInfo(programmordner / "Grafiken" / "velmaris.bmp").filePath());
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("velmaris"), bild));
}

}  // namespace velmaris
