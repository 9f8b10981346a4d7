#include "desktop/platform/massstab.h"

#include <QLabel>
#include <QScreen>
#include <QVariant>
#include <QWidget>
#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr const char* faktor = "massstab";
constexpr const char* platz = "platz_in_einheiten";

/// Takes up what products of a scale lack of a whole number.
constexpr double rundungsrest = 1e-6;

/// Makes a widget as large as its text; one that wraps keeps its width.
void groesse_des_textes(QWidget& fenster) {
    const auto* schild = qobject_cast<const QLabel*>(&fenster);
    if (schild == nullptr || !schild->wordWrap()) {
        fenster.adjustSize();
        return;
    }
    const int breite = std::clamp(fenster.width(), fenster.minimumWidth(), fenster.maximumWidth());
    fenster.resize(breite, fenster.heightForWidth(breite));
}

}  // namespace

double massstab(const QWidget& fenster) {
    for (const QWidget* ort = fenster.window(); ort != nullptr;) {
        const QVariant eigener = ort->property(faktor);
        if (eigener.isValid()) return eigener.toDouble();
        const QWidget* darunter = ort->parentWidget();
        ort = darunter == nullptr ? nullptr : darunter->window();
    }
    return 1;
}

void massstab_setzen(QWidget& fenster, double massstab) {
    fenster.setProperty(faktor, massstab);
}

double passender_massstab(QSize pixel, QSize einheiten) {
    return std::max(1.0, std::min(static_cast<double>(pixel.width()) / einheiten.width(),
                                  static_cast<double>(pixel.height()) / einheiten.height()));
}

double erster_massstab(const QWidget& fenster) {
    constexpr QSize rahmen(8, 36);
    constexpr double stufen = 4;
    const QSize frei = fenster.screen()->availableSize() - rahmen;
    return std::floor(passender_massstab(frei, hauptfenstergroesse) * stufen) / stufen;
}

QSize bildschirmplatz(const QWidget& fenster) {
    constexpr int rest = 80;
    return fenster.screen()->availableSize() - QSize(0, rest);
}

int in_pixeln(double massstab, double einheiten) {
    return static_cast<int>(std::floor(einheiten * massstab + rundungsrest));
}

QSize in_pixeln(double massstab, QSizeF einheiten) {
    return {in_pixeln(massstab, einheiten.width()), in_pixeln(massstab, einheiten.height())};
}

int in_pixeln(const QWidget& fenster, double einheiten) {
    return in_pixeln(massstab(fenster), einheiten);
}

QSize in_einheiten(double massstab, QSize pixel) {
    const auto laenge = [massstab](int p) {
        return static_cast<int>(std::ceil(p / massstab - rundungsrest));
    };
    return {laenge(pixel.width()), laenge(pixel.height())};
}

int schriftpixel(double einheiten, double massstab) {
    return std::max(1, in_pixeln(massstab, einheiten));
}

void schrift_anpassen(QWidget& dialog) {
    QFont schrift = dialog.font();
    schrift.setPixelSize(schriftpixel(schrift.pixelSize(), massstab(dialog)));
    dialog.setFont(schrift);
}

void lege(QWidget& fenster, const QRectF& einheiten) {
    fenster.setProperty(platz, einheiten);
    neu_legen(fenster);
}

void lege(QWidget& fenster, const QPointF& einheiten) {
    fenster.setProperty(platz, einheiten);
    neu_legen(fenster);
}

void neu_legen(QWidget& fenster) {
    const QVariant ort = fenster.property(platz);
    if (!ort.isValid()) return;
    const double s = massstab(fenster);
    const auto ecke = [s](QPointF e) { return QPoint(in_pixeln(s, e.x()), in_pixeln(s, e.y())); };
    if (ort.typeId() == QMetaType::QPointF) {
        groesse_des_textes(fenster);
        fenster.move(ecke(ort.toPointF()));
    } else {
        const QRectF lage = ort.toRectF();
        fenster.setGeometry(QRect(ecke(lage.topLeft()), in_pixeln(s, lage.size())));
    }
}

}  // namespace velmaris
