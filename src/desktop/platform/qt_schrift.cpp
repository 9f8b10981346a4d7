#include "desktop/platform/qt_schrift.h"

#include "desktop/platform/qt_text.h"
#include "toolkit/zahlen.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <algorithm>
#include <initializer_list>
#include <tuple>

namespace velmaris {
namespace {

/// The first of the families that is installed, or else the desktop's own of that kind.
QString erste_familie(std::initializer_list<const char*> namen, QFontDatabase::SystemFont sonst) {
    for (const char* name : namen) {
        if (QFontDatabase::hasFamily(qtext(name))) return qtext(name);
    }
    return QFontDatabase::systemFont(sonst).family();
}

int schrifthoehe_pixel(const Schrift& schrift) {
    constexpr double pixel_je_punkt = 96.0 / 72.0;
    return std::max(1, static_cast<int>(runden(schrift.groesse * pixel_je_punkt)));
}

/// By name, height in pixels and weight.
using Schriftbilder = std::map<std::tuple<std::string, int, bool>, Schriftbild>;

/// The fonts made so far; they must go before the application does.
Schriftbilder& schriftbilder() {
    static Schriftbilder bilder;
    static const bool angemeldet = [] {
        qAddPostRoutine([] { bilder.clear(); });
        return true;
    }();
    static_cast<void>(angemeldet);
    return bilder;
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
    QFont font(ersatzfamilie(qtext(schrift.name)));
    font.setPixelSize(schrifthoehe_pixel(schrift));
    font.setBold(schrift.fett);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}

double Schriftbild::breite(std::string_view text) const {
    constexpr std::size_t genug = 2000;
    const auto gemerkt = breiten_.find(text);
    if (gemerkt != breiten_.end()) return gemerkt->second;
    if (breiten_.size() >= genug) breiten_.clear();
    return breiten_.emplace(text, masse.horizontalAdvance(qtext(text))).first->second;
}

const Schriftbild& schriftbild(const Schrift& schrift) {
    const std::tuple art{schrift.name, schrifthoehe_pixel(schrift), schrift.fett};
    const auto vorhanden = schriftbilder().find(art);
    if (vorhanden != schriftbilder().end()) return vorhanden->second;
    return schriftbilder().try_emplace(art, qschrift(schrift)).first->second;
}

}  // namespace velmaris
