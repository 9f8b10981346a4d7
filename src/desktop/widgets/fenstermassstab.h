#pragma once

#include <QMargins>
#include <QObject>
#include <QSize>
#include <map>
#include <optional>
#include <vector>

class QLayout;
class QWidget;

namespace velmaris {

/// Scales what stands in a window. Views are built in units, a unit to the pixel; the first time that a
/// widget is met, its measures are kept: font, size limits, margins and spacings of its layout, and the place
/// to which it was laid. From then on it has them times the scale. Widgets that are hidden follow when they
/// come up. Windows over the window have scales of their own, but for its menus.
class Fenstermassstab : public QObject {
    Q_OBJECT

  public:
    explicit Fenstermassstab(QWidget& fenster);

    /// The scale, 1 at first; below 1 there is none.
    void setze(double massstab);

    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

  Q_SIGNALS:
    /// All that is to be seen has the new scale.
    void geaendert(double massstab);

  private:
    /// Measures of a layout; of a grid the smallest columns and rows, of any the spacers.
    struct Layoutmass {
        QMargins raender;
        int abstand_waagrecht = -1;
        int abstand_senkrecht = -1;
        std::vector<int> spalten = {};
        std::vector<int> reihen = {};
        std::map<int, QSize> luft = {};
    };
    /// Measures of a widget, in units.
    struct Urmass {
        std::optional<int> schrift;
        QSize kleinste;
        QSize groesste;
        int einzug = 0;
        int rand = 0;
        double textrand = 0;
        QSize symbol = {};
        std::map<const QLayout*, Layoutmass> layouts = {};
        double massstab = 1;
    };

    [[nodiscard]] static Urmass urmass(const QWidget& ding);
    static void merke(const QLayout& layout, Urmass& mass);
    [[nodiscard]] static Layoutmass layoutmass(const QLayout& layout);
    void messe(QWidget& ding);
    void passe_an(QWidget& ding);
    void wende_an(QWidget& ding, const Urmass& mass) const;
    void wende_an(QLayout& layout, const Urmass& mass) const;

    QWidget& fenster_;
    double massstab_ = 1;
    std::map<const QObject*, Urmass> masse_;
};

}  // namespace velmaris
