#include "studies/tornado.h"

#include "toolkit/kuerzen.h"

#include <algorithm>

namespace velmaris {
namespace {

constexpr std::size_t stueckzeilen = 4;  ///< even, so that the stripes go on
const Schrift schrift{.groesse = 9};

constexpr double kopf = 24;
constexpr double zeilenhoehe = 36;
constexpr double halbe_zeile = 16;

// Columns, pixels.
constexpr double rand = 6;
constexpr double schritt_links = 236;
constexpr double balken_links = 566;
constexpr double spalt = 8;
constexpr double zahlbreite = 56;  ///< beside the longest bar

constexpr Farbe nebentext{90, 96, 104};
constexpr Farbe streifen{244, 246, 248};

/// Where a value lies on the horizontal scale that all bars share.
struct Massstab {
    double null;
    double je_einheit;

    [[nodiscard]] double x(double wert) const { return null + wert * je_einheit; }
};

Massstab massstab(const std::vector<Tornadozeile>& zeilen) {
    double links = 0;
    double rechts = 0;
    for (const Tornadozeile& zeile : zeilen) {
        for (const Tornadobalken& balken : zeile.balken) {
            links = std::max(links, -balken.wirkung.value_or(0));
            rechts = std::max(rechts, balken.wirkung.value_or(0));
        }
    }
    const double platz = tornado_breite - rand - balken_links - 2 * zahlbreite;
    const double je_einheit = links + rechts > 0 ? platz / (links + rechts) : 0;
    return {balken_links + zahlbreite + links * je_einheit, je_einheit};
}

/// A piece under construction.
class Stueck {
  public:
    Stueck(const Massstab& massstab, Zeichenflaeche& bild) : massstab_(massstab), bild_(bild) {}

    void zeile(const Tornadozeile& zeile, double oben) {
        schreiben(zeile.name, rand, oben, schritt_links - spalt, farben::schwarz);
        schreiben(zeile.wert, rand, oben + halbe_zeile, schritt_links - spalt, nebentext);
        for (std::size_t i = 0; i < zeile.balken.size(); ++i)
            balken(zeile.balken.at(i), oben + static_cast<double>(i) * halbe_zeile, tornadofarben.at(i));
    }

    /// Above the base line, as far as the bars reach.
    void basis(const std::string& text) {
        const double breite = bild_.textbreite(text);
        const double rechts = tornado_breite - rand - breite;
        bild_.text(std::clamp(massstab_.null - breite / 2, balken_links, rechts), 3, text);
    }

    void basislinie(double oben, double unten) {
        bild_.linie(massstab_.null, oben, massstab_.null, unten, farben::schwarz);
    }

  private:
    void balken(const Tornadobalken& balken, double oben, Farbe farbe) {
        schreiben(balken.text, schritt_links, oben, balken_links - spalt,
                  balken.wirkung ? farben::schwarz : nebentext);
        if (!balken.wirkung) return;
        const double ende = massstab_.x(*balken.wirkung);
        const auto [links, rechts] = std::minmax(massstab_.null, ende);
        bild_.flaeche(links, oben + 2, rechts, oben + halbe_zeile - 3, farbe);
        const bool nach_links = *balken.wirkung < 0;
        bild_.text(nach_links ? ende - 4 - bild_.textbreite(balken.zahl) : ende + 4, oben, balken.zahl);
    }

    void schreiben(const std::string& text, double links, double oben, double rechts, Farbe farbe) {
        bild_.text(links, oben, kuerzen(text, rechts - links, bild_), farbe);
    }

    Massstab massstab_;
    Zeichenflaeche& bild_;
};

}  // namespace

std::size_t tornado_stuecke(const Tornado& tornado) {
    return (tornado.zeilen.size() + stueckzeilen - 1) / stueckzeilen;
}

double tornado_hoehe(const Tornado& tornado, std::size_t stueck) {
    const std::size_t zeilen = std::min(stueckzeilen, tornado.zeilen.size() - stueck * stueckzeilen);
    return (stueck == 0 ? kopf : 0) + static_cast<double>(zeilen) * zeilenhoehe;
}

void TornadoZeichnen(const Tornado& tornado, std::size_t stueck, Zeichenflaeche& bild) {
    bild.Cls();
    bild.schrift(schrift);
    Stueck zeichnung(massstab(tornado.zeilen), bild);
    const std::size_t erste = stueck * stueckzeilen;
    const std::size_t ende = std::min(erste + stueckzeilen, tornado.zeilen.size());
    double oben = stueck == 0 ? kopf : 0;
    for (std::size_t i = erste; i < ende; ++i) {
        if (i % 2 == 0) bild.flaeche(0, oben, tornado_breite - 1, oben + zeilenhoehe - 1, streifen);
        zeichnung.zeile(tornado.zeilen[i], oben + 2);
        oben += zeilenhoehe;
    }
    if (stueck == 0) zeichnung.basis(tornado.basis);
    zeichnung.basislinie(stueck == 0 ? kopf - 4 : 0, oben);
}

}  // namespace velmaris
