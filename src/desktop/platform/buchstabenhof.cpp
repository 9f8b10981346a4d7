#include "desktop/platform/buchstabenhof.h"

#include "toolkit/zeichenflaeche.h"

#include <QGlyphRun>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <QTextLayout>
#include <cmath>

namespace velmaris {
namespace {

constexpr int teile = 64;                         ///< of a pixel, as fine as the toolkit places letters
constexpr double weiter_als_jeder_text = 100000;  ///< pixels

/// A place as a whole pixel and what is left in 64ths.
struct Rasterort {
    QPoint pixel;
    QPoint rest;
};

Rasterort rasterort(QPointF ort) {
    const QPoint ganz(static_cast<int>(std::floor(ort.x())), static_cast<int>(std::floor(ort.y())));
    return {ganz, ((ort - ganz) * teile).toPoint()};
}

/// The letters of a text on one line, the line's left end on the base line at the origin.
QList<QGlyphRun> gesetzt(const QString& text, const QFont& schrift) {
    QTextLayout satz(text, schrift);
    satz.beginLayout();
    QTextLine zeile = satz.createLine();
    zeile.setLineWidth(weiter_als_jeder_text);
    zeile.setPosition({0, -zeile.ascent()});
    satz.endLayout();
    return satz.glyphRuns();
}

/// Draws the edge around the outline of a letter; `ort` becomes the top left against its origin.
QImage deckung(const QPainterPath& buchstabe, const QPoint& rest, double verhaeltnis, QPoint& ort) {
    const QPointF anfang = QPointF(rest) / teile;
    const double reichweite = hofbreite * verhaeltnis + 1;
    const QRectF raum = QTransform::fromScale(verhaeltnis, verhaeltnis).mapRect(buchstabe.boundingRect());
    const QRect feld =
        raum.adjusted(-reichweite, -reichweite, reichweite, reichweite).translated(anfang).toAlignedRect();
    ort = feld.topLeft();
    QImage bild(feld.size(), QImage::Format_Alpha8);
    bild.fill(0);
    QPainter maler(&bild);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.translate(anfang - ort);
    maler.scale(verhaeltnis, verhaeltnis);
    maler.strokePath(buchstabe, QPen(Qt::black, 2 * hofbreite, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    return bild;
}

}  // namespace

std::vector<Buchstabenhof> Buchstabenhoefe::um(const QString& text, QPointF ort, double verhaeltnis) {
    constexpr std::size_t genug = 1000;
    if (vorlagen_.size() > genug) vorlagen_.clear();
    std::vector<Buchstabenhof> hoefe;
    for (const QGlyphRun& lauf : gesetzt(text, schrift_)) {
        const QRawFont schrift = lauf.rawFont();
        for (qsizetype i = 0; i < lauf.glyphIndexes().size(); ++i) {
            const quint32 nummer = lauf.glyphIndexes()[i];
            const auto [pixel, rest] = rasterort(ort + verhaeltnis * lauf.positions()[i]);
            const auto [eintrag, neu] =
                vorlagen_.try_emplace({schrift.familyName(), nummer, rest.x(), rest.y(), verhaeltnis});
            Vorlage& vorlage = eintrag->second;
            if (neu)
                vorlage.deckung = deckung(schrift.pathForGlyph(nummer), rest, verhaeltnis, vorlage.versatz);
            hoefe.push_back({pixel + vorlage.versatz, &vorlage.deckung});
        }
    }
    return hoefe;
}

}  // namespace velmaris
