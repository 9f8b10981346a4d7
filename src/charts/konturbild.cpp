#include "charts/konturbild.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

namespace velmaris {
namespace {

/// The place at which `weg` pixels of a line are behind; `wege` are those up to each of its places.
Ort ort_nach(const std::vector<Ort>& linie, const std::vector<double>& wege, double weg) {
    const auto ende = std::ranges::lower_bound(wege, weg) - wege.begin();
    const auto i = static_cast<std::size_t>(std::max<std::ptrdiff_t>(ende, 1));
    const double teil = (weg - wege[i - 1]) / (wege[i] - wege[i - 1]);
    return {linie[i - 1].x + teil * (linie[i].x - linie[i - 1].x),
            linie[i - 1].y + teil * (linie[i].y - linie[i - 1].y)};
}

std::vector<double> laengen_bis(const std::vector<Ort>& linie) {
    std::vector<double> wege(linie.size());
    for (std::size_t i = 1; i < linie.size(); ++i)
        wege[i] = wege[i - 1] + std::hypot(linie[i].x - linie[i - 1].x, linie[i].y - linie[i - 1].y);
    return wege;
}

/// The numbers in the lines as they find room.
class Konturmarken {
  public:
    Konturmarken(Zeichenflaeche& bild, const Bildrahmen& rahmen, std::vector<Ort> belegt)
        : b_(bild), r_(rahmen), belegt_(std::move(belegt)), zeile_(bild.texthoehe("0")) {}

    void setze(const std::vector<Ort>& linie, const std::string& text) {
        if (const auto ort = platz(linie, b_.textbreite(text))) {
            belegt_.push_back(*ort);
            marken_.push_back({*ort, text});
        }
    }

    void zeichne() {
        Schrift schrift = bildstil::schrift;
        schrift.hof = farben::weiss;
        b_.schrift(schrift);
        for (const Marke& m : marken_)
            mittig_zeichnen(b_, m.ort.x, m.ort.y - zeile_ / 2, m.text);
        b_.schrift(bildstil::schrift);
    }

  private:
    struct Marke {
        Ort ort;
        std::string text;
    };

    /// Near to the middle of the line; nothing in a short one.
    [[nodiscard]] std::optional<Ort> platz(const std::vector<Ort>& linie, double breite) const {
        const std::vector<double> wege = laengen_bis(linie);
        if (wege.back() < 2 * breite) return std::nullopt;
        for (const double anteil : {0.5, 0.4, 0.6, 0.3, 0.7, 0.2, 0.8}) {
            const Ort ort = ort_nach(linie, wege, anteil * wege.back());
            if (im_rahmen(ort, breite) && frei(ort)) return ort;
        }
        return std::nullopt;
    }

    [[nodiscard]] bool im_rahmen(const Ort& ort, double breite) const {
        constexpr double rand = 2;
        return ort.x - breite / 2 > r_.links + rand && ort.x + breite / 2 < r_.rechts - rand &&
               ort.y - zeile_ / 2 > r_.oben + rand && ort.y + zeile_ / 2 < r_.unten - rand;
    }

    [[nodiscard]] bool frei(const Ort& ort) const {
        constexpr double neben = 50, ueber = 16;
        return std::ranges::all_of(belegt_, [&](const Ort& o) {
            return std::fabs(o.x - ort.x) > neben || std::fabs(o.y - ort.y) > ueber;
        });
    }

    Zeichenflaeche& b_;
    const Bildrahmen& r_;
    std::vector<Ort> belegt_;
    double zeile_;  ///< height of a line of text
    std::vector<Marke> marken_;
};

}  // namespace

void konturen_zeichnen(Zeichenflaeche& bild, const Wertegitter& gitter, const Achsenteilung& teilung,
                       const Bildrahmen& rahmen, const Konturlage& lage) {
    Konturmarken marken(bild, rahmen, lage.belegt);
    for (const double niveau : teilung.striche()) {
        for (std::vector<Ort>& linie : konturlinien(gitter, niveau)) {
            std::ranges::transform(linie, linie.begin(), lage.pixel);
            linienzug_zeichnen(bild, linie, farben::weiss, 2.6);
            linienzug_zeichnen(bild, linie, farben::schwarz, 1.1);
            marken.setze(linie, teilung.zahl(niveau));
        }
    }
    marken.zeichne();
}

}  // namespace velmaris
