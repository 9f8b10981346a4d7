#include "documents/print/druckdiagramme.h"

#include "documents/print/drucktabelle.h"
#include "documents/print/zeichnung_haus.h"
#include "tests/documents/unterlagen.h"
#include "tests/hilfen.h"
#include "tests/testdrucker.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <sstream>

namespace velmaris {
namespace {

using test::Druckzeichen;
using test::Testdrucker;
using test::Unterlagen;
using Art = Druckzeichen::Art;

/// To five thousandths of a millimetre: the degrees of the drawings are rounded.
bool gleich(double a, double b) {
    return std::abs(a - b) < 0.005;
}

/// A plain house that looks south, and values that the scales hold.
void in_die_skalen(Projekt& p) {
    p.l = 10;
    p.b = 20;
    p.h = 5.2F;
    p.hd = 2.5F;
    p.orient = 0;
    p.qtrs = 310.5F;
    p.qinfs = 150.25F;
    p.qverl_s = p.qtrs + p.qinfs;
    p.qis = 120.5F;
    p.qsols = 90.25F;
    p.qhs_sum = 250;
    p.Monat(12).Qt = 50000;  // the last bar alone needs the coarsest scale
    for (int m = 1; m <= monate; ++m) {
        p.Monat(m).Stunden_kalt = static_cast<std::int16_t>(300 + m);
        p.Monat(m).Stunden_komfort = static_cast<std::int16_t>(150 + 2 * m);
        p.Monat(m).Stunden_heiss = static_cast<std::int16_t>(200 - 3 * m);
    }
}

const std::map<std::string, std::function<void(Blatt&, Projekt&)>> zeichnungen{
    {"Jahresbilanz", Diagramm_Jahresbilanz},
    {"Monatbilanz", Diagramm_Monatbilanz},
    {"Bilanzlegende", [](Blatt& blatt, Projekt&) { Legende_Bilanz(blatt); }},
    {"Fenster", Diagramm_Fenster},
    {"Stunden", Diagramm_Stunden},
    {"Kuehlen", Diagramm_Kuehlen},
    {"Heizenergie", Diagramm_Heizenergie},
    {"Heizenergie_mit_Strom",
     [](Blatt& blatt, Projekt& p) {
         p.Heizsystem = 8;
         Diagramm_Heizenergie(blatt, p);
     }},
    {"Kühlenergie", Diagramm_Kühlenergie},
    {"Flachdach",
     [](Blatt& blatt, Projekt& p) {
         p.Check_Dachgeschoss = 0;
         Zeichnung_Haus(blatt, p);
     }},
    {"First_Nord_Süd", Zeichnung_Haus},
    {"First_Ost_West",
     [](Blatt& blatt, Projekt& p) {
         p.Option_Dachfirst = 2;
         Zeichnung_Haus(blatt, p);
     }},
    {"Orientierung_nach_Süden", Diagramm_Orientierung},
    {"Orientierung_nach_Westen",
     [](Blatt& blatt, Projekt& p) {
         p.orient = 90;
         Diagramm_Orientierung(blatt, p);
     }},
    {"Seite", [](Blatt& blatt, const Projekt&) {
         Seitenkopf(blatt, "<Titel>", {"<Datei>", "<Datum>", 2, 3});
     }}};

/// Compares a drawing with the lines of `diagramme.txt`, all places in millimetres: `kasten` left, top,
/// right, bottom; `achse` x, foot, top, end; `skala` steps and the number at the top; `links`, `mitte`,
/// `rechts` a text with that place of it and its top; `um` its middle; `balken` left, right and pieces from
/// the foot up, a colour and a value each; `monate` the same for January, the others 8 mm apart; `namen` the
/// months with their top; `legende` a colour and its meaning; `linie` its ends and colour; `linien` and
/// `texte` how many there are.
class Vergleich {
  public:
    Vergleich(const std::string& zeichnung, const std::string& sprache) : u_(sprache) {
        in_die_skalen(*u_.p);
        Blatt blatt(drucker_, sprache);
        zeichnungen.at(zeichnung)(blatt, *u_.p);
    }

    void pruefe(std::istringstream zeile) {
        std::string art;
        zeile >> art;
        if (art == "kasten") {
            EXPECT_TRUE(steht(Art::kasten, zahlen<4>(zeile)));
        } else if (art == "achse") {
            achse_ = zahlen<4>(zeile);
            EXPECT_TRUE(steht(Art::linie, {achse_[0], achse_[1], achse_[0], achse_[2]}));
            EXPECT_TRUE(steht(Art::linie, {achse_[0], achse_[1], achse_[3], achse_[1]}));
        } else if (art == "skala") {
            const auto [teile, skala] = zahlen<2>(zeile);
            skala_ = skala;
            for (int i = 0; i <= teile; ++i) {
                const double hoehe = y(skala * i / teile);
                EXPECT_TRUE(steht(Art::linie, {achse_[0] - 1, hoehe, achse_[0], hoehe})) << i;
                text(achse_[0] - 1.5, hoehe - 1.5, std::to_string(std::lround(skala * i / teile)), 1);
            }
        } else if (art == "balken") {
            const auto [x1, x2] = zahlen<2>(zeile);
            balken(zeile, 0, x1, x2);
        } else if (art == "monate") {
            const auto [x1, x2] = zahlen<2>(zeile);
            const auto teile = zeile.tellg();
            for (int m = 1; m <= monate; ++m) {
                zeile.clear();
                balken(zeile.seekg(teile), m, x1 + 8 * (m - 1), x2 + 8 * (m - 1));
            }
        } else if (art == "linie") {
            const auto ecken = zahlen<4>(zeile);
            EXPECT_TRUE(steht(Art::linie, ecken, farbe(zeile)));
        } else if (art == "linien" || art == "texte") {
            const Art welche = art == "texte" ? Art::text : Art::linie;
            EXPECT_EQ(drucker_.auf_seite(1, welche).size(), zahlen<1>(zeile)[0]);
        } else if (art == "namen") {
            text(35, zahlen<1>(zeile)[0], std::string(monate_der_diagramme.in(u_.p->Sprache)), 0);
        } else if (art == "legende") {
            const Farbe f = farbe(zeile);
            legende(f, wort(zeile));
        } else {
            const auto [x, y] = zahlen<2>(zeile);
            text(x, y, wort(zeile), art == "links" ? 0 : (art == "rechts" ? 1 : 0.5), art == "um" ? 0.5 : 0);
        }
    }

    /// No surface but the bars and squares that were found.
    void alles_gefunden() const { EXPECT_EQ(drucker_.auf_seite(1, Art::flaeche).size(), gefunden_); }

  private:
    using Ecken = std::array<double, 4>;

    [[nodiscard]] bool irgendwo(Art art, const std::function<bool(const Druckzeichen&)>& passt) const {
        const auto alle = drucker_.auf_seite(1, art);
        return std::any_of(alle.begin(), alle.end(), passt);
    }

    [[nodiscard]] bool steht(Art art, const Ecken& e, Farbe farbe = farben::schwarz) const {
        return irgendwo(art, [&](const Druckzeichen& z) {
            return gleich(z.x1, e[0]) && gleich(z.y1, e[1]) && gleich(z.x2, e[2]) && gleich(z.y2, e[3]) &&
                   z.farbe == farbe;
        });
    }

    /// A text of which these shares lie left of x and above y.
    void text(double x, double y, const std::string& text, double links, double ueber = 0) const {
        EXPECT_TRUE(irgendwo(Art::text, [&](const Druckzeichen& z) {
            return z.text == text && gleich(z.x1 + links * (z.x2 - z.x1), x) &&
                   gleich(z.y1 + ueber * (z.y2 - z.y1), y);
        })) << text;
    }

    void balken(std::istream& teile, int m, double x1, double x2) {
        double unten = 0;
        while (teile >> std::ws && !teile.eof()) {
            const Farbe f = farbe(teile);
            std::string formel;
            std::getline(teile.ignore(), formel, ' ');
            const double oben = unten + test::wert(*u_.p, m, formel);
            EXPECT_TRUE(steht(Art::flaeche, {x1, y(unten), x2, y(oben)}, f)) << formel << m;
            unten = oben;
            ++gefunden_;
        }
        EXPECT_TRUE(steht(Art::linie, {x1, achse_[1], x2, achse_[1]}));
    }

    /// A square of three millimetres, and two of them on the word in the diagrams' font.
    void legende(Farbe farbe, const std::string& text) {
        ++gefunden_;
        EXPECT_TRUE(irgendwo(Art::text, [&](const Druckzeichen& z) {
            const Ecken quadrat{z.x1 - 5, z.y1 + 0.2, z.x1 - 2, z.y1 + 3.2};
            return z.text == text && z.schrift.groesse == 8 && steht(Art::flaeche, quadrat, farbe) &&
                   steht(Art::kasten, quadrat);
        })) << text;
    }

    [[nodiscard]] double y(double wert) const { return achse_[1] - wert / skala_ * (achse_[1] - achse_[2]); }

    template <std::size_t n>
    static std::array<double, n> zahlen(std::istream& zeile) {
        std::array<double, n> alle{};
        for (double& zahl : alle) {
            zeile >> zahl;
            if (zeile.peek() == ',') zeile.ignore();
        }
        return alle;
    }

    static Farbe farbe(std::istream& zeile) {
        const auto rgb = zahlen<3>(zeile);
        const auto anteil = [&rgb](std::size_t i) { return static_cast<std::uint8_t>(rgb.at(i)); };
        return {anteil(0), anteil(1), anteil(2)};
    }

    [[nodiscard]] std::string wort(std::istream& zeile) const {
        std::string beide;
        std::getline(zeile >> std::ws, beide);
        return test::in_sprache(*u_.p, beide);
    }

    Unterlagen u_;
    Testdrucker drucker_;
    Ecken achse_{};
    double skala_ = 1;
    std::size_t gefunden_ = 0;
};

TEST(Druckdiagramme, ZeigenDenDatensatzAnIhremPlatz) {
    for (const char* sprache : {"d", "e"}) {
        std::istringstream zeilen(test::inhalt(VELMARIS_SEITEN "/print/diagramme.txt"));
        std::optional<Vergleich> vergleich;
        for (std::string zeile; std::getline(zeilen, zeile);) {
            SCOPED_TRACE(zeile + " " + sprache);
            if (!zeile.starts_with("diagramm ")) {
                vergleich->pruefe(std::istringstream(zeile));
                continue;
            }
            if (vergleich) vergleich->alles_gefunden();
            vergleich.emplace(zeile.substr(9), sprache);
        }
    }
}

}  // namespace
}  // namespace velmaris
