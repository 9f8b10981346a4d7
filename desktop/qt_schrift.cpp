#include "desktop/qt_schrift.h"

#include "desktop/qt_text.h"
#include "toolkit/zahlen.h"

#include <QFontDatabase>
#include <algorithm>

namespace velmaris {

QString sans_familie() {
    static const QString familie = [] {
        for (const char* name : {"Liberation Sans", "Arial", "Arimo", "Helvetica"}) {
            if (QFontDatabase::hasFamily(qtext(name))) return qtext(name);
        }
        return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
    }();
    return familie;
}

QFont qschrift(const Schrift& schrift) {
    constexpr double pixel_je_punkt = 96.0 / 72.0;
    const QString name = qtext(schrift.name);
    QFont font(QFontDatabase::hasFamily(name) ? name : sans_familie());
    font.setPixelSize(std::max(1, static_cast<int>(runden(schrift.groesse * pixel_je_punkt))));
    font.setBold(schrift.fett);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}

}  // namespace velmaris
