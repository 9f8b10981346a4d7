#include "desktop/widgets/eingabetipp.h"

#include "desktop/platform/qt_text.h"

#include <QStringList>
#include <QWidget>

namespace velmaris {

QString tippabsatz(const QString& text) {
    return QStringLiteral("<p>") + text.toHtmlEscaped() + QStringLiteral("</p>");
}

void eingabetipp(QWidget& fenster, const Eingabehinweis& hinweis, std::string_view sprache) {
    QStringList absaetze, saetze;
    for (const std::string& zeile : hinweiszeilen(hinweis, sprache)) {
        absaetze.append(qtext(zeile).toHtmlEscaped());
        if (absaetze.size() > 1) saetze.append(qtext(zeile));
    }
    absaetze.front() = QStringLiteral("<b>") + absaetze.front() + QStringLiteral("</b>");
    fenster.setToolTip(QStringLiteral("<p>") + absaetze.join(QStringLiteral("<br>")) +
                       QStringLiteral("</p>"));
    fenster.setAccessibleDescription(saetze.join(u' '));
}

}  // namespace velmaris
