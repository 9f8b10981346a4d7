#include "charts/sankey_kuehlen.h"

#include "tests/charts/probe.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::hoch;
using test::quer;
using ::testing::IsSupersetOf;
using Probe = test::Sankeyprobe;

/// A record with a surplus by transmission, ventilation, sun and house, kWh/(m2 a), half of it in July and
/// half in August.
std::unique_ptr<Projekt> projekt(const std::vector<float>& teile, float effizienz) {
    auto p = test::leeres_projekt();
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
        std::vector<int> breiten;  ///< parts, C, E, P, L
    };
    for (const Fall& f :
         std::vector<Fall>{// 142 pixels for 125 kWh: 1.136 per kWh.
                           {{5, 10, 75, 10}, 4, {5, 11, 85, 11, 112, 28, 84, 56}},
                           // 142 for 140 gives a loss of 121 - 40 = 81, so all shrink to 80/81.
                           {{5, 10, 75, 10}, 2.5F, {4, 9, 75, 9, 97, 38, 116, 78}},
                           // 142 for 300 gives 47, 94, 282 and a loss of 188; 47 * 80/188 = 20.
                           {{0, 0, 100, 0}, 0.5F, {0, 0, 20, 0, 20, 40, 120, 80}},
                           {{0, 0, 0, 0.002F}, 8, {0, 0, 0, 126, 126, 15, 47, 32}}}) {
        const Sankey_Kuehlmasse m = masse(*projekt(f.teile, f.effizienz));
        std::vector<int> breiten(m.teile.begin(), m.teile.end());
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
    for (std::size_t i = 0; i < ueberschuesse; ++i)
        EXPECT_EQ(hoch(bild, m.xSchraeg - 1, m.einlass[i]), m.teile[i]) << "inlet " << i;
    EXPECT_EQ(bild.lies_punkt(m.xEinlass + 38, m.einlass[2] - 42), farben::weiss) << "notch of the sun";
}

TEST(SankeyKuehlen, BeschriftungenAnIhrenOrten) {
    Probe bild;
    SankeyKuehlen(*projekt({5, 10, 75, 10}, 4), bild);
    // Six pixels a character: 27 of the transport are centred at 90, 14 of the heat end at 415. The list of
    // nine lines is centred between the inlets' ends at 31 and 173, but stays below the headings.
    EXPECT_THAT(
        test::orte(bild),
        IsSupersetOf({"2 98 Primärenergiebedarf", "2 110 75.0 kWh/(m² a)", "9 0 Umwandlungs- und Transport-",
                      "18 12 verluste 50.0 kWh/(m² a)", "87 207 End-Kühlenergiebedarf",
                      "105 219 25.0 kWh/(m² a)", "223 0 Aus dem Gebäude abgeführte Wärme",
                      "229 12 (= Kühlbedarf) 100.0 kWh/(m² a)", "313 207 Abwärme Kühlgerät",
                      "325 219 25.0 kWh/(m² a)", "130 48 Überschüssige", "130 60  - Transmissionsgewinne: ",
                      "138 72 5.0 kWh/(m² a)", "130 132  - interne Gewinne: ", "138 144 10.0 kWh/(m² a)"}));
    Probe schmal;  // a loss of 32 pixels rises further to the left
    SankeyKuehlen(*projekt({0, 0, 0, 0.002F}, 8), schmal);
    EXPECT_TRUE(test::steht(schmal, "Umwandlungs- und Transport-", 5, 0));
    Probe breit;  // inlets near the end energy push their list up
    SankeyKuehlen(*projekt({0, 0, 100, 0}, 0.5F), breit);
    EXPECT_TRUE(test::steht(breit, "Überschüssige", 154, 56));
    Probe leer;
    SankeyKuehlen(*projekt({0, 0, 0, 0}, 2.5F), leer);
    ASSERT_EQ(leer.zeichnungen.size(), 2U);
    EXPECT_EQ(leer.zeichnungen[0].art, Zeichnung::Art::cls);
    EXPECT_TRUE(test::steht(leer, "Kein Kühlbedarf vorhanden.", 142, 110));
}

}  // namespace
}  // namespace velmaris
