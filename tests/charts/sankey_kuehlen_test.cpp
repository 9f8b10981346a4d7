#include "charts/sankey_kuehlen.h"

#include "charts/planes/A_Sankey.h"
#include "tests/charts/probe.h"
#include "tests/charts/sankeyprobe.h"
#include "toolkit/svg_flaeche.h"

#include <gtest/gtest.h>
#include <memory>
#include <numeric>
#include <string>
#include <vector>

namespace velmaris {
namespace {

using test::Sankeyprobe;
using test::Textkasten;
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
    return sankey_kuehlmasse(sankey_kuehlwerte(p), Sankeyprobe());
}

TEST(SankeyKuehlen, Jahreswerte) {
    const Sankey_Kuehlwerte w = sankey_kuehlwerte(*projekt({5, 10, 75, 10}, 4));
    EXPECT_DOUBLE_EQ(w.teile[2], 75);
    EXPECT_DOUBLE_EQ(w.C, 100);
    EXPECT_DOUBLE_EQ(w.E, 25);
    EXPECT_DOUBLE_EQ(w.P, 75);
    EXPECT_DOUBLE_EQ(w.L, 50);
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

TEST(SankeyKuehlen, ZeilenDesStapels) {
    // Top of the stack at 232 - 112 - 28 - 60 = 32; inlets 10 apart; 26 rows below the end energy.
    const Sankey_Kuehlmasse m = masse(*projekt({5, 10, 75, 10}, 4));
    EXPECT_EQ(Masse(m.einlass.begin(), m.einlass.end()), (Masse{36, 57, 152, 173}));
    EXPECT_EQ(Masse(m.sammlung.begin(), m.sammlung.end()), (Masse{71, 82, 167, 178}));
    EXPECT_EQ(m.yP, 206);
    EXPECT_EQ(m.yE, 178);
}

TEST(SankeyKuehlen, BaenderTreffenSichOhneLuecken) {
    Sankeyprobe bild;
    const auto p = projekt({5, 10, 75, 10}, 4);
    SankeyKuehlen(*p, bild);
    const Sankey_Kuehlmasse m = masse(*p);
    EXPECT_EQ(bild.hoch(59, 206), 84) << "primary energy";
    EXPECT_EQ(bild.quer(70, 70), 57) << "loss, as wide as its bend";
    EXPECT_EQ(bild.hoch(150, 206), 28) << "end energy";
    for (std::size_t i = 0; i < ueberschuesse; ++i) {
        EXPECT_EQ(bild.lies_punkt(m.xSchraeg - 1, m.einlass[i] + 1), farben::weiss);
        EXPECT_EQ(bild.hoch(m.xSchraeg - 1, m.einlass[i]), m.teile[i]) << i;
    }
    EXPECT_EQ(bild.hoch(m.xSammlung + 1, 206), 28 + 112) << "waste side";
    EXPECT_EQ(bild.quer(m.xSammlung, 178 - 56), 410 - m.xSammlung) << "upper apex";
    EXPECT_EQ(bild.quer(m.xSammlung, 206 - 14), 410 - m.xSammlung) << "lower apex";
    EXPECT_EQ(bild.lies_punkt(5, 206 - 42), farben::weiss) << "tail of the primary energy";
}

/// Mixes of the four causes, from one alone to all alike.
const std::vector<std::vector<float>> mischungen{
    {1, 0, 0, 0},     {0, 1, 0, 0},  {0, 0, 1, 0},       {0, 0, 0, 1},
    {25, 25, 25, 25}, {1, 1, 97, 1}, {600, 10, 700, 80}, {0.01F, 0, 0.03F, 0.01F}};

template <class Pruefung>
void fuer_alle_bedarfe(int schritt, Pruefung&& pruefe) {
    for (int position = 5; position <= 80; position += schritt) {
        for (const std::vector<float>& teile : mischungen)
            pruefe(teile, static_cast<float>(position) / 10);
    }
}

TEST(SankeyKuehlen, BreitenBleibenInGrenzenUndGehenAuf) {
    fuer_alle_bedarfe(1, [](const std::vector<float>& teile, float effizienz) {
        const Sankey_Kuehlmasse m = masse(*projekt(teile, effizienz));
        EXPECT_LE(m.L, 80) << effizienz;
        EXPECT_EQ(m.P, m.E + m.L) << effizienz;
        EXPECT_EQ(m.C, std::accumulate(m.teile.begin(), m.teile.end(), 0)) << effizienz;
        EXPECT_EQ(m.sammlung.back(), m.yE) << effizienz;
        EXPECT_GE(m.xSammlung - m.xSchraeg, 20) << effizienz << ": room to slant";
        EXPECT_GE(m.yE + 1 - m.L - 10, m.L / 2.0 + 25) << effizienz << ": room for the rising loss";
    });
}

bool schneiden_sich(const Textkasten& a, const Textkasten& b) {
    return a.links < b.rechts && b.links < a.rechts && a.oben < b.unten && b.oben < a.unten;
}

/// True if a band pixel lies where the letters stand.
bool liegt_auf_band(const Sankeyprobe& bild, const Textkasten& t) {
    for (int y = static_cast<int>(t.oben) + 1; y < t.unten; ++y) {
        for (int x = static_cast<int>(t.links); x < t.rechts; ++x)
            if (bild.lies_punkt(x, y) == bandfarbe) return true;
    }
    return false;
}

TEST(SankeyKuehlen, BeschriftungenSindFrei) {
    fuer_alle_bedarfe(5, [](const std::vector<float>& teile, float effizienz) {
        for (const char* sprache : {"d", "e"}) {
            Sankeyprobe bild;
            SankeyKuehlen(*projekt(teile, effizienz, sprache), bild);
            test::erwarte_texte_innen(bild, sprache);
            const std::vector<Textkasten> texte = bild.textkaesten();
            ASSERT_EQ(texte.size(), 19U);
            for (std::size_t i = 0; i < texte.size(); ++i) {
                // The first two, the primary energy, stand where the loss turns upward.
                EXPECT_TRUE(i < 2 || !liegt_auf_band(bild, texte[i])) << texte[i].text << effizienz;
                for (std::size_t j = 0; j < i; ++j)
                    EXPECT_FALSE(schneiden_sich(texte[i], texte[j]))
                        << texte[i].text << " / " << texte[j].text << effizienz;
            }
        }
    });
}

TEST(SankeyKuehlen, OhneBedarfNurEinText) {
    struct Fall {
        const char* sprache;
        const char* text;
        double x;
    };
    for (const Fall& f : {Fall{"d", "Kein Kühlbedarf vorhanden.", 142},
                          Fall{"e", "The building has no cooling demand.", 115}}) {
        RekorderFlaeche bild(sankey_breite, sankey_hoehe, farben::weiss);
        SankeyKuehlen(*projekt({0, 0, 0, 0}, 2.5F, f.sprache), bild);
        ASSERT_EQ(bild.zeichnungen.size(), 2U);
        EXPECT_EQ(bild.zeichnungen[0].art, Zeichnung::Art::cls);
        EXPECT_TRUE(test::steht(bild, f.text, f.x, 110));
    }
}

TEST(A_Sankey, FlaechenUndUeberschriften) {
    for (const bool englisch : {false, true}) {
        const auto p = projekt({1, 1, 1, 1}, 2.5F, englisch ? "e" : "d");
        p->qhs_sum = 80;
        p->q_HE_Energietraeger = p->q_PE_Energietraeger = 100;
        test::Testplattform plattform;
        Sitzung sitzung{*p, plattform, [] {}};
        const A_Sankey ebene(sitzung);
        EXPECT_FALSE(ebene.ebene.sichtbar());
        EXPECT_EQ(ebene.Label1.text(), englisch ? "Energy flow (Sankey) diagram for heating"
                                                : "Energiefluß- (Sankey-) Diagramm Heizen");
        EXPECT_EQ(ebene.Label2.text(), englisch ? "Energy flow (Sankey) diagram for cooling"
                                                : "Energiefluß- (Sankey-) Diagramm Kühlen");
        EXPECT_EQ(ebene.Sankey_Kühlen.name, "Sankey_Kühlen");
        SvgFlaeche heizen(sankey_breite, sankey_hoehe);
        SvgFlaeche kuehlen(sankey_breite, sankey_hoehe);
        ebene.Sankey.zeichnen(heizen);
        ebene.Sankey_Kühlen.zeichnen(kuehlen);
        EXPECT_NE(heizen.svg().find("#ffb4b4"), std::string::npos);
        EXPECT_NE(kuehlen.svg().find("#b4b4ff"), std::string::npos);
    }
}

}  // namespace
}  // namespace velmaris
