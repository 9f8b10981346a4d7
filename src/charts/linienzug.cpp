#include "charts/linienzug.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace velmaris {
namespace {

/// Places that are nearer to each other than this, pixels, are one.
constexpr double aufloesung = 0.3;

/// A corner that is sharper than this reaches no further: twice the width.
constexpr double groesste_spitze = 2;

std::vector<Ort> ohne_wiederholungen(std::span<const Ort> orte) {
    std::vector<Ort> neu;
    for (const Ort& ort : orte) {
        if (neu.empty() || std::hypot(ort.x - neu.back().x, ort.y - neu.back().y) >= aufloesung)
            neu.push_back(ort);
    }
    if (neu.size() > 1 && !(neu.back() == orte.back())) neu.back() = orte.back();
    return neu;
}

/// The direction from a to b turned to the left, of length 1.
Ort normale(Ort a, Ort b) {
    const double laenge = std::hypot(b.x - a.x, b.y - a.y);
    return {(a.y - b.y) / laenge, (b.x - a.x) / laenge};
}

/// From a place to the edge of the line: across it, at a corner along the bisector.
Ort versatz(const std::vector<Ort>& orte, std::size_t i) {
    if (i == 0) return normale(orte[0], orte[1]);
    const Ort davor = normale(orte[i - 1], orte[i]);
    if (i + 1 == orte.size()) return davor;
    const Ort danach = normale(orte[i], orte[i + 1]);
    const Ort summe{davor.x + danach.x, davor.y + danach.y};
    const double laenge = std::hypot(summe.x, summe.y);
    if (laenge < 1 / groesste_spitze) return danach;
    const double mal = std::min(2 / laenge, groesste_spitze) / laenge;
    return {summe.x * mal, summe.y * mal};
}

Umriss streifen(const std::vector<Ort>& orte, double dicke) {
    constexpr double mitte = 0.5;  // of a pixel
    Umriss umriss;
    std::vector<Umriss::Ecke> zurueck;
    for (std::size_t i = 0; i < orte.size(); ++i) {
        const Ort v = versatz(orte, i);
        const double x = orte[i].x + mitte, y = orte[i].y + mitte;
        umriss.ecken.push_back({x + v.x * dicke / 2, y + v.y * dicke / 2});
        zurueck.push_back({x - v.x * dicke / 2, y - v.y * dicke / 2});
    }
    umriss.ecken.insert(umriss.ecken.end(), zurueck.rbegin(), zurueck.rend());
    return umriss;
}

}  // namespace

void linienzug_zeichnen(Zeichenflaeche& bild, std::span<const Ort> orte, Farbe farbe, double dicke) {
    const std::vector<Ort> zug = ohne_wiederholungen(orte);
    if (zug.size() < 2 || bild.umriss(streifen(zug, dicke), farbe)) return;
    for (std::size_t i = 1; i < zug.size(); ++i)
        bild.linie(zug[i - 1].x, zug[i - 1].y, zug[i].x, zug[i].y, farbe,
                   std::max(1, static_cast<int>(std::lround(dicke))));
}

}  // namespace velmaris
