#include "tests/rekorder_flaeche.h"

#include "toolkit/text.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numbers>
#include <utility>

namespace velmaris {
namespace {

constexpr double zeichenbreite = 6;

/// Calls `tu(x, y, abstand)` with its distance from the centre for each pixel of the circle that lies on
/// a surface of that many columns and rows.
template <class Tu>
void fuer_jeden_kreispunkt(double cx, double cy, double radius, int spalten, int zeilen, Tu&& tu) {
    const std::optional<Pixelkasten> feld = pixelkasten(cx - radius, cy - radius, cx + radius, cy + radius);
    if (!feld || radius <= 0) return;
    for (int y = std::max(feld->oben, 0); y <= std::min(feld->unten, zeilen - 1); ++y) {
        for (int x = std::max(feld->links, 0); x <= std::min(feld->rechts, spalten - 1); ++x) {
            const double abstand = std::hypot(x - cx, y - cy);
            if (abstand <= radius + 0.5) tu(x, y, abstand);
        }
    }
}

/// True if the pixel at (dx, dy) from the centre, y downward, lies between the two angles or on their radii.
bool im_winkel(double dx, double dy, double abstand, double von, double bis) {
    if (abstand < 0.5) return true;
    const double rand = 0.5 / abstand;
    const double voll = 2 * std::numbers::pi;
    const double ab_von = std::fmod(std::atan2(-dy, dx) - von + 2 * voll, voll);
    return ab_von <= bis - von + rand || ab_von >= voll - rand;
}

}  // namespace

RekorderFlaeche::RekorderFlaeche(double breite, double hoehe, Farbe hintergrund)
    : breite_(breite),
      hoehe_(hoehe),
      hintergrund_(hintergrund),
      spalten_(pixel(breite)),
      zeilen_(pixel(hoehe)),
      raster_(static_cast<std::size_t>(spalten_) * static_cast<std::size_t>(zeilen_), hintergrund) {}

std::vector<Zeichnung> RekorderFlaeche::alle(Art art) const {
    std::vector<Zeichnung> ergebnis;
    std::copy_if(zeichnungen.begin(), zeichnungen.end(), std::back_inserter(ergebnis),
                 [&](const Zeichnung& z) { return z.art == art; });
    return ergebnis;
}

std::vector<Zeichnung> RekorderFlaeche::alle(Art art, Farbe farbe) const {
    std::vector<Zeichnung> ergebnis = alle(art);
    std::erase_if(ergebnis, [&](const Zeichnung& z) { return z.farbe != farbe; });
    return ergebnis;
}

std::vector<std::string> RekorderFlaeche::texte() const {
    std::vector<std::string> ergebnis;
    for (const Zeichnung& z : alle(Art::text))
        ergebnis.push_back(z.text);
    return ergebnis;
}

void RekorderFlaeche::Cls() {
    merke({.art = Art::cls, .zahlen = {}, .farbe = hintergrund()});
    std::fill(raster_.begin(), raster_.end(), hintergrund());
}

void RekorderFlaeche::linie(double x1, double y1, double x2, double y2, Farbe farbe, int dicke) {
    merke({.art = Art::linie, .zahlen = {x1, y1, x2, y2}, .farbe = farbe, .dicke = dicke});
    const std::optional<Pixellinie> linie = pixellinie(x1, y1, x2, y2, dicke);
    if (!linie) return;
    if (linie->gerade) {
        faerbe(linie->gerade, farbe);
        return;
    }
    const int dx = linie->x2 - linie->x1;
    const int dy = linie->y2 - linie->y1;
    const int schritte = std::max(std::abs(dx), std::abs(dy));
    for (int i = 0; i < schritte; ++i) {
        const double anteil = static_cast<double>(i) / schritte;
        faerbe(pixel(linie->x1 + dx * anteil), pixel(linie->y1 + dy * anteil), farbe);
    }
}

void RekorderFlaeche::kasten(double x1, double y1, double x2, double y2, Farbe farbe) {
    merke({.art = Art::kasten, .zahlen = {x1, y1, x2, y2}, .farbe = farbe});
    faerbe(pixelkasten(x1, y1, x2, y1), farbe);
    faerbe(pixelkasten(x1, y2, x2, y2), farbe);
    faerbe(pixelkasten(x1, y1, x1, y2), farbe);
    faerbe(pixelkasten(x2, y1, x2, y2), farbe);
}

void RekorderFlaeche::flaeche(double x1, double y1, double x2, double y2, Farbe farbe) {
    merke({.art = Art::flaeche, .zahlen = {x1, y1, x2, y2}, .farbe = farbe});
    faerbe(pixelkasten(x1, y1, x2, y2), farbe);
}

void RekorderFlaeche::kreis(double cx, double cy, double radius, Farbe rand, std::optional<Farbe> fuellung) {
    merke({.art = Art::kreis, .zahlen = {cx, cy, radius}, .farbe = rand, .fuellung = fuellung});
    fuer_jeden_kreispunkt(cx, cy, radius, spalten_, zeilen_, [&](int x, int y, double abstand) {
        if (abstand > radius - 0.5) {
            faerbe(x, y, rand);
        } else if (fuellung) {
            faerbe(x, y, *fuellung);
        }
    });
}

void RekorderFlaeche::sektor(double cx, double cy, double radius, double von, double bis, Farbe farbe) {
    merke({.art = Art::sektor, .zahlen = {cx, cy, radius, von, bis}, .farbe = farbe});
    fuer_jeden_kreispunkt(cx, cy, radius, spalten_, zeilen_, [&](int x, int y, double abstand) {
        if (im_winkel(x - cx, y - cy, abstand, von, bis)) faerbe(x, y, farbe);
    });
}

void RekorderFlaeche::punkt(double x, double y, Farbe farbe) {
    merke({.art = Art::punkt, .zahlen = {x, y}, .farbe = farbe});
    faerbe(pixelkasten(x, y, x, y), farbe);
}

void RekorderFlaeche::text(double x, double y, std::string_view text, Farbe farbe) {
    merke({.art = Art::text, .zahlen = {x, y}, .farbe = farbe, .text = std::string(text)});
}

double RekorderFlaeche::textbreite(std::string_view text) const {
    return zeichenbreite * static_cast<double>(zeichenzahl(text));
}

Farbe RekorderFlaeche::lies_punkt(double x, double y) const {
    const std::optional<Pixelkasten> ort = pixelkasten(x, y, x, y);
    return ort && enthaelt(ort->links, ort->oben) ? raster_[stelle(ort->links, ort->oben)] : hintergrund();
}

void RekorderFlaeche::merke(Zeichnung zeichnung) {
    zeichnung.schrift = schrift_;
    zeichnungen.push_back(std::move(zeichnung));
}

void RekorderFlaeche::faerbe(int x, int y, Farbe farbe) {
    if (enthaelt(x, y)) raster_[stelle(x, y)] = farbe;
}

void RekorderFlaeche::faerbe(const std::optional<Pixelkasten>& kasten, Farbe farbe) {
    if (!kasten) return;
    for (int y = std::max(kasten->oben, 0); y <= std::min(kasten->unten, zeilen_ - 1); ++y) {
        for (int x = std::max(kasten->links, 0); x <= std::min(kasten->rechts, spalten_ - 1); ++x)
            faerbe(x, y, farbe);
    }
}

}  // namespace velmaris
