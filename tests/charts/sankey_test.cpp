#include "charts/c_sankey.h"
#include "tests/rekorder_flaeche.h"
#include "toolkit/svg_flaeche.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace velmaris {
namespace {

constexpr Farbe bandfarbe{255, 180, 180};
using Art = Zeichnung::Art;
using Zeilen = std::vector<std::string>;

/// A white surface, its pixels as rows of text: '#' for the band, '.' for white, '?' for anything else.
struct Probe {
    explicit Probe(int breite = 9, int hoehe = 9) : bild(breite, hoehe, farben::weiss) {}

    [[nodiscard]] Zeilen zeilen() const {
        Zeilen ergebnis;
        for (int y = 0; y < bild.hoehe(); ++y) {
            ergebnis.emplace_back();
            for (int x = 0; x < bild.breite(); ++x) {
                const Farbe farbe = bild.lies_punkt(x, y);
                ergebnis.back() += farbe == bandfarbe ? '#' : farbe == farben::weiss ? '.' : '?';
            }
        }
        return ergebnis;
    }

    RekorderFlaeche bild;
    Sankeyblatt blatt{bild, bandfarbe};
};

TEST(Sankey, MassstabLaesstKopfUndRandFrei) {
    const RekorderFlaeche bild(440, 232);
    EXPECT_DOUBLE_EQ(Sankey_Massstab(bild, 324, 20), 2);
}

TEST(Sankey, LinieReichtBisZumLetztenPixel) {
    struct Fall {
        std::vector<double> ecken;
        std::vector<double> gezogen;
    };
    const Fall faelle[] = {
        {{1, 1, 4, 1}, {1, 1, 5, 1}}, {{4, 1, 1, 1}, {1, 1, 5, 1}}, {{2, 2, 2, 2}, {2, 2, 3, 2}},
        {{2, 1, 2, 4}, {2, 1, 2, 5}}, {{2, 4, 2, 1}, {2, 4, 2, 0}}, {{1, 1, 4, 6}, {1, 1, 5, 7}},
        {{1, 6, 4, 1}, {1, 6, 5, 0}}, {{4, 1, 1, 6}, {1, 6, 5, 0}},
    };
    for (const Fall& f : faelle) {
        Probe probe;
        Sankey_Linie(probe.bild, f.ecken[0], f.ecken[1], f.ecken[2], f.ecken[3], bandfarbe);
        const std::vector<Zeichnung> linien = probe.bild.alle(Art::linie, bandfarbe);
        ASSERT_EQ(linien.size(), 1U);
        EXPECT_EQ(linien[0].zahlen, f.gezogen) << f.ecken[0] << " " << f.ecken[1];
        EXPECT_EQ(probe.bild.lies_punkt(f.ecken[2], f.ecken[3]), bandfarbe);
    }
}

TEST(Sankey, BogenIstKuchenMitWeisserScheibe) {
    Probe probe(40, 40);
    probe.bild.flaeche(0, 0, 39, 39, farben::gelb);
    Sankey_Bogen(probe.blatt, 20, 20, 270, 360, 5, 10);
    const auto zeile = [&](int y) { return probe.zeilen()[static_cast<std::size_t>(y)]; };
    EXPECT_EQ(zeile(20), "???????????...................######????");
    EXPECT_EQ(zeile(19).find('#'), std::string::npos) << "the sector begins at its radius";
    std::string spalte;
    for (int y = 0; y < 40; ++y)
        spalte += zeile(y)[20];
    EXPECT_EQ(spalte, "???????????...................######????");
    EXPECT_EQ(zeile(12)[12], '?') << "outside the disk nothing is erased";
    EXPECT_EQ(zeile(14)[14], '.') << "the disk erases what was there";
}

/// The band in one column, {upper, lower} row.
std::pair<std::size_t, std::size_t> band(const Zeilen& zeilen, std::size_t x) {
    std::string spalte;
    for (const std::string& zeile : zeilen)
        spalte += zeile[x];
    EXPECT_EQ(spalte.find('.', spalte.find('#')), spalte.rfind('#') + 1) << "a hole at " << x;
    return {spalte.find('#'), spalte.rfind('#')};
}

TEST(Sankey, SchwungbandVerbindetBeideEnden) {
    for (const int breite : {1, 2, 7, 20, 47, 49, 60}) {
        for (const int versatz : {10, -10}) {
            Probe probe(60, 120);
            Sankey_Schwungband(probe.blatt, {40, 80}, {10, 80 + versatz}, breite);
            EXPECT_EQ(probe.bild.alle(Art::sektor).size(), breite < 49 ? 2U : 0U) << breite;
            band(probe.zeilen(), 25);
            const int schraeg = breite < 49 ? 0 : versatz > 0 ? -1 : 1;  // lines aim beyond their end
            for (const auto& [x, unten] : {std::pair{10, 80 + versatz}, {40, 80 + schraeg}}) {
                const auto kante = static_cast<std::size_t>(unten);
                EXPECT_EQ(band(probe.zeilen(), static_cast<std::size_t>(x)),
                          std::pair(kante - static_cast<std::size_t>(breite), kante))
                    << breite << " " << x;
            }
        }
    }
}

/// The path that was drawn last.
std::string letzter_verlauf(const SvgFlaeche& bild) {
    const std::string text = bild.svg();
    const std::size_t anfang = text.rfind(" d=\"") + 4;
    return text.substr(anfang, text.find('"', anfang) - anfang);
}

TEST(Sankey, SvgBekommtUmrisse) {
    SvgFlaeche bild(100, 100);
    const Sankeyblatt blatt{bild, bandfarbe};
    Sankey_Spitze(bild, 10, 24, 10, 20, bandfarbe);
    EXPECT_EQ(letzter_verlauf(bild), "M 9 20L 11 20L 13 22.5L 11 25L 9 25Z");
    Sankey_Spitze(bild, 24, 50, 20, 50, bandfarbe);
    EXPECT_EQ(letzter_verlauf(bild), "M 20 52L 20 50L 22.5 48L 25 50L 25 52Z");
    Sankey_Schraegband(blatt, 10, 50, 40, 40, 4);
    EXPECT_EQ(letzter_verlauf(bild), "M 10 46L 11 46L 40 36L 41 36L 41 41L 40 41L 11 51L 10 51Z");
    // A quarter ring from 9.5 to 15.5 about the centre of pixel (20, 20), flush with the pixels' edges.
    Sankey_Bogen(blatt, 20, 20, 270, 360, 5, 10);
    EXPECT_EQ(
        letzter_verlauf(bild),
        "M 20 30L 20 36L 20.5 36A 15.5 15.5 0 0 0 36 20.5L 36 20L 30 20L 30 20.5A 9.5 9.5 0 0 1 20.5 30Z");
    // Two arcs of 10.5 and 39.5 pixels, 50 together, that meet 3/5 of the way.
    Sankey_Schwungband(blatt, {10, 60}, {40, 50}, 28);
    EXPECT_EQ(letzter_verlauf(bild),
              "M 10 61L 10.5 61A 39.5 39.5 0 0 0 34.2 53.1A 10.5 10.5 0 0 1 40.5 51L 41 51L 41 22L 40.5 22"
              "A 39.5 39.5 0 0 0 16.8 29.9A 10.5 10.5 0 0 1 10.5 32L 10 32Z");
}

TEST(Sankey, TextBeginntNichtLinksDerFlaeche) {
    RekorderFlaeche bild(100, 50);
    Sankey_Text(bild, Buendig::links, 5, 0, {"ab", "abc"});
    Sankey_Text(bild, Buendig::mitte, 50, 0, {"ab", "abcd"});
    Sankey_Text(bild, Buendig::rechts, 90, 20, {"ab"});
    Sankey_Text(bild, Buendig::rechts, 10, 30, {"abcdef"});
    std::vector<std::vector<double>> orte;
    for (const Zeichnung& z : bild.alle(Art::text))
        orte.push_back(z.zahlen);
    const std::vector<std::vector<double>> erwartet{{5, 0}, {5, 12}, {44, 0}, {38, 12}, {78, 20}, {0, 30}};
    EXPECT_EQ(orte, erwartet);
}

}  // namespace
}  // namespace velmaris
