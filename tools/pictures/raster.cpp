#include "tools/pictures/raster.h"

#include <algorithm>
#include <cmath>

namespace velmaris::bilder {
namespace {

Punkt in_pixeln(Punkt p, int feinheit) {
    return {p.x * feinheit, p.y * feinheit};
}

std::vector<Strecke> in_pixeln(std::vector<Strecke> strecken, int feinheit) {
    for (Strecke& s : strecken)
        s = {in_pixeln(s.a, feinheit), in_pixeln(s.b, feinheit)};
    return strecken;
}

/// For scan line s at y = (s + 1/2) / je_pixel pixels the ascending x of all pieces that cross it.
std::vector<std::vector<double>> schnitte(int hoehe, int je_pixel, const std::vector<Strecke>& kanten) {
    const int zeilen = hoehe * je_pixel;
    std::vector<std::vector<double>> ergebnis(static_cast<std::size_t>(zeilen));
    for (const Strecke& s : kanten) {
        const Punkt oben = s.a.y < s.b.y ? s.a : s.b;
        const Punkt unten = s.a.y < s.b.y ? s.b : s.a;
        const auto erste_ab = [&](double y) {
            return static_cast<int>(std::clamp(std::ceil(y * je_pixel - 0.5), 0.0, double(zeilen)));
        };
        for (int z = erste_ab(oben.y); z < erste_ab(unten.y); ++z) {
            const double t = ((z + 0.5) / je_pixel - oben.y) / (unten.y - oben.y);
            ergebnis[static_cast<std::size_t>(z)].push_back(oben.x + t * (unten.x - oben.x));
        }
    }
    for (auto& zeile : ergebnis)
        std::sort(zeile.begin(), zeile.end());
    return ergebnis;
}

/// Adds `gewicht` times the part of each pixel of row y that lies between von and bis.
void spanne_addieren(Deckung& deckung, int y, double von, double bis, double gewicht) {
    von = std::clamp(von, 0.0, double(deckung.breite()));
    bis = std::clamp(bis, 0.0, double(deckung.breite()));
    for (int x = static_cast<int>(von); x < bis; ++x) {
        deckung.anteil(x, y) += gewicht * (std::min(bis, x + 1.0) - std::max(von, double(x)));
    }
}

double abstand(Punkt p, const Strecke& s) {
    const double dx = s.b.x - s.a.x, dy = s.b.y - s.a.y;
    const double quadrat = dx * dx + dy * dy;
    const double lot = quadrat > 0 ? ((p.x - s.a.x) * dx + (p.y - s.a.y) * dy) / quadrat : 0;
    const double t = std::clamp(lot, 0.0, 1.0);
    return std::hypot(p.x - s.a.x - t * dx, p.y - s.a.y - t * dy);
}

/// The pixels from `von` to before `bis` whose centres can lie within `reichweite` of a coordinate range.
struct Bereich {
    int von;
    int bis;
};

Bereich bereich(double a, double b, double reichweite, int ende) {
    const double von = std::floor(std::min(a, b) - reichweite - 0.5);
    const double bis = std::ceil(std::max(a, b) + reichweite + 0.5);
    return {static_cast<int>(std::clamp(von, 0.0, double(ende))),
            static_cast<int>(std::clamp(bis, 0.0, double(ende)))};
}

void linie_eintragen(Deckung& deckung, const Strecke& s, double reichweite) {
    const Bereich spalten = bereich(s.a.x, s.b.x, reichweite, deckung.breite());
    const Bereich zeilen = bereich(s.a.y, s.b.y, reichweite, deckung.hoehe());
    for (int y = zeilen.von; y < zeilen.bis; ++y) {
        for (int x = spalten.von; x < spalten.bis; ++x) {
            const double anteil = std::clamp(reichweite - abstand({x + 0.5, y + 0.5}, s), 0.0, 1.0);
            deckung.anteil(x, y) = std::max(deckung.anteil(x, y), anteil);
        }
    }
}

}  // namespace

std::vector<Strecke> strecken(const Flaeche& flaeche) {
    std::vector<Strecke> ergebnis;
    for (const Ring& ring : flaeche) {
        for (std::size_t i = 1; i < ring.size(); ++i)
            ergebnis.push_back({ring[i - 1], ring[i]});
    }
    return ergebnis;
}

Deckung::Deckung(const Gitter& gitter)
    : breite_(gitter.breite * gitter.feinheit),
      hoehe_(gitter.hoehe * gitter.feinheit),
      anteile_(static_cast<std::size_t>(breite_) * static_cast<std::size_t>(hoehe_)) {}

Deckung fuellung(const Gitter& gitter, const Flaeche& flaeche) {
    constexpr int je_pixel = 8;
    Deckung deckung(gitter);
    const auto zeilen = schnitte(deckung.hoehe(), je_pixel, in_pixeln(strecken(flaeche), gitter.feinheit));
    for (std::size_t z = 0; z < zeilen.size(); ++z) {
        for (std::size_t i = 1; i < zeilen[z].size(); i += 2) {
            spanne_addieren(deckung, static_cast<int>(z) / je_pixel, zeilen[z][i - 1], zeilen[z][i],
                            1.0 / je_pixel);
        }
    }
    return deckung;
}

Deckung kernfuellung(const Gitter& gitter, const Flaeche& flaeche) {
    Deckung deckung(gitter);
    const auto zeilen = schnitte(deckung.hoehe(), 1, in_pixeln(strecken(flaeche), gitter.feinheit));
    for (int y = 0; y < deckung.hoehe(); ++y) {
        const auto& kanten = zeilen[static_cast<std::size_t>(y)];
        for (int x = 0; x < deckung.breite(); ++x) {
            const auto links = std::upper_bound(kanten.begin(), kanten.end(), x + 0.5) - kanten.begin();
            deckung.anteil(x, y) = static_cast<double>(links % 2);
        }
    }
    return deckung;
}

Deckung linien(const Gitter& gitter, const std::vector<Strecke>& strecken, double dicke) {
    Deckung deckung(gitter);
    for (const Strecke& s : in_pixeln(strecken, gitter.feinheit))
        linie_eintragen(deckung, s, dicke * gitter.feinheit / 2 + 0.5);
    return deckung;
}

void auftragen(Bild& bild, const Deckung& deckung, Farbe farbe, double deckkraft) {
    for (int y = 0; y < bild.hoehe(); ++y) {
        for (int x = 0; x < bild.breite(); ++x) {
            if (deckung.anteil(x, y) == 0) continue;
            const double anteil = std::min(1.0, deckung.anteil(x, y)) * deckkraft;
            bild.pixel(x, y) = mischung(bild.pixel(x, y), farbe, anteil);
        }
    }
}

}  // namespace velmaris::bilder
