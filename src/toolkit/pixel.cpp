#include "toolkit/pixel.h"

#include "toolkit/zahlen.h"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr double weit = 30000;

/// -1, 0 or 1 in the direction of travel.
int richtung(int von, int bis) {
    return (bis > von ? 1 : 0) - (bis < von ? 1 : 0);
}

}  // namespace

int pixel(double koordinate) {
    return static_cast<int>(std::clamp(runden(koordinate), -weit, weit));
}

std::optional<Pixelkasten> pixelkasten(double x1, double y1, double x2, double y2) {
    if (std::isnan(x1) || std::isnan(y1) || std::isnan(x2) || std::isnan(y2)) return std::nullopt;
    const auto [links, rechts] = std::minmax({pixel(x1), pixel(x2)});
    const auto [oben, unten] = std::minmax({pixel(y1), pixel(y2)});
    return Pixelkasten{links, oben, rechts, unten};
}

std::optional<Pixellinie> pixellinie(double x1, double y1, double x2, double y2, int dicke) {
    if (!pixelkasten(x1, y1, x2, y2)) return std::nullopt;
    Pixellinie linie{
        .gerade = std::nullopt, .x1 = pixel(x1), .y1 = pixel(y1), .x2 = pixel(x2), .y2 = pixel(y2)};
    const int dx = richtung(linie.x1, linie.x2);
    const int dy = richtung(linie.y1, linie.y2);
    if (dx == 0 && dy == 0) return std::nullopt;
    if (dx != 0 && dy != 0) return linie;
    const int vor = (dicke - 1) / 2;
    const int nach = dicke / 2;
    linie.gerade = pixelkasten(linie.x1, linie.y1, linie.x2 - dx, linie.y2 - dy);
    (dx == 0 ? linie.gerade->links : linie.gerade->oben) -= vor;
    (dx == 0 ? linie.gerade->rechts : linie.gerade->unten) += nach;
    return linie;
}

}  // namespace velmaris
