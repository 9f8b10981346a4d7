#include "tests/rekorder_flaeche.h"

#include "toolkit/pixel.h"
#include "toolkit/text.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numbers>

namespace velmaris {
namespace {

using Art = Zeichnung::Art;

bool enthaelt(const std::optional<Pixelkasten>& k, int x, int y) {
    return k && x >= k->links && x <= k->rechts && y >= k->oben && y <= k->unten;
}

bool auf_linie(const Zeichnung& z, int x, int y) {
    const std::optional<Pixellinie> l =
        pixellinie(z.zahlen[0], z.zahlen[1], z.zahlen[2], z.zahlen[3], z.dicke);
    if (!l || l->gerade) return l && enthaelt(l->gerade, x, y);
    const int dx = l->x2 - l->x1;
    const int dy = l->y2 - l->y1;
    const int schritte = std::max(std::abs(dx), std::abs(dy));
    const int i = std::abs(dx) == schritte ? std::abs(x - l->x1) : std::abs(y - l->y1);
    const double anteil = static_cast<double>(i) / schritte;
    return i < schritte && pixel(l->x1 + dx * anteil) == x && pixel(l->y1 + dy * anteil) == y;
}

/// True if the pixel at (dx, dy) from the centre, y downward, lies in the pie or on its radii.
bool im_sektor(const std::vector<double>& n, double dx, double dy) {
    const double abstand = std::hypot(dx, dy);
    if (n[2] <= 0 || abstand > n[2] + 0.5) return false;
    const double rand = 0.5 / abstand;
    const double voll = 2 * std::numbers::pi;
    const double ab_von = std::fmod(std::atan2(-dy, dx) - n[3] + 2 * voll, voll);
    return abstand < 0.5 || ab_von <= n[4] - n[3] + rand || ab_von >= voll - rand;
}

std::optional<Farbe> im_kreis(const Zeichnung& z, double dx, double dy) {
    const double radius = z.zahlen[2];
    const double abstand = std::hypot(dx, dy);
    if (radius <= 0 || abstand > radius + 0.5) return std::nullopt;
    return abstand > radius - 0.5 ? z.farbe : z.fuellung;
}

/// The colour that a drawing gives to a pixel.
std::optional<Farbe> farbe_bei(const Zeichnung& z, int x, int y) {
    const std::vector<double>& n = z.zahlen;
    if (z.art == Art::kreis) return im_kreis(z, x - n[0], y - n[1]);
    const bool bedeckt = z.art == Art::cls || (z.art == Art::linie && auf_linie(z, x, y)) ||
                         (z.art == Art::flaeche && enthaelt(pixelkasten(n[0], n[1], n[2], n[3]), x, y)) ||
                         (z.art == Art::punkt && enthaelt(pixelkasten(n[0], n[1], n[0], n[1]), x, y)) ||
                         (z.art == Art::sektor && im_sektor(n, x - n[0], y - n[1]));
    return bedeckt ? std::optional(z.farbe) : std::nullopt;
}

}  // namespace

std::vector<Zeichnung> RekorderFlaeche::alle(Art art, std::optional<Farbe> farbe) const {
    std::vector<Zeichnung> ergebnis;
    std::copy_if(zeichnungen.begin(), zeichnungen.end(), std::back_inserter(ergebnis),
                 [&](const Zeichnung& z) { return z.art == art && (!farbe || z.farbe == *farbe); });
    return ergebnis;
}

std::vector<std::string> RekorderFlaeche::texte() const {
    std::vector<std::string> ergebnis;
    for (const Zeichnung& z : alle(Art::text))
        ergebnis.push_back(z.text);
    return ergebnis;
}

double RekorderFlaeche::textbreite(std::string_view text) const {
    return 6.0 * static_cast<double>(zeichenzahl(text));
}

Farbe RekorderFlaeche::lies_punkt(double x, double y) const {
    const int spalte = pixel(x);
    const int zeile = pixel(y);
    const Pixelkasten ganz{0, 0, pixel(breite_) - 1, pixel(hoehe_) - 1};
    if (!enthaelt(ganz, spalte, zeile)) return hintergrund_;
    for (auto z = zeichnungen.rbegin(); z != zeichnungen.rend(); ++z)
        if (const auto farbe = farbe_bei(*z, spalte, zeile)) return *farbe;
    return hintergrund_;
}

}  // namespace velmaris
