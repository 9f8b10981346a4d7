#include "desktop/widgets/bildflaeche.h"

#include "desktop/platform/bilddatei.h"
#include "desktop/platform/hausstil.h"
#include "desktop/platform/massstab.h"
#include "desktop/platform/qt_text.h"
#include "desktop/widgets/bildzugang.h"
#include "desktop/widgets/binde.h"
#include "desktop/widgets/taste.h"
#include "toolkit/text.h"

#include <QAccessible>
#include <QCursor>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace velmaris {

Bildflaeche::Bildflaeche(Bildfeld& feld, const Fehlerwache& wache, QWidget* eltern, Farbe hintergrund)
    : QWidget(eltern), feld_(feld), wache_(wache), hintergrund_(hintergrund) {
    setObjectName(qtext(feld.name));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    // A click on a chart that does nothing is a click on its plane.
    if (feld.gedrueckt || feld.werte) setFocusPolicy(feld.gedrueckt ? Qt::StrongFocus : Qt::TabFocus);
    bildzugang_einrichten();
    feld.ansicht = [this] { feld_zeigen(); };
    feld.lies_punkt = [this](double x, double y) { return flaeche().lies_punkt(x, y); };
    feld_zeigen();
}

Bildflaeche::~Bildflaeche() {
    feld_.ansicht = nullptr;
    feld_.lies_punkt = nullptr;
}

QtFlaeche& Bildflaeche::flaeche() {
    const QSizeF pixel = QSizeF(size()) * devicePixelRatioF();
    if (pixel != pixel_) {
        pixel_ = pixel;
        // The same for both sides, and enough to cover them: a side may be rounded up.
        const QSize einheiten = in_einheiten();
        flaeche_.emplace(einheiten,
                         std::max(pixel.width() / einheiten.width(), pixel.height() / einheiten.height()),
                         hintergrund_);
        veraltet_ = true;
    }
    if (geladen_ != feld_.bild()) bild_laden();
    if (veraltet_) {
        veraltet_ = false;
        flaeche_->hintergrundbild(bild_, flaeche_->verhaeltnis() > 1 ? feines_bild() : QImage());
        flaeche_->Cls();
        wache_.fuehre_aus([this] {
            if (feld_.zeichnen) feld_.zeichnen(*flaeche_);
        });
    }
    return *flaeche_;
}

/// The size of the surface as its plane draws on it, whatever the scale of the window.
QSize Bildflaeche::in_einheiten() const {
    return velmaris::in_einheiten(massstab(*this), size()).expandedTo(QSize(1, 1));
}

/// A place in the units of the surface.
QPointF Bildflaeche::in_einheiten(QPointF ort) const {
    const QSize einheiten = in_einheiten();
    return {std::floor(ort.x() * einheiten.width() / width()),
            std::floor(ort.y() * einheiten.height() / height())};
}

/// Brings the record's state to the widget; drawing waits for the next paint event.
void Bildflaeche::feld_zeigen() {
    veraltet_ = true;
    grundzustand(*this, feld_);
    update();
    if (!feld_.werte || !QAccessible::isActive()) return;
    QAccessibleEvent neue_werte(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&neue_werte);
}

void Bildflaeche::bild_laden() {
    geladen_ = feld_.bild();
    bild_ = geladen_.empty() ? QImage() : bild_lesen(geladen_);
    feines_bild_.reset();
    if (!geladen_.empty() && bild_.isNull()) {
        // A message box must not come up in the middle of a paint event.
        QMetaObject::invokeMethod(
            this, [this] { melde_bildfehler(); }, Qt::QueuedConnection);
    }
}

/// Where pictures stay at their size the fine edition is never read.
const QImage& Bildflaeche::feines_bild() {
    if (!feines_bild_) feines_bild_ = geladen_.empty() ? QImage() : feines_bild_lesen(geladen_);
    return *feines_bild_;
}

void Bildflaeche::melde_bildfehler() {
    wache_.fuehre_aus([this] {
        throw Dateifehler(pfadtext(geladen_), {"Das Bild fehlt oder ist nicht lesbar.",
                                               "The picture is missing or cannot be read."});
    });
}

void Bildflaeche::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    const QImage& bild = flaeche().bild();
    QImage pixel(bild.constBits(), bild.width(), bild.height(), bild.bytesPerLine(), bild.format());
    pixel.setDevicePixelRatio(devicePixelRatioF());
    maler.drawImage(QPointF(0, 0), pixel);
    if (hasFocus()) fokusrahmen(maler, rect(), massstab(*this));
}

void Bildflaeche::keyPressEvent(QKeyEvent* ereignis) {
    if (!feld_.gedrueckt || !ist_drucktaste(*ereignis)) return QWidget::keyPressEvent(ereignis);
    wache_.fuehre_aus(feld_.gedrueckt);
}

void Bildflaeche::mouseMoveEvent(QMouseEvent* ereignis) {
    const QPointF ort = in_einheiten(ereignis->position());
    wache_.fuehre_aus([&] {
        if (feld_.maus_bewegt) feld_.maus_bewegt(ort.x(), ort.y());
    });
}

/// Takes the press, so that the release comes to this widget.
void Bildflaeche::mousePressEvent(QMouseEvent* ereignis) {
    ereignis->setAccepted(static_cast<bool>(feld_.maus_geklickt));
}

void Bildflaeche::mouseReleaseEvent(QMouseEvent* ereignis) {
    if (ereignis->button() != Qt::LeftButton || !rect().contains(ereignis->position().toPoint())) return;
    const QPointF ort = in_einheiten(ereignis->position());
    wache_.fuehre_aus([&] {
        if (feld_.maus_geklickt) feld_.maus_geklickt(ort.x(), ort.y());
    });
}

void Bildflaeche::enterEvent(QEnterEvent*) {
    setCursor(feld_.maus_geklickt ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

/// A pointer that has left the surface is told as a move to a place outside of it. A panel that lies over
/// the surface under the pointer, as the charts' tooltips do, is no leaving; its own leaving is its affair.
/// The place of the pointer alone proves nothing: it may be the last one that the window was told.
void Bildflaeche::leaveEvent(QEvent*) {
    const QPoint zeiger = QCursor::pos();
    const QWidget* dort = window()->childAt(window()->mapFromGlobal(zeiger));
    const bool verdeckt = isVisible() && dort != nullptr && dort != this;
    if (verdeckt && rect().contains(mapFromGlobal(zeiger))) return;
    wache_.fuehre_aus([this] {
        if (feld_.maus_bewegt) feld_.maus_bewegt(-1, -1);
    });
}

}  // namespace velmaris
