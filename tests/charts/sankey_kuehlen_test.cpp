#include "charts/sankey_kuehlen.h"

#include "tests/charts/probe.h"

#include <gtest/gtest.h>
#include <memory>
#include <numeric>
#include <string>
#include <vector>

namespace velmaris {
namespace {

using test::hoch;
using test::quer;
using Probe = test::Sankeyprobe;
using Masse = std::vector<int>;

constexpr Farbe bandfarbe{180, 180, 255};

/// A record with a surplus by transmission, ventilation, sun and house, kWh/(m2 a), half of it in July and
/// half in August.
std::unique_ptr<Projekt> projekt(const std::vector<float>& teile, float effizienz,
                                 const std::string& sprache = "d") {
    auto p = test::leeres_projekt(sprache);
    p->Klimaeffizienz = effizienz;
    for (const int m : {7, 8}) {
        p->Monat(m).Kuehl_trans = teile[0] * 50;
        p->Monat(m).Kuehl_lueft = teile[1] * 50;
        p->Monat(m).Kuehl_solar = teile[2] * 50;
        p->Monat(m).Kuehl_intern = teile[3] * 50;
    }
    return p;
}

Sankey_Kuehlmasse masse(const Projekt& p) {
    return sankey_kuehlmasse(sankey_kuehlwerte(p), Probe());
}

TEST(SankeyKuehlen, BreitenInZweiDurchgaengen) {
    struct Fall {
        std::vector<float> teile;
        float effizienz;
        Masse breiten;  ///< parts, C, E, P, L
    };
    const Fall faelle[] = {
        // 142 pixels for 125 kWh: 1.136 per kWh.
        {{5, 10, 75, 10}, 4, {5, 11, 85, 11, 112, 28, 84, 56}},
        // 142 for 140 gives a loss of 121 - 40 = 81, so all shrink to 80/81.
        {{5, 10, 75, 10}, 2.5F, {4, 9, 75, 9, 97, 38, 116, 78}},
        // 142 for 300 gives 47, 94, 282 and a loss of 188; 47 * 80/188 = 20.
        {{0, 0, 100, 0}, 0.5F, {0, 0, 20, 0, 20, 40, 120, 80}},
        {{0, 0, 0, 0.002F}, 8, {0, 0, 0, 126, 126, 15, 47, 32}},
    };
    for (const Fall& f : faelle) {
        const Sankey_Kuehlmasse m = masse(*projekt(f.teile, f.effizienz));
        Masse breiten(m.teile.begin(), m.teile.end());
        breiten.insert(breiten.end(), {m.C, m.E, m.P, m.L});
        EXPECT_EQ(breiten, f.breiten) << f.effizienz;
    }
}

TEST(SankeyKuehlen, BaenderTreffenSichOhneLuecken) {
    Probe bild;
    const auto p = projekt({5, 10, 75, 10}, 4);
    SankeyKuehlen(*p, bild);
    const Sankey_Kuehlmasse m = masse(*p);
    EXPECT_EQ(hoch(bild, 59, 206), 84) << "primary energy";
    EXPECT_EQ(quer(bild, 70, 70), 57) << "loss, as wide as its bend";
    EXPECT_EQ(hoch(bild, 150, 206), 28) << "end energy";
    EXPECT_EQ(hoch(bild, m.xSammlung + 1, 206), 28 + 112) << "waste side";
    EXPECT_EQ(quer(bild, m.xSammlung, 178 - 56), 410 - m.xSammlung) << "upper apex";
    EXPECT_EQ(quer(bild, m.xSammlung, 206 - 14), 410 - m.xSammlung) << "lower apex";
    EXPECT_EQ(bild.lies_punkt(5, 206 - 42), farben::weiss) << "tail of the primary energy";
}

TEST(SankeyKuehlen, JederUeberschussHatSeinenEinlass) {
    for (const std::vector<float>& teile : {std::vector<float>{5, 10, 75, 10}, {0, 10, 0, 90}}) {
        Probe bild;
        SankeyKuehlen(*projekt(teile, 4), bild);
        const Sankey_Kuehlmasse m = masse(*projekt(teile, 4));
        for (std::size_t i = 0; i < ueberschuesse; ++i) {
            const int x = m.xSchraeg - 1;
            EXPECT_EQ(bild.lies_punkt(x, m.einlass[i] + 1), farben::weiss);
            EXPECT_EQ(bild.lies_punkt(x, m.einlass[i]) == bandfarbe, teile[i] > 0) << i;
            EXPECT_TRUE(teile[i] == 0 || hoch(bild, x, m.einlass[i]) == m.teile[i]) << i;
        }
    }
}

TEST(SankeyKuehlen, BreitenBleibenInGrenzenUndGehenAuf) {
    for (int position = 5; position <= 80; ++position) {
        for (const std::vector<float>& teile : std::vector<std::vector<float>>{{1, 0, 0, 0},
                                                                               {0, 0, 0, 1},
                                                                               {25, 25, 25, 25},
                                                                               {1, 1, 97, 1},
                                                                               {600, 10, 700, 80},
                                                                               {0.01F, 0, 0.03F, 0.01F}}) {
            const Sankey_Kuehlmasse m = masse(*projekt(teile, static_cast<float>(position) / 10));
            EXPECT_LE(m.L, 80) << position;
            EXPECT_EQ(m.P, m.E + m.L) << position;
            EXPECT_EQ(m.C, std::accumulate(m.teile.begin(), m.teile.end(), 0)) << position;
            EXPECT_EQ(m.sammlung.back(), m.yE) << position;
            EXPECT_GE(m.xSammlung - m.xSchraeg, 20) << position << ": room to slant";
            EXPECT_GE(m.yE + 1 - m.L - 10, m.L / 2.0 + 25) << position << ": room for the rising loss";
        }
    }
}

TEST(SankeyKuehlen, BeschriftungenAnIhrenOrten) {
    Probe bild;
    SankeyKuehlen(*projekt({5, 10, 75, 10}, 4), bild);
    struct Text {
        const char* text;
        double x, y;
    };
    // Six pixels a character: 27 of the transport are centred at 90, 14 of the heat end at 415. The list of
    // nine lines is centred between the inlets' ends at 31 and 173, but stays below the headings.
    for (const Text& t :
         {Text{"Primärenergiebedarf", 2, 98}, Text{"75.0 kWh/(m² a)", 2, 110},
          Text{"Umwandlungs- und Transport-", 9, 0}, Text{"verluste 50.0 kWh/(m² a)", 18, 12},
          Text{"End-Kühlenergiebedarf", 87, 207}, Text{"25.0 kWh/(m² a)", 105, 219},
          Text{"Aus dem Gebäude abgeführte Wärme", 223, 0}, Text{"(= Kühlbedarf) 100.0 kWh/(m² a)", 229, 12},
          Text{"Abwärme Kühlgerät", 313, 207}, Text{"25.0 kWh/(m² a)", 325, 219},
          Text{"Überschüssige", 130, 48}, Text{" - Transmissionsgewinne: ", 130, 60},
          Text{"5.0 kWh/(m² a)", 138, 72}, Text{" - interne Gewinne: ", 130, 132},
          Text{"10.0 kWh/(m² a)", 138, 144}})
        EXPECT_TRUE(test::steht(bild, t.text, t.x, t.y)) << t.text;
    Probe schmal;  // a loss of 32 pixels rises further to the left
    SankeyKuehlen(*projekt({0, 0, 0, 0.002F}, 8), schmal);
    EXPECT_TRUE(test::steht(schmal, "Umwandlungs- und Transport-", 5, 0));
    Probe breit;  // inlets near the end energy push their list up
    SankeyKuehlen(*projekt({0, 0, 100, 0}, 0.5F), breit);
    EXPECT_TRUE(test::steht(breit, "Überschüssige", 154, 56));
    Probe leer;
    SankeyKuehlen(*projekt({0, 0, 0, 0}, 2.5F, "e"), leer);
    ASSERT_EQ(leer.zeichnungen.size(), 2U);
    EXPECT_EQ(leer.zeichnungen[0].art, Zeichnung::Art::cls);
    EXPECT_TRUE(test::steht(leer, "The building has no cooling demand.", 115, 110));
}

}  // namespace
}  // namespace velmaris
