#include "desktop/platform/bruch.h"

#include "desktop/platform/massstab.h"

#include <QPainter>
#include <algorithm>
#include <utility>

namespace velmaris {
namespace {

constexpr int ueberhang = 2;  ///< of the line beyond the longer word, units

/// The two sides of the fraction.
std::pair<QString, QString> teile(const QString& text) {
    const QString ganz = text.simplified();
    return {ganz.section(u' ', 0, 0), ganz.section(u' ', 1)};
}

}  // namespace

QSize Bruch::sizeHint() const {
    const auto [oben, unten] = teile(text());
    const QFontMetrics masse = fontMetrics();
    const int breite = std::max(masse.horizontalAdvance(oben), masse.horizontalAdvance(unten));
    return {breite + 2 * in_pixeln(*this, ueberhang), 2 * masse.height() + 1};
}

void Bruch::paintEvent(QPaintEvent*) {
    const auto [oben, unten] = teile(text());
    QPainter maler(this);
    maler.setPen(palette().color(isEnabled() ? QPalette::Normal : QPalette::Disabled, foregroundRole()));
    const int hoehe = fontMetrics().height();
    const QRect feld(0, (height() - sizeHint().height()) / 2, sizeHint().width(), sizeHint().height());
    maler.drawText(QRect(feld.left(), feld.top(), feld.width(), hoehe), Qt::AlignCenter, oben);
    maler.drawText(QRect(feld.left(), feld.top() + hoehe + 1, feld.width(), hoehe), Qt::AlignCenter, unten);
    maler.fillRect(QRect(feld.left(), feld.top() + hoehe, feld.width(), 1), maler.pen().color());
}

}  // namespace velmaris
