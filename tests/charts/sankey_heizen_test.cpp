#include "charts/sankey_heizen.h"

#include "tests/charts/probe.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

namespace velmaris {
namespace {

using test::hoch;
using test::quer;
using ::testing::IsSupersetOf;
using Probe = test::Sankeyprobe;

constexpr Farbe bandfarbe{255, 180, 180};

struct Energien {
    float PE, HE, qh, qi, qs, ql, qt;  ///< kWh/(m2 a)
};

struct Fall {
    Energien energien;
    std::vector<int> breiten;  ///< bPE bTV bEE bSV bQH bQI bQS bQL bQT
    const char* laeufe;        ///< runs of band pixels upward (h) or to the right (q): from x, y, how many
};

/// All stacks are made for the 162 pixels that a surface of 232 leaves, at 1 kWh per pixel (the passive house
/// at 1/4).
const Fall faelle[] = {
    // Largest stack 30 + 100 + 2 * 16. The loss of 16 needs more room below than the gains of 20.
    {{128, 116, 100, 20, 30, 40, 110},
     {128, 12, 116, 16, 100, 20, 30, 40, 110},
     "h 79 181 128  h 150 165 100  h 195 195 21  h 180 55 31  h 255 185 151  h 295 185 111  h 325 65 41  q "
     "90 40 13  q 130 195 17  h 81 181 129  h 121 181 116  h 12 181 7  h 157 55 7  h 183 195 3  q 93 28 7  q "
     "134 203 9  h 335 60 31"},
    // Largest stack 25 + 1 + 14.5; both gains too wide to bend.
    {{1.75F, 1.5F, 1, 14.5F, 25, 8.5F, 32},
     {7, 1, 6, 2, 4, 58, 100, 34, 128},
     "h 79 141 7  h 140 139 4  h 255 197 163  h 295 197 129  h 320 59 35  q 90 100 2  q 130 180 3"},
    // Largest stack 62 + 60 + 40; the gains from the environment lower the heat demand's edge by 40.
    {{40, 20, 60, 30, 62, 52, 100},
     {40, 20, 20, -40, 60, 30, 62, 52, 100},
     "h 79 117 40  h 140 157 60  h 255 187 153  h 295 187 101  h 198 197 31  q 70 175 41  q 90 50 21  h 119 "
     "157 60  q 70 200 7"},
    // As before, but the internal gains need more room than the environment: 20 + 10 + 50 + 25.
    {{30, 20, 40, 50, 72, 32, 130},
     {30, 10, 20, -20, 40, 50, 72, 32, 130},
     "h 79 127 30  h 140 147 40  h 255 197 163  q 90 170 21"},
    // Largest stack 42 + 100 + 2 * 10; renewable energies of 40 come down in front of the end energy.
    {{70, 110, 100, 15, 42, 57, 100},
     {70, -40, 110, 10, 100, 15, 42, 57, 100},
     "h 100 187 110  h 150 177 100  h 255 192 158  q 30 60 41  q 130 200 11  h 79 187 111  q 30 32 7"},
    {{0, 1E-10F, 1E-10F, 0, 0, 0, 0}, {0, 0, 0, 0, 0, 0, 0, 0, 0}, "h 60 198 2  h 255 197 1"},
    // Largest stack 2 * 10 + 2 * 20, 2.7 pixels each.
    {{30, 20, 0, 0, 0, 0, 0}, {81, 27, 54, 54, 0, 0, 0, 0, 0}, "h 79 143 81"},
    // Slanted from 49 pixels on: 162 = 49 + 64 + 49.
    {{64, 64, 64, 49, 49, 49, 113},
     {64, 0, 64, 0, 64, 49, 49, 49, 113},
     "h 79 148 64  h 255 197 163  h 325 74 50"},
};

std::unique_ptr<Projekt> projekt(const Energien& e) {
    auto p = test::leeres_projekt();
    p->q_PE_Energietraeger = e.PE, p->q_HE_Energietraeger = e.HE, p->qhs_sum = e.qh;
    p->qis = e.qi, p->qsols = e.qs, p->qinfs = e.ql, p->qtrs = e.qt;
    return p;
}

/// Transmission losses of 1100 kWh through ground, door, walls, windows and roof.
void teile(Projekt& p, float tuer) {
    p.qtr = 1100, p.qtr_Boden = 110, p.qtr_Tuer = tuer;
    p.qtr_Waende = 495, p.qtr_Fenster = 330, p.qtr_Dach = 165 - tuer;
}

TEST(SankeyHeizen, BaenderHabenIhreBreiteUndGehenAuf) {
    for (const Fall& f : faelle) {
        Probe bild;
        SankeyHeizen(*projekt(f.energien), bild);
        const Sankey_Heizmasse m = sankey_heizmasse(*projekt(f.energien), bild);
        EXPECT_EQ((std::vector<int>{m.bPE, m.bTV, m.bEE, m.bSV, m.bQH, m.bQI, m.bQS, m.bQL, m.bQT}),
                  f.breiten)
            << f.breiten[0];
        EXPECT_NEAR(m.bPE, m.bEE + m.bTV, 1) << f.breiten[0];
        EXPECT_NEAR(m.bEE, m.bQH + m.bSV, 1) << f.breiten[0];
        EXPECT_NEAR(m.bQH + m.bQI + m.bQS, m.bQL + m.bQT, 3) << f.breiten[0];
        EXPECT_TRUE(f.energien.PE > 0 || bild.alle(Zeichnung::Art::sektor).empty()) << f.breiten[0];
        std::istringstream laeufe(f.laeufe);
        char richtung = 0;
        for (int x = 0, y = 0, laenge = 0; laeufe >> richtung >> x >> y >> laenge;) {
            const bool aufwaerts = richtung == 'h';
            const auto davor = aufwaerts ? bild.lies_punkt(x, y + 1) : bild.lies_punkt(x - 1, y);
            EXPECT_EQ(bild.lies_punkt(x, y), bandfarbe) << f.breiten[0] << " " << x << " " << y;
            EXPECT_EQ(davor, farben::weiss) << f.breiten[0] << " " << x << " " << y;
            EXPECT_EQ(aufwaerts ? hoch(bild, x, y) : quer(bild, x, y), laenge)
                << f.breiten[0] << " " << x << " " << y;
        }
    }
}

/// The disk inside the bend of a narrow band reaches far over the wide one on the other side where little
/// heat demand lies between them. The scales, 162 and 102, are the same with and without the narrow band.
TEST(SankeyHeizen, SchmaleGewinneBeissenNicht) {
    const auto pruefe = [](const Energien& mit_schmalem, const Energien& ohne_schmales, int von, int bis) {
        Probe mit;
        Probe ohne;
        SankeyHeizen(*projekt(mit_schmalem), mit);
        SankeyHeizen(*projekt(ohne_schmales), ohne);
        const int yB = sankey_heizmasse(*projekt(mit_schmalem), mit).yB;
        for (int y = yB + von; y <= yB + bis; ++y) {
            for (int x = 200; x <= 230; ++x)
                ASSERT_EQ(mit.lies_punkt(x, y), ohne.lies_punkt(x, y)) << x << " " << y;
        }
    };
    pruefe({53, 4, 4, 60, 2, 30, 36}, {53, 4, 4, 60, 0, 30, 34}, 0, 70);
    pruefe({53, 10, 4, 2, 60, 30, 36}, {53, 10, 4, 0, 60, 30, 34}, -120, -10);
}

TEST(SankeyHeizen, TeilungDerTransmission) {
    struct Tuerfall {
        float tuer;
        std::vector<int> grenzen;
        int zeilen;  ///< of the door's arrow between its two white lines
    };
    // From y 185 up with 0.1 pixels per kWh: ground 11, walls 49.5, windows 33.
    for (const Tuerfall& t : {Tuerfall{33, {174, 170, 121, 88}, 3}, Tuerfall{11, {174, 172, 123, 90}, 1},
                              Tuerfall{2.2F, {174, 172, 124, 91}, 1}, Tuerfall{0, {174, 174, 124, 91}, 0}}) {
        const auto p = projekt(faelle[0].energien);
        teile(*p, t.tuer);
        Probe bild;
        const Sankey_Heizmasse m = sankey_heizmasse(*p, bild);
        EXPECT_EQ(std::vector<int>(m.grenzen.begin(), m.grenzen.end()), t.grenzen) << t.tuer;
        SankeyHeizen(*p, bild);
        EXPECT_EQ(hoch(bild, 320, 185), 185 - t.grenzen[0]) << t.tuer;
        for (std::size_t i = 0; i < 4; ++i) {
            EXPECT_EQ(quer(bild, 310, t.grenzen[i]), sankey_breite - 310) << t.tuer << " " << i;
            const int naechste = i < 3 ? t.grenzen[i + 1] : 75;
            const int zeilen = i == 0 ? t.zeilen : t.grenzen[i] - naechste - (i < 3 ? 1 : 0);
            EXPECT_TRUE(zeilen == 0 || hoch(bild, 320, t.grenzen[i] - 1) == zeilen) << t.tuer << " " << i;
        }
        EXPECT_EQ(quer(bild, 310, 180), 40) << "eleven rows of ground: 34.5 pixels and a head of 5.5";
    }
}

/// Six pixels a character: 23 of the loss end at 123, 27 of the transport are centred at 90.
TEST(SankeyHeizen, BeschriftungenAnIhrenOrten) {
    const auto orte = [](const Energien& energien) {
        const auto p = projekt(energien);
        teile(*p, 2.2F);
        Probe bild;
        SankeyHeizen(*p, bild);
        return test::orte(bild);
    };
    EXPECT_THAT(
        orte(faelle[0].energien),
        IsSupersetOf({"2 29 Primärenergiebedarf", "2 41 128.0 kWh/(m² a)", "9 0 Umwandlungs- und Transport-",
                      "18 12 verluste 12.0 kWh/(m² a)", "146 0 nutzbare solare Gewinne",
                      "319 0 Lüftungsverluste", "0 186 Verluste Heizungssystem", "33 198 16.0 kWh/(m² a)",
                      "128 207 nutzbare interne Gewinne", "289 207 Transmissionsverluste",
                      "130 103 Heizwärmebedarf", "356 100 Dach (15 %)", "356 112 Fenster (30 %)",
                      "356 124 Wände (45 %)", "356 136 Tür (0 %)", "356 148 Boden (10 %)"}));
    EXPECT_THAT(orte(faelle[2].energien),
                IsSupersetOf({"0 162 Gewinne aus der Umwelt", "13 174 40.0 kWh/(m² a)"}));
    EXPECT_THAT(orte(faelle[4].energien), IsSupersetOf({"0 0 Erneuerbare Energien", "5 12 40.0 kWh/(m² a)"}));
}

}  // namespace
}  // namespace velmaris
