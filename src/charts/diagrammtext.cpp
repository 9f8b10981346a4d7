#include "charts/diagrammtext.h"

#include "toolkit/zahlen.h"

#include <algorithm>

namespace velmaris {
namespace {

constexpr double zahlenrand = 25;  ///< right end of the axis numbers
constexpr double erste_mitte = 47;

using Breiten = std::vector<double>;

/// The widths of the texts in the largest font that `passt` accepts, which is set.
template <class Passt>
Breiten einpassen(Zeichenflaeche& bild, std::span<const std::string> texte, Schrift schrift, Passt passt) {
    constexpr double pixel = 0.75;  // points
    constexpr double kleinste = 3;
    Breiten breiten(texte.size());
    for (;; schrift.groesse -= pixel) {
        bild.schrift(schrift);
        std::transform(texte.begin(), texte.end(), breiten.begin(),
                       [&](const std::string& text) { return bild.textbreite(text); });
        if (passt(breiten) || schrift.groesse < kleinste) return breiten;
    }
}

}  // namespace

Breiten schrift_einpassen(Zeichenflaeche& bild, std::span<const std::string> texte, double breite,
                          const Schrift& groesste) {
    return einpassen(bild, texte, groesste, [breite](const Breiten& breiten) {
        return std::all_of(breiten.begin(), breiten.end(), [breite](double b) { return b <= breite; });
    });
}

void achsenzahlen_zeichnen(Zeichenflaeche& bild, std::span<const Achsenzahl> zahlen,
                           const Schrift& groesste) {
    std::vector<std::string> texte;
    for (const Achsenzahl& zahl : zahlen)
        texte.push_back(zahltext(zahl.wert));
    const Breiten breiten = schrift_einpassen(bild, texte, zahlenrand, groesste);
    for (std::size_t i = 0; i < texte.size(); ++i)
        bild.text(zahlenrand - breiten[i], zahlen[i].y - 5, texte[i]);
    bild.schrift({});
}

void spaltennamen_zeichnen(Zeichenflaeche& bild, std::span<const std::string> namen, double y) {
    const auto getrennt = [&bild](const Breiten& breiten) {
        const double platz = spaltenbreite - bild.textbreite(" ");
        return std::adjacent_find(breiten.begin(), breiten.end(), [platz](double links, double rechts) {
                   return (links + rechts) / 2 > platz;
               }) == breiten.end();
    };
    const Breiten breiten = einpassen(bild, namen, {}, getrennt);
    for (std::size_t i = 0; i < namen.size(); ++i)
        bild.text(erste_mitte + spaltenbreite * static_cast<double>(i) - breiten[i] / 2, y, namen[i]);
    bild.schrift({});
}

}  // namespace velmaris
