#pragma once

#include <QProxyStyle>

class QPainter;
class QStyleOptionComboBox;
class QStyleOptionSlider;

namespace velmaris {

/// The frame of a picture or a group of figures that has the keyboard, inside the edge of its field; the
/// scale is that of the window.
void fokusrahmen(QPainter& maler, const QRect& feld, double massstab);

/// Fusion with the program's own scroll bars and frames, and the same behaviour on every desktop. Its
/// measures are those of the scale of the window that is drawn.
class Hausstil : public QProxyStyle {
    Q_OBJECT

  public:
    Hausstil();

    [[nodiscard]] int styleHint(StyleHint hinweis, const QStyleOption* option, const QWidget* fenster,
                                QStyleHintReturn* rueckgabe) const override;
    [[nodiscard]] int pixelMetric(PixelMetric groesse, const QStyleOption* option,
                                  const QWidget* fenster) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl bedienteil, const QStyleOptionComplex* option,
                                       SubControl teil, const QWidget* fenster) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* maler,
                       const QWidget* fenster) const override;
    void drawComplexControl(ComplexControl bedienteil, const QStyleOptionComplex* option, QPainter* maler,
                            const QWidget* fenster) const override;

  private:
    void zeichne_marke(PrimitiveElement element, const QStyleOption& option, QPainter& maler,
                       const QWidget* fenster) const;
    void zeichne_liste(const QStyleOptionComboBox& liste, QPainter& maler, const QWidget* fenster) const;
    void zeichne_rollbalken(const QStyleOptionSlider& balken, QPainter& maler, const QWidget* fenster) const;
};

}  // namespace velmaris
