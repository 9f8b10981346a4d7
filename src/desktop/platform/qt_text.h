#pragma once

#include "toolkit/zeichenflaeche.h"

#include <QColor>
#include <QString>
#include <string>
#include <string_view>

namespace velmaris {

[[nodiscard]] inline QString qtext(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// A text for widgets: lines may end at CR, LF or both.
[[nodiscard]] inline QString zeilentext(std::string_view utf8) {
    return qtext(utf8).replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
}

/// A text for a label that has no access keys: two ampersands stand for one.
[[nodiscard]] inline QString schildtext(std::string_view utf8) {
    return zeilentext(utf8).replace(QLatin1String("&&"), QLatin1String("&"));
}

[[nodiscard]] inline std::string utf8(const QString& text) {
    return text.toStdString();
}

[[nodiscard]] inline QColor qfarbe(Farbe farbe) {
    return {farbe.r, farbe.g, farbe.b};
}

}  // namespace velmaris
