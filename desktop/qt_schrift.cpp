#include "desktop/qt_schrift.h"

#include "desktop/qt_text.h"
#include "toolkit/zahlen.h"

#include <QFontDatabase>
#include <algorithm>
#include <initializer_list>

namespace velmaris {
namespace {

/// The first of the families that is installed, or else the desktop's own of that kind.
QString erste_familie(std::initializer_list<const char*> namen, QFontDatabase::SystemFont sonst) {
    for (const char* name : namen) {
        if (QFontDatabase::hasFamily(qtext(name))) return qtext(name);
    }
    return QFontDatabase::systemFont(sonst).family();
}

}  // namespace

QString sans_familie() {
    static const QString familie =
        erste_familie({"Liberation Sans", "Arial", "Arimo", "Helvetica"}, QFontDatabase::GeneralFont);
    return familie;
}

QString feste_familie() {
    static const QString familie =
        erste_familie({"Liberation Mono", "Courier New", "Cousine"}, QFontDatabase::FixedFont);
    return familie;
}

QString ersatzfamilie(const QString& name) {
    if (QFontDatabase::hasFamily(name)) return name;
    if (name != QLatin1String("Times New Roman")) return sans_familie();
    static const QString serifen =
        erste_familie({"Liberation Serif", "Tinos", "Times"}, QFontDatabase::GeneralFont);
    return serifen;
}

QFont qschrift(const Schrift& schrift) {
    constexpr double pixel_je_punkt = 96.0 / 72.0;
    QFont font(ersatzfamilie(qtext(schrift.name)));
    font.setPixelSize(std::max(1, static_cast<int>(runden(schrift.groesse * pixel_je_punkt))));
    font.setBold(schrift.fett);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}

}  // namespace velmaris
