#include "charts/sankey_heizen.h"

#include "tests/charts/probe.h"
#include "tests/charts/sankeyprobe.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace velmaris {
namespace {

using test::Sankeyprobe;
using Masse = std::vector<int>;

constexpr Farbe bandfarbe{255, 180, 180};

struct Energien {
    float PE, HE, qh, qi, qs, ql, qt;  ///< kWh/(m2 a)
};

/// A run of band pixels, upward from (x, y) or to the right; the pixel before it is white.
struct Lauf {
    char richtung;
    int x, y, laenge;
};

struct Fall {
    std::string name;
    Energien energien;
    Masse breiten;  ///< bPE bTV bEE bSV bQH bQI bQS bQL bQT
    Masse kanten;   ///< yP yE yA yB yC yD yF
    std::vector<Lauf> laeufe;
};

/// All stacks are made for the 162 pixels that a surface of 232 leaves, at 1 kWh per pixel (the passive house
/// at 1/4).
const Fall faelle[] = {
    // Largest stack 30 + 100 + 2 * 16. The loss of 16 needs more room below than the gains of 20.
    {"altes Haus",
     {128, 116, 100, 20, 30, 40, 110},
     {128, 12, 116, 16, 100, 20, 30, 40, 110},
     {181, 65, 181, 165, 185, 65, 75},
     {{'h', 79, 181, 128},
      {'h', 150, 165, 100},
      {'h', 195, 195, 21},
      {'h', 180, 55, 31},
      {'h', 255, 185, 151},
      {'h', 295, 185, 111},
      {'h', 325, 65, 41},
      {'q', 90, 40, 13},
      {'q', 130, 195, 17}}},
    // Largest stack 25 + 1 + 14.5; both gains too wide to bend.
    {"Passivhaus",
     {1.75F, 1.5F, 1, 14.5F, 25, 8.5F, 32},
     {7, 1, 6, 2, 4, 58, 100, 34, 128},
     {141, 135, 141, 139, 197, 135, 69},
     {{'h', 79, 141, 7},
      {'h', 140, 139, 4},
      {'h', 255, 197, 163},
      {'h', 295, 197, 129},
      {'h', 320, 59, 35},
      {'q', 90, 100, 2},
      {'q', 130, 180, 3}}},
    // Largest stack 62 + 60 + 40; the gains from the environment lower the heat demand's edge by 40.
    {"Waermepumpe",
     {40, 20, 60, 30, 62, 52, 100},
     {40, 20, 20, -40, 60, 30, 62, 52, 100},
     {117, 97, 157, 157, 187, 97, 87},
     {{'h', 79, 117, 40},
      {'h', 140, 157, 60},
      {'h', 255, 187, 153},
      {'h', 295, 187, 101},
      {'h', 198, 197, 31},
      {'q', 70, 175, 41},
      {'q', 90, 50, 21}}},
    // As before, but the internal gains need more room than the environment: 20 + 10 + 50 + 25.
    {"Waermepumpe mit viel Abwaerme",
     {30, 20, 40, 50, 72, 32, 130},
     {30, 10, 20, -20, 40, 50, 72, 32, 130},
     {127, 107, 147, 147, 197, 107, 67},
     {{'h', 79, 127, 30}, {'h', 140, 147, 40}, {'h', 255, 197, 163}, {'q', 90, 170, 21}}},
    // Largest stack 42 + 100 + 2 * 10; renewable energies of 40 come down in front of the end energy.
    {"Fernwaerme",
     {70, 110, 100, 15, 42, 57, 100},
     {70, -40, 110, 10, 100, 15, 42, 57, 100},
     {187, 77, 187, 177, 192, 77, 92},
     {{'h', 100, 187, 110},
      {'h', 150, 177, 100},
      {'h', 255, 192, 158},
      {'q', 30, 60, 41},
      {'q', 130, 200, 11}}},
    {"alles null",
     {0, 1E-10F, 1E-10F, 0, 0, 0, 0},
     {0, 0, 0, 0, 0, 0, 0, 0, 0},
     {197, 197, 197, 197, 197, 197, 197},
     {{'h', 60, 198, 2}, {'h', 255, 197, 1}}},
    // Slanted from 49 pixels on: 162 = 49 + 64 + 49.
    {"breite Gewinne",
     {64, 64, 64, 49, 49, 49, 113},
     {64, 0, 64, 0, 64, 49, 49, 49, 113},
     {148, 84, 148, 148, 197, 84, 84},
     {{'h', 79, 148, 64}, {'h', 255, 197, 163}, {'h', 325, 74, 50}}},
};

std::unique_ptr<Projekt> projekt(const Energien& e, const std::string& sprache = "d") {
    auto p = test::leeres_projekt(sprache);
    p->q_PE_Energietraeger = e.PE;
    p->q_HE_Energietraeger = e.HE;
    p->qhs_sum = e.qh;
    p->qis = e.qi;
    p->qsols = e.qs;
    p->qinfs = e.ql;
    p->qtrs = e.qt;
    return p;
}

/// Transmission losses of 1100 kWh through ground, door, walls, windows and roof.
void teile(Projekt& p, float tuer) {
    p.qtr = 1100;
    p.qtr_Boden = 110;
    p.qtr_Tuer = tuer;
    p.qtr_Waende = 495;
    p.qtr_Fenster = 330;
    p.qtr_Dach = 165 - tuer;
}

TEST(SankeyHeizen, BreitenUndKanten) {
    for (const Fall& f : faelle) {
        const Sankeyprobe bild;
        const Sankey_Heizmasse m = sankey_heizmasse(*projekt(f.energien), bild);
        EXPECT_EQ((Masse{m.bPE, m.bTV, m.bEE, m.bSV, m.bQH, m.bQI, m.bQS, m.bQL, m.bQT}), f.breiten)
            << f.name;
        EXPECT_EQ((Masse{m.yP, m.yE, m.yA, m.yB, m.yC, m.yD, m.yF}), f.kanten) << f.name;
    }
}

TEST(SankeyHeizen, BaenderHabenIhreBreiteUndFarbe) {
    for (const Fall& f : faelle) {
        Sankeyprobe bild;
        SankeyHeizen(*projekt(f.energien), bild);
        for (const Lauf& l : f.laeufe) {
            const bool hoch = l.richtung == 'h';
            const auto davor = hoch ? bild.lies_punkt(l.x, l.y + 1) : bild.lies_punkt(l.x - 1, l.y);
            EXPECT_EQ(bild.lies_punkt(l.x, l.y), bandfarbe) << f.name << " " << l.x << " " << l.y;
            EXPECT_EQ(davor, farben::weiss) << f.name << " " << l.x << " " << l.y;
            EXPECT_EQ(hoch ? bild.hoch(l.x, l.y) : bild.quer(l.x, l.y), l.laenge)
                << f.name << " " << l.x << " " << l.y;
        }
    }
}

TEST(SankeyHeizen, SchmaleGewinneBeissenNicht) {
    // The disk inside the bend of a narrow solar band reaches far over the internal gains where little heat
    // demand lies between them. The scale, 98 + 4 + 60, is the same with and without sun.
    Sankeyprobe mit;
    Sankeyprobe ohne;
    SankeyHeizen(*projekt({53, 4, 4, 60, 2, 30, 36}), mit);
    SankeyHeizen(*projekt({53, 4, 4, 60, 0, 30, 34}), ohne);
    const int yB = sankey_heizmasse(*projekt({53, 4, 4, 60, 2, 30, 36}), mit).yB;
    for (int y = yB; y <= yB + 70; ++y) {
        for (int x = 200; x <= 230; ++x)
            ASSERT_EQ(mit.lies_punkt(x, y), ohne.lies_punkt(x, y)) << x << " " << y;
    }
}

TEST(SankeyHeizen, EnergieBleibtErhalten) {
    for (const Fall& f : faelle) {
        const Sankeyprobe bild;
        const Sankey_Heizmasse m = sankey_heizmasse(*projekt(f.energien), bild);
        EXPECT_NEAR(m.bPE, m.bEE + m.bTV, 1) << f.name;
        EXPECT_NEAR(m.bEE, m.bQH + m.bSV, 1) << f.name;
        EXPECT_NEAR(m.bQH + m.bQI + m.bQS, m.bQL + m.bQT, 3) << f.name;
        EXPECT_LE(m.yC, bild.hoehe() - 25) << f.name;
        EXPECT_GE(m.yD - m.bQS - 10, 25) << f.name;
    }
}

TEST(SankeyHeizen, TeilungDerTransmission) {
    struct Tuerfall {
        float tuer;
        std::vector<int> grenzen;
        int zeilen;  ///< of the door's arrow between its two white lines
    };
    // From y 185 up with 0.1 pixels per kWh: ground 11, walls 49.5, windows 33.
    const Tuerfall tuerfaelle[] = {
        {33, {174, 170, 121, 88}, 3},
        {11, {174, 172, 123, 90}, 1},
        {2.2F, {174, 172, 124, 91}, 1},
        {0, {174, 174, 124, 91}, 0},
    };
    for (const Tuerfall& t : tuerfaelle) {
        const auto p = projekt(faelle[0].energien);
        teile(*p, t.tuer);
        Sankeyprobe bild;
        const Sankey_Heizmasse m = sankey_heizmasse(*p, bild);
        EXPECT_EQ(std::vector<int>(m.grenzen.begin(), m.grenzen.end()), t.grenzen) << t.tuer;
        SankeyHeizen(*p, bild);
        EXPECT_EQ(bild.hoch(320, 185), 185 - t.grenzen[0]) << t.tuer;
        for (const int y : t.grenzen)
            EXPECT_EQ(bild.quer(310, y), sankey_breite - 310) << t.tuer << " " << y;
        EXPECT_TRUE(t.zeilen == 0 || bild.hoch(320, t.grenzen[0] - 1) == t.zeilen) << t.tuer;
        EXPECT_EQ(bild.hoch(320, t.grenzen[1] - 1), t.grenzen[1] - 1 - t.grenzen[2]) << t.tuer;
        EXPECT_EQ(bild.hoch(320, t.grenzen[2] - 1), t.grenzen[2] - 1 - t.grenzen[3]) << t.tuer;
        EXPECT_EQ(bild.hoch(320, t.grenzen[3] - 1), t.grenzen[3] - 75) << t.tuer;
        EXPECT_EQ(bild.quer(310, 180), 40) << "eleven rows of ground: 34.5 pixels and a head of 5.5";
    }
}

TEST(SankeyHeizen, BeschriftungenAnIhrenOrten) {
    // Six pixels a character. 23 characters of the loss end at 123, 26 of the transport are centred at 90.
    const auto p = projekt(faelle[0].energien);
    teile(*p, 2.2F);
    RekorderFlaeche bild(sankey_breite, sankey_hoehe, farben::weiss);
    SankeyHeizen(*p, bild);
    using test::steht;
    EXPECT_TRUE(steht(bild, "Primärenergiebedarf", 2, 29));
    EXPECT_TRUE(steht(bild, "128.0 kWh/(m² a)", 2, 41));
    EXPECT_TRUE(steht(bild, "Umwandlungs- und Transport-", 9, 0));
    EXPECT_TRUE(steht(bild, "verluste 12.0 kWh/(m² a)", 18, 12));
    EXPECT_TRUE(steht(bild, "nutzbare solare Gewinne", 146, 0));
    EXPECT_TRUE(steht(bild, "Lüftungsverluste", 319, 0));
    EXPECT_TRUE(steht(bild, "16.0 kWh/(m² a)", 33, 198));
    EXPECT_TRUE(steht(bild, "nutzbare interne Gewinne", 128, 207));
    EXPECT_TRUE(steht(bild, "Transmissionsverluste", 289, 207));
    EXPECT_TRUE(steht(bild, "Heizwärmebedarf", 130, 103));
    const std::vector<std::string> liste{"Dach (15 %)", "Fenster (30 %)", "Wände (45 %)", "Tür (0 %)",
                                         "Boden (10 %)"};
    for (std::size_t i = 0; i < liste.size(); ++i)
        EXPECT_TRUE(steht(bild, liste[i], 356, 100 + 12.0 * static_cast<double>(i))) << liste[i];
}

TEST(SankeyHeizen, TextDesVorzeichens) {
    struct Textfall {
        const Fall& fall;
        const char* umwandlung;
        const char* system;
    };
    const Textfall textfaelle[] = {
        {faelle[0], "losses for transformation", "losses of the heating"},
        {faelle[2], "losses for transformation", "gains from environment"},
        {faelle[4], "renewable energies", "losses of the heating"},
        {faelle[5], "renewable energies", "losses of the heating"},
    };
    for (const Textfall& t : textfaelle) {
        Sankeyprobe bild;
        SankeyHeizen(*projekt(t.fall.energien, "e"), bild);
        const std::vector<std::string> texte = bild.texte();
        for (const char* text : {t.umwandlung, t.system})
            EXPECT_EQ(std::count(texte.begin(), texte.end(), text), 1) << t.fall.name << ": " << text;
    }
}

TEST(SankeyHeizen, KeinTextWirdAbgeschnitten) {
    for (const Fall& f : faelle) {
        for (const char* sprache : {"d", "e"}) {
            const auto p = projekt(f.energien, sprache);
            teile(*p, 2.2F);
            Sankeyprobe bild;
            SankeyHeizen(*p, bild);
            test::erwarte_texte_innen(bild, f.name + sprache);
        }
    }
}

}  // namespace
}  // namespace velmaris
