#include "charts/energiediagramm.h"

#include "charts/schema.h"
#include "charts/stufen.h"
#include "language/c_Sprache.h"
#include "tests/testflaeche.h"
#include "tests/textlage.h"
#include "toolkit/svg_flaeche.h"

#include <cmath>
#include <gtest/gtest.h>
#include <memory>

namespace velmaris {
namespace {

using test::Testflaeche;
using test::Zeichnung;
using Art = Zeichnung::Art;

TEST(Skalenschritt, WechseltGenauAnDenGrenzen) {
    const std::vector<std::pair<double, int>> stufen{{30, 10},      {60, 20},      {150, 50},    {300, 100},
                                                     {600, 200},    {1500, 500},   {3000, 1000}, {6000, 2000},
                                                     {15000, 5000}, {30000, 10000}};
    for (std::size_t i = 0; i < stufen.size(); ++i) {
        const double grenze = stufen[i].first;
        EXPECT_EQ(stufen_energiemonat.schritt(std::nextafter(grenze, 0.0)), stufen[i].second);
        EXPECT_EQ(stufen_energiemonat.schritt(grenze), i + 1 < stufen.size() ? stufen[i + 1].second : 50000);
    }
    EXPECT_EQ(stufen_energiemonat.schritt(0), 10);
}

TEST(Monat, AusDerStelleDesZeigers) {
    struct Fall {
        double x;
        int monat;
    };
    for (const Fall& fall : std::vector<Fall>{{0, 1},
                                              {32, 1},
                                              {35, 1},
                                              {53, 1},
                                              {59, 2},
                                              {77, 2},
                                              {83, 3},
                                              {299, 12},
                                              {317, 12},
                                              {325, 1},
                                              {2000, 1},
                                              {-500, 1},
                                              // a half goes to the even month: 1.5 and 2.5 to 2
                                              {57, 2},
                                              {81, 2}})
        EXPECT_EQ(spaltenmonat(fall.x).value_or(1), fall.monat) << fall.x;
}

Monatsenergie drei_monate() {
    Monatsenergie w;
    w.E(1) = 15;
    w.H(1) = 5;
    w.P(1) = 22.5F;
    w.P(2) = 3;
    w.Q(12) = 10;
    return w;
}

TEST(Saeulen, StehenUndStapeln) {
    // Largest 22.5, step 10: 10 units are 30 pixels.
    struct Teil {
        double x1, unten, x2, oben;
        Farbe farbe;
    };
    const std::vector<Teil> erwartet{{35, 95, 43, 50, {255, 0, 0}},
                                     {35, 50, 43, 35, {255, 128, 0}},
                                     {45, 95, 53, 27.5, {128, 0, 0}},
                                     {69, 95, 77, 86, {128, 0, 0}},
                                     {309, 95, 317, 65, {192, 64, 0}}};
    const std::vector<Saeule> teile = saeulen(drei_monate());
    ASSERT_EQ(teile.size(), erwartet.size());
    for (std::size_t i = 0; i < teile.size(); ++i) {
        EXPECT_EQ(teile[i].x1, erwartet[i].x1);
        EXPECT_DOUBLE_EQ(teile[i].unten, erwartet[i].unten);
        EXPECT_EQ(teile[i].x2, erwartet[i].x2);
        EXPECT_DOUBLE_EQ(teile[i].oben, erwartet[i].oben);
        EXPECT_EQ(teile[i].farbe, erwartet[i].farbe);
    }
    EXPECT_TRUE(saeulen({}).empty());
}

TEST(Saeulen, TrefferNurAufDemGefuelltenPixel) {
    const Monatsenergie w = drei_monate();
    struct Fall {
        double x, y;
        bool treffer;
    };
    for (const Fall& f : std::vector<Fall>{{35, 95, true},
                                           {43, 35, true},
                                           {44, 60, false},
                                           {43, 34, false},
                                           {34, 60, false},
                                           {45, 28, true},
                                           {45, 27, false},
                                           {53, 96, false},
                                           {69, 86, true},
                                           {59, 95, false},
                                           {310, 64, false},
                                           {310, 65, true},
                                           {30, 50, false}})
        EXPECT_EQ(auf_saeule(w, f.x, f.y), f.treffer) << f.x << "," << f.y;
}

/// A project whose January column P + Q has this height, kWh/(m2 month).
std::unique_ptr<Projekt> projekt(float hoehe) {
    auto p = std::make_unique<Projekt>();
    p->Sprache = "d";
    sprachtexte_setzen(*p);
    p->Heizsystem = 1;
    p->Energietraeger = 1;
    p->f_nutz = 100;
    p->qhs_sum = 10;
    p->Monat(1).Qh = 1000;
    p->q_PE_Energietraeger = hoehe;
    return p;
}

Testflaeche zeichne(const Projekt& p) {
    return {330, 115, [&](Zeichenflaeche& bild) { Monatsverbrauch_zeichnen(bild, p); }};
}

TEST(Monatsverbrauch, AchsenTeilungUndNamen) {
    const Testflaeche bild = zeichne(*projekt(0));
    EXPECT_EQ(bild.zeichnungen.front().art, Art::cls);
    const auto linien = bild.alle(Art::linie);
    ASSERT_EQ(linien.size(), 6U);
    EXPECT_EQ(linien[0].zahlen, (std::vector<double>{30, 95, 30, 5}));
    EXPECT_EQ(linien[1].zahlen, (std::vector<double>{30, 95, 325, 95}));
    EXPECT_EQ(linien[2].zahlen, (std::vector<double>{27, 95, 30, 95}));
    EXPECT_NEAR(linien[3].zahlen[1], 65.3333, 1e-4);
    EXPECT_EQ(linien[5].zahlen, (std::vector<double>{27, 6, 30, 6}));
    const auto texte = bild.alle(Art::text);
    ASSERT_EQ(texte.size(), 16U);
    // "Jan." is 24 pixels wide, "Mai" 18.
    EXPECT_EQ(texte[0].zahlen, (std::vector<double>{35, 98}));
    EXPECT_EQ(texte[4].text, "Mai");
    EXPECT_EQ(texte[4].zahlen, (std::vector<double>{134, 98}));
    EXPECT_EQ(texte[11].zahlen, (std::vector<double>{299, 98}));
    EXPECT_EQ(texte[12].text, " 0");
    EXPECT_EQ(texte[12].zahlen, (std::vector<double>{13, 90}));
    EXPECT_EQ(texte[15].text, " 30");
    EXPECT_EQ(texte[15].zahlen, (std::vector<double>{7, 1}));
    // Without energy only the strip of the scale is filled, with the background.
    const auto flaechen = bild.alle(Art::flaeche);
    ASSERT_EQ(flaechen.size(), 1U);
    EXPECT_EQ(flaechen[0].zahlen, (std::vector<double>{0, 0, 25, 100}));
    EXPECT_EQ(flaechen[0].farbe, bild.hintergrund());
}

TEST(Monatsverbrauch, LangeZahlenInKleinerSchrift) {
    struct Fall {
        float hoehe;
        std::string oberste;
        std::string schrift;
        double groesse;  ///< the largest in which blank and digits are not wider than 25 pixels
    };
    SvgFlaeche masse(1, 1);
    for (const Fall& f : std::vector<Fall>{{29.9F, " 30", "MS Sans Serif", 8.25},
                                           {30, " 60", "MS Sans Serif", 8.25},
                                           {5999, " 6000", "MS Sans Serif", 6.75},
                                           {6000, " 15000", "Arial", 6},
                                           {1e6F, " 150000", "Arial", 4.5}}) {
        test::Textprobe bild(330, 115, masse);
        Monatsverbrauch_zeichnen(bild, *projekt(f.hoehe));
        const auto texte = bild.alle(Art::text);
        EXPECT_EQ(texte.back().text, f.oberste);
        EXPECT_EQ(texte.back().schrift.name, f.schrift);
        EXPECT_EQ(texte.back().schrift.groesse, f.groesse);
        EXPECT_EQ(texte.front().schrift.name, "MS Sans Serif");
    }
}

TEST(Monatsverbrauch, ErneuerbareFernwaermeZeigtNurHilfsstromAlsPrimaerenergie) {
    const auto p = projekt(0);
    p->Heizsystem = 6;
    p->Energietraeger = 2;
    p->q_HE_Energietraeger = 20;
    p->q_HE_Strom = 2;
    p->q_PE_Strom = 6;
    const Testflaeche bild = zeichne(*p);
    EXPECT_EQ(bild.alle(Art::flaeche, {128, 0, 0}).size(), 0U);
    const auto hilfe = bild.alle(Art::flaeche, {192, 64, 0});
    ASSERT_EQ(hilfe.size(), 1U);
    EXPECT_EQ(hilfe[0].zahlen, (std::vector<double>{45, 95, 53, 77}));
}

}  // namespace
}  // namespace velmaris
