#include "desktop/platform/hausstil.h"

#include "desktop/platform/massstab.h"
#include "desktop/platform/stil.h"

#include <QAbstractScrollArea>
#include <QDialogButtonBox>
#include <QPainter>
#include <QPainterPath>
#include <QStyleFactory>
#include <QStyleOption>
#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr qreal rundung = 3;

void rundes_feld(QPainter& maler, const QRect& feld, QColor grund, QColor rand) {
    maler.setPen(rand);
    maler.setBrush(grund);
    maler.drawRoundedRect(QRectF(feld).adjusted(0.5, 0.5, -0.5, -0.5), rundung, rundung);
}

/// What the base style draws with the focus as without it: buttons that Enter presses from anywhere, and
/// texts to be scrolled.
bool zeigt_fokus_kaum(QStyle::PrimitiveElement element, const QWidget* fenster) {
    const bool text = qobject_cast<const QAbstractScrollArea*>(fenster) != nullptr;
    return element == QStyle::PE_PanelButtonCommand || (element == QStyle::PE_Frame && text);
}

void fokusring(QPainter& maler, const QRect& feld, double massstab) {
    const double strich = 1.5 * massstab;
    maler.save();
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(QPen(QColor(stilfarben::betonung), strich));
    maler.setBrush(Qt::NoBrush);
    maler.drawRoundedRect(QRectF(feld).adjusted(strich, strich, -strich, -strich), rundung, rundung);
    maler.restore();
}

/// A small triangle in the middle of a button, that points the way the button moves.
void pfeil(QPainter& maler, const QRect& knopf, Qt::Orientation richtung, qreal groesse, QColor farbe) {
    constexpr qreal halbe_hoehe = 2;
    constexpr qreal halbe_breite = 4;
    QPainterPath dreieck;
    dreieck.moveTo(-halbe_hoehe, -halbe_breite);
    dreieck.lineTo(halbe_hoehe, 0);
    dreieck.lineTo(-halbe_hoehe, halbe_breite);
    maler.save();
    maler.translate(QRectF(knopf).center());
    if (richtung == Qt::Vertical) maler.rotate(90);
    maler.scale(groesse, std::abs(groesse));
    maler.fillPath(dreieck, farbe);
    maler.restore();
}

/// Ground of a part of a scroll bar: by itself, under the pointer, pressed.
QColor grund(const QStyleOptionSlider& balken, QStyle::SubControl teil, QColor ruhe) {
    const bool getroffen =
        balken.activeSubControls.testFlag(teil) && balken.state.testFlag(QStyle::State_Enabled);
    if (!getroffen) return ruhe;
    return balken.state.testFlag(QStyle::State_Sunken) ? ruhe.darker(118) : ruhe.darker(106);
}

/// Scale of what is drawn; the style may be asked without a widget.
double massstab_von(const QWidget* fenster) {
    return fenster == nullptr ? 1 : massstab(*fenster);
}

/// Measures of the base style that follow the scale.
bool waechst(QStyle::PixelMetric groesse) {
    switch (groesse) {
        case QStyle::PM_ButtonMargin:
        case QStyle::PM_ButtonIconSize:
        case QStyle::PM_CheckBoxLabelSpacing:
        case QStyle::PM_ExclusiveIndicatorHeight:
        case QStyle::PM_ExclusiveIndicatorWidth:
        case QStyle::PM_IndicatorHeight:
        case QStyle::PM_IndicatorWidth:
        case QStyle::PM_LargeIconSize:
        case QStyle::PM_MenuBarHMargin:
        case QStyle::PM_MenuBarItemSpacing:
        case QStyle::PM_MenuBarVMargin:
        case QStyle::PM_MessageBoxIconSize:
        case QStyle::PM_RadioButtonLabelSpacing:
        case QStyle::PM_ScrollBarSliderMin:
        case QStyle::PM_SmallIconSize:
            return true;
        default:
            return false;
    }
}

}  // namespace

void fokusrahmen(QPainter& maler, const QRect& feld, double massstab) {
    const qreal breite = std::max(2.0, massstab);  // the letters of a chart begin close to its edge
    maler.save();
    maler.setPen(QPen(QColor(stilfarben::betonung), breite, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    maler.drawRect(QRectF(feld).adjusted(breite / 2, breite / 2, -breite / 2, -breite / 2));
    maler.restore();
}

Hausstil::Hausstil() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

int Hausstil::styleHint(StyleHint hinweis, const QStyleOption* option, const QWidget* fenster,
                        QStyleHintReturn* rueckgabe) const {
    switch (hinweis) {
        case SH_DialogButtonLayout:
            return QDialogButtonBox::WinLayout;
        case SH_ScrollBar_LeftClickAbsolutePosition:
        case SH_DialogButtonBox_ButtonsHaveIcons:
        case SH_ComboBox_Popup:
            return 0;
        default:
            return QProxyStyle::styleHint(hinweis, option, fenster, rueckgabe);
    }
}

int Hausstil::pixelMetric(PixelMetric groesse, const QStyleOption* option, const QWidget* fenster) const {
    const double s = massstab_von(fenster);
    switch (groesse) {
        case PM_ScrollBarExtent:
            return in_pixeln(s, mass::leiste);
        case PM_LayoutLeftMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutBottomMargin:
            return in_pixeln(s, mass::rand);
        case PM_LayoutHorizontalSpacing:
        case PM_LayoutVerticalSpacing:
            return in_pixeln(s, mass::abstand);
        default: {
            const int einheiten = QProxyStyle::pixelMetric(groesse, option, fenster);
            return waechst(groesse) ? in_pixeln(s, einheiten) : einheiten;
        }
    }
}

/// The title of a frame stands inside of it.
QRect Hausstil::subControlRect(ComplexControl bedienteil, const QStyleOptionComplex* option, SubControl teil,
                               const QWidget* fenster) const {
    constexpr int titelabstand = 2;
    const QRect feld = QProxyStyle::subControlRect(bedienteil, option, teil, fenster);
    if (bedienteil != CC_GroupBox) return feld;
    const double s = massstab_von(fenster);
    const int tiefer = in_pixeln(s, titelabstand);
    if (teil == SC_GroupBoxLabel) return feld.translated(in_pixeln(s, mass::rand), tiefer);
    if (teil == SC_GroupBoxContents) return feld.adjusted(0, tiefer, 0, 0);
    return feld;
}

void Hausstil::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* maler,
                             const QWidget* fenster) const {
    if (element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton) {
        zeichne_marke(element, *option, *maler, fenster);
        return;
    }
    if (element != PE_FrameGroupBox) {
        QProxyStyle::drawPrimitive(element, option, maler, fenster);
        if (option->state.testFlag(State_HasFocus) && zeigt_fokus_kaum(element, fenster))
            fokusring(*maler, option->rect, massstab_von(fenster));
        return;
    }
    maler->save();
    maler->setRenderHint(QPainter::Antialiasing);
    rundes_feld(*maler, option->rect, QColor(stilfarben::tafel), QColor(stilfarben::tafelrand));
    maler->restore();
}

/// The box or circle of a check or option field: the base style draws it at one size only.
void Hausstil::zeichne_marke(PrimitiveElement element, const QStyleOption& option, QPainter& maler,
                             const QWidget* fenster) const {
    const double s = massstab_von(fenster);
    QStyleOptionButton klein;
    klein.QStyleOption::operator=(option);
    klein.rect = QRect(QPoint(0, 0), (QSizeF(option.rect.size()) / s).toSize());
    maler.save();
    maler.translate(option.rect.topLeft());
    maler.scale(s, s);
    QProxyStyle::drawPrimitive(element, &klein, &maler, fenster);
    maler.restore();
}

/// The field of a closed list with an arrow of the scale.
void Hausstil::zeichne_liste(const QStyleOptionComboBox& liste, QPainter& maler,
                             const QWidget* fenster) const {
    QStyleOptionComboBox ohne_pfeil(liste);
    ohne_pfeil.subControls.setFlag(SC_ComboBoxArrow, false);
    QProxyStyle::drawComplexControl(CC_ComboBox, &ohne_pfeil, &maler, fenster);
    if (!liste.subControls.testFlag(SC_ComboBoxArrow)) return;
    const QPalette::ColorRole rolle = QPalette::ButtonText;
    maler.save();
    maler.setRenderHint(QPainter::Antialiasing);
    pfeil(maler, subControlRect(CC_ComboBox, &liste, SC_ComboBoxArrow, fenster), Qt::Vertical,
          massstab_von(fenster), liste.palette.color(rolle));
    maler.restore();
}

void Hausstil::drawComplexControl(ComplexControl bedienteil, const QStyleOptionComplex* option,
                                  QPainter* maler, const QWidget* fenster) const {
    if (const auto* liste = qstyleoption_cast<const QStyleOptionComboBox*>(option)) {
        zeichne_liste(*liste, *maler, fenster);
        return;
    }
    const auto* balken = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (bedienteil != CC_ScrollBar || balken == nullptr) {
        QProxyStyle::drawComplexControl(bedienteil, option, maler, fenster);
        return;
    }
    maler->save();
    maler->setRenderHint(QPainter::Antialiasing);
    zeichne_rollbalken(*balken, *maler, fenster);
    maler->restore();
}

void Hausstil::zeichne_rollbalken(const QStyleOptionSlider& balken, QPainter& maler,
                                  const QWidget* fenster) const {
    const auto ort = [&](SubControl teil) { return subControlRect(CC_ScrollBar, &balken, teil, fenster); };
    const bool aktiv = balken.state.testFlag(State_Enabled);
    const bool mit_fokus = balken.state.testFlag(State_HasFocus);
    const QColor betonung(stilfarben::betonung);
    const QColor rand = mit_fokus ? betonung : QColor(stilfarben::tafelrand);
    const QColor zeichen = aktiv ? QColor(stilfarben::nebenschrift) : balken.palette.color(QPalette::Mid);

    rundes_feld(maler, balken.rect, QColor(stilfarben::rille), rand);
    for (const auto& [teil, vorzeichen] : {std::pair{SC_ScrollBarSubLine, -1}, {SC_ScrollBarAddLine, 1}}) {
        const QRect knopf = ort(teil);
        rundes_feld(maler, knopf, grund(balken, teil, balken.palette.color(QPalette::Button)), rand);
        pfeil(maler, knopf, balken.orientation, vorzeichen * massstab_von(fenster), zeichen);
    }
    if (!aktiv || balken.minimum == balken.maximum) return;
    const QRect griff = ort(SC_ScrollBarSlider);
    const QColor griffrand = mit_fokus ? betonung : QColor(stilfarben::griffrand);
    rundes_feld(maler, griff, grund(balken, SC_ScrollBarSlider, QColor(stilfarben::griff)), griffrand);
}

}  // namespace velmaris
