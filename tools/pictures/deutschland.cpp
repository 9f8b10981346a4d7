#include "tools/pictures/deutschland.h"

#include "tools/pictures/projektion.h"

#include <algorithm>

namespace velmaris::bilder {
namespace {

using Regionsfarben = std::array<Farbe, regionen_anzahl>;

constexpr double strichdicke = 0.7;

constexpr Farbe grund{240, 240, 240};
constexpr Farbe schatten{150, 160, 172};
constexpr Farbe grenze{255, 255, 255};
constexpr Farbe landesgrenze{92, 102, 116};
constexpr Farbe blass{236, 237, 236};
constexpr Farbe betont{28, 36, 50};

constexpr Regionsfarben volle_farben{{
    {126, 180, 212},  // coast
    {186, 212, 146},  // northern lowland
    {200, 124, 128},  // towns of the lowland
    {232, 214, 148},  // low mountains
    {238, 184, 120},  // Franconia
    {222, 128, 92},   // northern Upper Rhine
    {190, 84, 104},   // southern Upper Rhine
    {160, 208, 184},  // Danube basin
    {112, 162, 160},  // Alpine foreland
    {112, 146, 104},  // Black Forest, Alb
    {148, 132, 172},  // high ground of the low mountains
    {74, 118, 178},   // Lake Constance
}};

Regionsfarben regionsfarben(int hervorgehoben) {
    Regionsfarben farben = volle_farben;
    if (hervorgehoben == 0) return farben;
    for (Farbe& farbe : farben)
        farbe = mischung(farbe, blass, 0.5);
    const auto platz = static_cast<std::size_t>(hervorgehoben - 1);
    farben.at(platz) = volle_farben.at(platz);
    return farben;
}

Flaeche alle_ringe(const std::array<Flaeche, regionen_anzahl>& regionen) {
    Flaeche ringe;
    for (const Flaeche& region : regionen)
        ringe.insert(ringe.end(), region.begin(), region.end());
    return ringe;
}

void strich(Bild& bild, const Flaeche& grad, double dicke, Farbe farbe, double deckkraft = 1) {
    const Flaeche pixel = abbilden(grad, deutschlandkarte);
    auftragen(bild, linien(bild.gitter(), strecken(pixel), dicke), farbe, deckkraft);
}

/// A soft rim around the country.
void saum(Bild& bild, const Flaeche& umriss) {
    for (const double dicke : {8.0, 6.0, 4.0, 2.0})
        strich(bild, umriss, dicke, schatten, 0.12);
}

/// Moves the blended pixels that came out equal to a region's colour one step away from it. Pixels that are
/// as in `flaechen`, the flat picture, stay.
void verwechslungen_aufheben(Bild& bild, const Bild& flaechen, const Regionsfarben& farben) {
    const auto ist_regionsfarbe = [&](Farbe f) {
        return std::find(farben.begin(), farben.end(), f) != farben.end();
    };
    for (int y = 0; y < bild.hoehe(); ++y) {
        for (int x = 0; x < bild.breite(); ++x) {
            Farbe& pixel = bild.pixel(x, y);
            if (pixel == flaechen.pixel(x, y)) continue;
            while (ist_regionsfarbe(pixel))
                ++pixel.b;
        }
    }
}

}  // namespace

Bild deutschland_bild(const std::array<Flaeche, regionen_anzahl>& regionen, const Flaeche& umriss,
                      int hervorgehoben, int feinheit) {
    const Regionsfarben farben = regionsfarben(hervorgehoben);
    Bild flaechen({deutschlandgroesse.breite, deutschlandgroesse.hoehe, feinheit}, grund);
    saum(flaechen, umriss);
    for (std::size_t i = 0; i < regionen.size(); ++i) {
        const Flaeche pixel = abbilden(regionen[i], deutschlandkarte);
        auftragen(flaechen, kernfuellung(flaechen.gitter(), pixel), farben[i]);
    }
    Bild bild = flaechen;
    strich(bild, alle_ringe(regionen), strichdicke, grenze);
    strich(bild, umriss, strichdicke, landesgrenze);
    if (hervorgehoben != 0) {
        strich(bild, regionen.at(static_cast<std::size_t>(hervorgehoben - 1)), strichdicke, betont);
    }
    verwechslungen_aufheben(bild, flaechen, farben);
    return bild;
}

}  // namespace velmaris::bilder
