#include "desktop/platform/meldungstext.h"

#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QTextBoundaryFinder>
#include <algorithm>

namespace velmaris {
namespace {

/// Widest text of a message box on a screen. A box takes no more than 1000 pixels and leaves 480 of the
/// screen free unless that is small; icon and margins take the rest.
int groesste_textbreite(const QScreen& schirm) {
    constexpr int kleiner_schirm = 1024;
    constexpr int groesster_schirm = 1480;
    constexpr int frei = 480;
    constexpr int rand = 100;
    const int breite = schirm.availableSize().width();
    return breite <= kleiner_schirm ? breite * 3 / 5 : std::min(breite, groesster_schirm) - frei - rand;
}

}  // namespace

QString brechbar(const QString& text, const QFontMetrics& schrift, int breite) {
    constexpr QChar bruchstelle(0x200B);
    QString neu;
    QTextBoundaryFinder stellen(QTextBoundaryFinder::Line, text);
    for (qsizetype von = 0, bis = stellen.toNextBoundary(); bis >= 0; bis = stellen.toNextBoundary()) {
        const QString stueck = text.mid(von, bis - von);
        von = bis;
        if (schrift.horizontalAdvance(stueck.trimmed()) <= breite) {
            neu += stueck;
            continue;
        }
        QTextBoundaryFinder zeichen(QTextBoundaryFinder::Grapheme, stueck);
        for (qsizetype anfang = 0, ende = zeichen.toNextBoundary(); ende >= 0;
             ende = zeichen.toNextBoundary()) {
            neu += QStringView(stueck).mid(anfang, ende - anfang);
            neu += bruchstelle;
            anfang = ende;
        }
    }
    return neu;
}

void meldungstexte_einrichten(QMessageBox& fenster) {
    constexpr int spiel = 2;
    const int hoechstens = groesste_textbreite(*fenster.screen());
    fenster.setTextFormat(Qt::PlainText);
    for (QLabel* schild : fenster.findChildren<QLabel*>()) {
        if (!schild->pixmap().isNull()) continue;
        schild->setTextFormat(Qt::PlainText);
        const QFontMetrics schrift = schild->fontMetrics();
        schild->setMinimumWidth(std::min(schrift.size(0, schild->text()).width() + spiel, hoechstens));
        schild->setText(brechbar(schild->text(), schrift, hoechstens));
    }
}

}  // namespace velmaris
