#include "desktop/widgets/kartenwahl.h"

#include "desktop/platform/massstab.h"
#include "desktop/platform/qt_text.h"
#include "desktop/platform/stil.h"
#include "desktop/widgets/taste.h"

#include <QKeyEvent>
#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <array>
#include <optional>

namespace velmaris {
namespace {

constexpr double halbe_marke = 7;  // in units

/// A ring around a place of a map, dark on light so that it stands out from any ground.
class Ortsmarke : public QWidget {
  public:
    explicit Ortsmarke(QWidget* karte) : QWidget(karte) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        const double strich = width() / (2 * halbe_marke);
        QPainter maler(this);
        maler.setRenderHint(QPainter::Antialiasing);
        const QRectF ring = QRectF(rect()).adjusted(2 * strich, 2 * strich, -2 * strich, -2 * strich);
        for (const auto& [farbe, breite] :
             {std::pair{QColor(Qt::white), 4.0}, {QColor(stilfarben::betonung), 2.0}}) {
            maler.setPen(QPen(farbe, breite * strich));
            maler.drawEllipse(ring);
        }
    }
};

std::optional<Kartenweg::Richtung> richtung(int taste) {
    using Richtung = Kartenweg::Richtung;
    constexpr std::array<std::pair<Qt::Key, Richtung>, 8> tafel{{{Qt::Key_Left, Richtung::links},
                                                                 {Qt::Key_Right, Richtung::rechts},
                                                                 {Qt::Key_Up, Richtung::oben},
                                                                 {Qt::Key_Down, Richtung::unten},
                                                                 {Qt::Key_PageDown, Richtung::vor},
                                                                 {Qt::Key_PageUp, Richtung::zurueck},
                                                                 {Qt::Key_Home, Richtung::anfang},
                                                                 {Qt::Key_End, Richtung::ende}}};
    const auto* zeile =
        std::find_if(tafel.begin(), tafel.end(), [taste](const auto& eine) { return eine.first == taste; });
    return zeile == tafel.end() ? std::nullopt : std::optional(zeile->second);
}

}  // namespace

Kartenwahl::Kartenwahl(Kartenweg& weg, QWidget& karte, const Fehlerwache& wache)
    : QObject(&karte), weg_(weg), karte_(karte), wache_(wache), marke_(new Ortsmarke(&karte)) {
    karte.setFocusPolicy(Qt::TabFocus);
    karte.installEventFilter(this);
}

bool Kartenwahl::eventFilter(QObject* karte, QEvent* ereignis) {
    switch (ereignis->type()) {
        case QEvent::FocusIn:
            tue([this] { weg_.beginne(); });
            break;
        case QEvent::FocusOut:
            tue([this] { weg_.beende(); });
            break;
        case QEvent::KeyPress: {
            const auto& taste = static_cast<const QKeyEvent&>(*ereignis);
            const auto wohin = richtung(taste.key());
            if (!wohin && !ist_drucktaste(taste)) break;
            tue([&] { wohin ? weg_.gehe(*wohin) : weg_.nimm(); });
            return true;
        }
        default:
            break;
    }
    return QObject::eventFilter(karte, ereignis);
}

void Kartenwahl::tue(const std::function<void()>& schritt) {
    wache_.fuehre_aus(schritt);
    zeigen();
}

void Kartenwahl::zeigen() {
    const auto ort = weg_.ort();
    if (ort)
        lege(*marke_, QRectF(ort->x - halbe_marke, ort->y - halbe_marke, 2 * halbe_marke, 2 * halbe_marke));
    marke_->setVisible(ort.has_value());
    karte_.setAccessibleDescription(qtext(weg_.name()));
}

}  // namespace velmaris
