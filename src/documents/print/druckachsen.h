#pragma once

#include "charts/balkenfarben.h"
#include "documents/print/blatt.h"

#include <initializer_list>
#include <string_view>

namespace velmaris {

/// Colours of the printed bars by what they stand for: those of the screen, and those that paper has of its
/// own.
namespace druckfarben {
using balkenfarben::endenergie, balkenfarben::endenergie_strom, balkenfarben::heizen, balkenfarben::komfort,
    balkenfarben::kuehlen, balkenfarben::primaerenergie, balkenfarben::primaerenergie_strom,
    balkenfarben::solar, balkenfarben::ueberwaermung;
inline constexpr Farbe transmission{0, 255, 255};
inline constexpr Farbe lueftung{255, 0, 255};
inline constexpr Farbe intern{0, 0, 255};
inline constexpr Farbe kuehlenergie{0, 0, 255};
inline constexpr Farbe kuehlprimaerenergie{0, 0, 128};
}  // namespace druckfarben

/// A rectangle on the page, millimetres.
struct Druckkasten {
    double links;
    double oben;
    double rechts;
    double unten;
};

/// Where a diagram stands: its box, the vertical axis from `unten` up to `oben`, the end of the horizontal
/// axis, and where its unit is printed. Millimetres.
struct Diagrammlage {
    Druckkasten kasten;
    double achse;
    double unten;
    double oben;
    double rechts;
    double einheit;
};

/// The box (25..133 mm) that the diagrams by months share, from `oben` to `unten`, with a vertical axis from
/// 6 mm above its lower edge up to 6 mm below its upper edge.
[[nodiscard]] constexpr Diagrammlage monatsdiagramm(double oben, double unten) {
    return {{25, oben, 133, unten}, 35, unten - 6, oben + 6, 131, 28};
}

/// A piece of a bar.
struct Druckabschnitt {
    double wert;
    Farbe farbe;
};

/// A diagram with its scale: `teile` steps of `schritt` up to the top of the axis.
class Druckdiagramm {
  public:
    /// Prints the box, the axes with their numbers, and the unit.
    Druckdiagramm(Blatt& blatt, const Diagrammlage& lage, double schritt, int teile,
                  std::string_view einheit);

    /// A bar of pieces upon each other, from the axis upward, with the axis under it anew; pieces of no
    /// height are left out.
    void stapel(double x1, double x2, std::initializer_list<Druckabschnitt> abschnitte) const;

    /// The names of the months, and a name in the middle under the axis.
    void monatsnamen() const;
    void name(std::string_view name) const;

  private:
    [[nodiscard]] double y(double wert) const;

    Blatt& blatt_;
    Diagrammlage lage_;
    double schritt_;
    int teile_;
};

/// Left edge of the bars of month m (1..12) of a diagram by months.
[[nodiscard]] constexpr double monatsbalken(int m) {
    return 35.5 + 8.0 * (m - 1);
}

/// A colour with its meaning, in the font of the diagrams.
void legendeneintrag(Blatt& blatt, double x, double y, Farbe farbe, const Wort& name);

/// The font of the diagrams.
void diagrammschrift(Blatt& blatt);

}  // namespace velmaris
