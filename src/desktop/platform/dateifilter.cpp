#include "desktop/platform/dateifilter.h"

#include "desktop/platform/qt_text.h"

namespace velmaris {

QStringList dateifilter(std::string_view filter) {
    QStringList zeilen;
    const QStringList teile = qtext(filter).split(u'|');
    for (qsizetype i = 0; i + 1 < teile.size(); i += 2) {
        QStringList muster = teile[i + 1].split(u';', Qt::SkipEmptyParts);
        muster.replaceInStrings(QStringLiteral("*.*"), QStringLiteral("*"));
        zeilen.append(teile[i] + QStringLiteral(" (") + muster.join(u' ') + u')');
    }
    return zeilen;
}

}  // namespace velmaris
