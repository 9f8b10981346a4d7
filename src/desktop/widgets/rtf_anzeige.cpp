#include "desktop/widgets/rtf_anzeige.h"

#include "desktop/platform/qt_schrift.h"
#include "desktop/platform/qt_text.h"

#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextOption>

namespace velmaris {
namespace {

QTextCharFormat zeichenformat(const Textstueck& stueck) {
    QTextCharFormat format;
    format.setFontFamilies({ersatzfamilie(qtext(stueck.schrift))});
    format.setFontPointSize(stueck.groesse);
    format.setFontWeight(stueck.fett ? QFont::Bold : QFont::Normal);
    format.setFontItalic(stueck.kursiv);
    format.setFontUnderline(stueck.unterstrichen);
    if (stueck.tiefgestellt) format.setVerticalAlignment(QTextCharFormat::AlignSubScript);
    return format;
}

QTextBlockFormat absatzformat(const Absatz& absatz, double pixel_je_punkt) {
    QTextBlockFormat format;
    format.setAlignment(absatz.zentriert ? Qt::AlignHCenter : Qt::AlignLeft);
    QList<QTextOption::Tab> tabs;
    for (const double stelle : absatz.tabstopps)
        tabs.append(QTextOption::Tab(stelle * pixel_je_punkt, QTextOption::LeftTab));
    format.setTabPositions(tabs);
    if (absatz.neue_seite) format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    return format;
}

}  // namespace

void setze_absaetze(QTextDocument& dokument, const std::vector<Absatz>& absaetze, double pixel_je_punkt) {
    dokument.clear();
    QTextCursor schreiber(&dokument);
    schreiber.beginEditBlock();
    bool erster = true;
    for (const Absatz& absatz : absaetze) {
        const QTextBlockFormat format = absatzformat(absatz, pixel_je_punkt);
        const QTextCharFormat ende = zeichenformat({.text = {}, .groesse = absatz.groesse});
        if (erster) {
            schreiber.setBlockFormat(format);
            schreiber.setBlockCharFormat(ende);
        } else {
            schreiber.insertBlock(format, ende);
        }
        erster = false;
        for (const Textstueck& stueck : absatz.stuecke)
            schreiber.insertText(qtext(stueck.text), zeichenformat(stueck));
    }
    schreiber.endEditBlock();
}

}  // namespace velmaris
