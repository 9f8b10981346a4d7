#include "tools/pictures/erdkarten.h"

#include "tools/pictures/projektion.h"
#include "tools/pictures/umrisse.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace velmaris::bilder {
namespace {

// Darkish and cool, so that the yellow and red dots of the stations stand out.
constexpr Farbe wasser{72, 112, 150};
constexpr Farbe flachwasser{118, 156, 186};
constexpr Farbe gradnetz{96, 134, 168};
constexpr Farbe landfarbe{136, 154, 128};
constexpr Farbe kueste{58, 80, 92};
constexpr Farbe grenze{198, 208, 188};

/// What a map shows, in units of the drawing.
struct Karteninhalt {
    Flaeche land;
    std::vector<Strecke> kuesten;
    std::vector<Strecke> grenzen;
    std::vector<Strecke> netz;
};

Bild karte_malen(const Gitter& gitter, const Karteninhalt& inhalt, double strichdicke) {
    Bild bild(gitter, wasser);
    const auto strich = [&](const std::vector<Strecke>& strecken, double dicke, Farbe farbe, double kraft) {
        auftragen(bild, linien(gitter, strecken, dicke * strichdicke), farbe, kraft);
    };
    strich(inhalt.netz, 0.6, gradnetz, 0.7);
    for (const double dicke : {9.0, 6.0, 3.0})
        strich(inhalt.kuesten, dicke, flachwasser, 0.25);
    auftragen(bild, fuellung(gitter, inhalt.land), landfarbe);
    strich(inhalt.grenzen, 0.7, grenze, 0.75);
    strich(inhalt.kuesten, 0.6, kueste, 0.8);
    return bild;
}

/// A station's dot stands on the centre of its pixel, half a pixel from the pixel's corner.
Punkt auf_pixelmitte(Punkt p) {
    return {p.x + 0.5, p.y + 0.5};
}

template <class Projektion>
std::vector<Strecke> abbilden(std::vector<Strecke> strecken, const Projektion& projektion) {
    for (Strecke& s : strecken)
        s = {projektion(s.a), projektion(s.b)};
    return strecken;
}

/// Meridians and parallels at every `schritt` degrees. They are straight on both maps.
std::vector<Strecke> gradnetz_strecken(int schritt) {
    std::vector<Strecke> netz;
    for (double grad = -180; grad <= 180; grad += schritt) {
        netz.push_back({{grad, -90}, {grad, 90}});
        if (std::abs(grad) < 90) netz.push_back({{-540, grad}, {540, grad}});
    }
    return netz;
}

/// Sorts the pieces of all rings into those that two rings share (borders) and the others (coasts).
void kanten_trennen(const Flaeche& laender, std::vector<Strecke>& grenzen, std::vector<Strecke>& kuesten) {
    const auto schluessel = [](const Strecke& s) { return std::tuple(s.a.x, s.a.y, s.b.x, s.b.y); };
    std::vector<Strecke> alle = strecken(laender);
    for (Strecke& s : alle) {
        if (std::tie(s.b.x, s.b.y) < std::tie(s.a.x, s.a.y)) std::swap(s.a, s.b);
    }
    std::sort(alle.begin(), alle.end(),
              [&](const Strecke& l, const Strecke& r) { return schluessel(l) < schluessel(r); });
    for (std::size_t i = 0; i < alle.size();) {
        const bool doppelt = i + 1 < alle.size() && schluessel(alle[i]) == schluessel(alle[i + 1]);
        (doppelt ? grenzen : kuesten).push_back(alle[i]);
        i += doppelt ? 2 : 1;
    }
}

/// The rings three times: in place and a turn of the globe to either side.
Flaeche mit_nachbarerden(const Flaeche& land) {
    Flaeche ergebnis;
    for (const double drehung : {-360.0, 0.0, 360.0}) {
        const Flaeche gedreht = abbilden(land, [drehung](Punkt ort) {
            return Punkt{ort.x + drehung, ort.y};
        });
        ergebnis.insert(ergebnis.end(), gedreht.begin(), gedreht.end());
    }
    return ergebnis;
}

/// True for a piece that runs along the cut at 180 degrees, where land goes on.
bool ist_schnittkante(const Strecke& s) {
    return s.a.x == s.b.x && std::abs(std::remainder(s.a.x, 360.0)) == 180.0;
}

}  // namespace

Bild europa_bild(const Flaeche& laender, int feinheit) {
    const auto projektion = [](Punkt ort) { return auf_pixelmitte(europakarte(ort)); };
    Karteninhalt inhalt;
    kanten_trennen(laender, inhalt.grenzen, inhalt.kuesten);
    inhalt.grenzen = abbilden(inhalt.grenzen, projektion);
    inhalt.kuesten = abbilden(inhalt.kuesten, projektion);
    inhalt.netz = abbilden(gradnetz_strecken(10), projektion);
    inhalt.land = abbilden(laender, projektion);
    return karte_malen({europagroesse.breite, europagroesse.hoehe, feinheit}, inhalt, 1);
}

Bild welt_bild(const Flaeche& land, const std::vector<Strecke>& grenzen, double massstab, int feinheit) {
    const auto projektion = [massstab](Punkt ort) {
        const Punkt p = weltkarte(ort);
        return auf_pixelmitte({p.x * massstab, p.y * massstab});
    };
    const Flaeche ringe = mit_nachbarerden(land);
    std::vector<Strecke> kuesten = strecken(ringe);
    std::erase_if(kuesten, ist_schnittkante);
    Karteninhalt inhalt;
    inhalt.kuesten = abbilden(kuesten, projektion);
    inhalt.grenzen = abbilden(grenzen, projektion);
    inhalt.netz = abbilden(gradnetz_strecken(30), projektion);
    inhalt.land = abbilden(ringe, projektion);
    const Gitter gitter{static_cast<int>(std::lround(weltgroesse.breite * massstab)),
                        static_cast<int>(std::lround(weltgroesse.hoehe * massstab)), feinheit};
    return karte_malen(gitter, inhalt, std::sqrt(massstab));
}

}  // namespace velmaris::bilder
