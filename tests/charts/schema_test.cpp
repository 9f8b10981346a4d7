#include "charts/schema.h"

#include "charts/bilanzdiagramme.h"
#include "charts/kuehldiagramme.h"
#include "charts/nutzungsgrad.h"
#include "tests/charts/probe.h"
#include "toolkit/zahlen.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

namespace velmaris {
namespace {

using test::leeres_projekt;

/// Below the limit the axis has this step.
struct Grenze {
    double unter;
    double schritt;
};

const std::vector<Grenze> monatsgrenzen{{5, 1},   {10, 2},   {25, 5},   {50, 10},
                                        {75, 15}, {100, 20}, {250, 50}, {500, 100}};
const std::vector<Grenze> jahresgrenzen{{5, 1},    {10, 2},    {25, 5},    {50, 10},    {75, 15},   {100, 20},
                                        {250, 50}, {500, 100}, {750, 150}, {1000, 200}, {2500, 500}};

/// One chart: how its largest value gets into a record, its drawing, the ticks, the limits from the bottom.
struct Skalenfall {
    const char* name;
    void (*setze)(Projekt& p, double M);
    void (*zeichne)(const Projekt& p, Zeichenflaeche& bild);
    int teile;
    std::vector<Grenze> grenzen;
    double sonst;
};

/// The step that the drawn axis shows.
double gezeigter_schritt(const Skalenfall& fall, double M) {
    const auto p = leeres_projekt();
    p->f_nutz = 1;
    fall.setze(*p, M);
    RekorderFlaeche bild;
    fall.zeichne(*p, bild);
    double oben = 0;
    for (const std::string& text : bild.texte()) {
        if (text.front() == ' ') oben = std::max(oben, zahl_lesen(text));
    }
    return oben / fall.teile;
}

double knapp_unter(double grenze) {
    return std::nextafter(static_cast<float>(grenze), 0.0F);
}

/// Hours are whole: the largest count that stays below, in a month of 30 days.
void setze_tagesstunden(Projekt& p, double M) {
    p.Monat(4).Stunden_heiss = static_cast<std::int16_t>(std::floor(M * 30));
}

void setze_jahresstunden(Projekt& p, double M) {
    const double h = std::floor(M * 365);
    p.Monat(7).Stunden_heiss = static_cast<std::int16_t>(std::floor(h / 2));
    p.Monat(8).Stunden_heiss = static_cast<std::int16_t>(h - std::floor(h / 2));
}

const std::vector<Skalenfall>& skalenfaelle() {
    static const std::vector<Skalenfall> faelle{
        {"year balance, heating",
         [](Projekt& p, double M) { p.qverl_s = f32(M); },
         JahrBilanzZeichnen,
         5,
         {{5, 2},
          {10, 2},
          {25, 5},
          {50, 10},
          {75, 15},
          {100, 20},
          {250, 50},
          {500, 100},
          {750, 150},
          {1000, 200},
          {2500, 500},
          {5000, 1000},
          {7500, 1500},
          {10000, 2000}},
         10000},
        {"month balance, heating",
         [](Projekt& p, double M) { p.Monat(1).Qt = f32(M); },
         HeizbilanzZeichnen,
         5,
         {{5, 1}, {10, 2}, {25, 5}, {50, 10}, {75, 15}, {100, 20}, {250, 50}, {500, 100}, {750, 1000}},
         1000},
        {"month demand",
         [](Projekt& p, double M) { p.Monat(12).Qh = f32(M); },
         MonatsbilanzZeichnen,
         5,
         {{5, 1}, {10, 2}, {25, 5}, {50, 10}, {75, 15}, {100, 20}, {250, 50}, {500, 100}, {10000, 500}},
         500},
        {"year demand", [](Projekt& p, double M) { p.qhs_sum = f32(M); }, JahresbedarfZeichnen, 5,
         jahresgrenzen, 2500},
        {"month gains", [](Projekt& p, double M) { p.Monat(6).Qs_brutto = f32(M); },
         NutzungsgradMonatZeichnen, 5, monatsgrenzen, 1000},
        {"year gains", [](Projekt& p, double M) { p.Monat(6).Qi_brutto = f32(M); }, NutzungsgradJahrZeichnen,
         5, jahresgrenzen, 2500},
        {"hours per day, month",
         setze_tagesstunden,
         StundenProTagMonatZeichnen,
         4,
         {{4, 1}, {8, 2}, {12, 3}, {16, 4}, {20, 5}},
         6},
        {"hours per day, year",
         setze_jahresstunden,
         StundenProTagJahrZeichnen,
         4,
         {{4, 1}, {8, 2}, {12, 3}, {16, 4}, {20, 5}},
         6},
        {"cooling demand, month", [](Projekt& p, double M) { p.Monat(7).Kuehlbedarf = f32(M); },
         KuehlBedarfMonatZeichnen, 5, monatsgrenzen, 500},
        {"cooling demand, year", [](Projekt& p, double M) { p.Monat(7).Kuehlbedarf = f32(M); },
         KuehlBedarfJahrZeichnen, 5, jahresgrenzen, 2500},
        {"degree hours, month",
         [](Projekt& p, double M) { p.Monat(7).Kuehlgradstunden = f32(M); },
         KuehlGradStundenMonatZeichnen,
         5,
         {{5, 1},
          {10, 2},
          {25, 5},
          {50, 10},
          {100, 20},
          {250, 50},
          {500, 100},
          {1000, 200},
          {2500, 500},
          {5000, 1000}},
         2000},
        {"degree hours, year",
         [](Projekt& p, double M) { p.Monat(7).Kuehlgradstunden = f32(M); },
         KuehlGradStundenJahrZeichnen,
         5,
         {{5, 1},
          {10, 2},
          {25, 5},
          {50, 10},
          {100, 20},
          {250, 50},
          {500, 100},
          {1000, 200},
          {2500, 500},
          {5000, 5000},
          {10000, 5000}},
         5000},
    };
    return faelle;
}

TEST(Skala, DerSchrittWechseltGenauAnDerGrenze) {
    for (const Skalenfall& fall : skalenfaelle()) {
        for (std::size_t i = 0; i < fall.grenzen.size(); ++i) {
            const Grenze& g = fall.grenzen[i];
            const double darueber = i + 1 < fall.grenzen.size() ? fall.grenzen[i + 1].schritt : fall.sonst;
            EXPECT_EQ(gezeigter_schritt(fall, knapp_unter(g.unter)), g.schritt)
                << fall.name << " " << g.unter;
            EXPECT_EQ(gezeigter_schritt(fall, g.unter), darueber) << fall.name << " " << g.unter;
        }
        EXPECT_EQ(gezeigter_schritt(fall, 0), fall.grenzen.front().schritt) << fall.name;
    }
}

TEST(Spaltenmonat, VonDerAchseBisDezember) {
    struct Fall {
        double x;
        int monat;
    };
    // A column begins 33 + 24 (m - 1) pixels from the left; its very edges go to the even neighbour.
    for (const Fall& f : {Fall{32, 0}, Fall{34, 1}, Fall{45, 1}, Fall{56, 1}, Fall{57, 2}, Fall{58, 2},
                          Fall{80, 2}, Fall{81, 2}, Fall{82, 3}, Fall{311, 12}, Fall{320, 12}, Fall{322, 13}})
        EXPECT_EQ(spaltenmonat(f.x).value_or(f.x < 100 ? 0 : 13), f.monat) << f.x;
    EXPECT_FALSE(spaltenmonat(NAN));
}

TEST(Rahmen, AchsenStricheUndZahlen) {
    using Art = Zeichnung::Art;
    struct Fall {
        void (*zeichne)(const Projekt&, Zeichenflaeche&);
        double achse, oben, rechts;
        std::vector<double> striche;
        std::vector<const char*> zahlen;
    };
    const std::vector<Fall> faelle{
        {HeizbilanzZeichnen,
         117,
         17,
         325,
         {117, 97.2, 77.4, 57.6, 37.8, 18},
         {" 0", " 1", " 2", " 3", " 4", " 5"}},
        {JahrBilanzZeichnen,
         117,
         17,
         85,
         {117, 97.2, 77.4, 57.6, 37.8, 18},
         {" 0", " 2", " 4", " 6", " 8", " 10"}},
        {UeberGrafikZeichnen,
         117,
         17,
         325,
         {117, 92.25, 67.5, 42.75, 18},
         {" 0", " 200", " 400", " 600", " 800"}},
        {UeberJahrZeichnen,
         117,
         17,
         85,
         {117, 92.25, 67.5, 42.75, 18},
         {" 0", " 2200", " 4400", " 6600", " 8800"}},
        {StundenProTagMonatZeichnen,
         110,
         20,
         325,
         {110, 87.75, 65.5, 43.25, 21},
         {" 0", " 1", " 2", " 3", " 4"}},
        {KuehlGradStundenJahrZeichnen,
         110,
         20,
         85,
         {110, 92.2, 74.4, 56.6, 38.8, 21},
         {" 0", " 1", " 2", " 3", " 4", " 5"}},
    };
    const auto p = leeres_projekt();
    for (const Fall& f : faelle) {
        RekorderFlaeche bild;
        f.zeichne(*p, bild);
        EXPECT_EQ(bild.zeichnungen.front().art, Art::cls);
        const std::vector<Zeichnung> linien = bild.alle(Art::linie, farben::schwarz);
        ASSERT_EQ(linien.size(), f.striche.size() + 2);
        EXPECT_EQ(linien[0].zahlen, (test::Ecken{30, f.achse, 30, f.oben}));
        EXPECT_EQ(linien[1].zahlen, (test::Ecken{30, f.achse, f.rechts, f.achse}));
        for (std::size_t i = 0; i < f.striche.size(); ++i) {
            EXPECT_DOUBLE_EQ(linien[i + 2].zahlen[1], f.striche[i]);
            const std::string zahl = f.zahlen[i];
            EXPECT_TRUE(
                test::steht(bild, zahl, 25 - 6.0 * static_cast<double>(zahl.size()), f.striche[i] - 5))
                << zahl;
        }
    }
}

TEST(Beschriftung, MonateJahrUndEinheit) {
    struct Fall {
        void (*zeichne)(const Projekt&, Zeichenflaeche&);
        const char* sprache;
        const char* text;
        double x, y;
    };
    for (const Fall& f : {
             Fall{HeizbilanzZeichnen, "d", "Jan.", 35, 124},
             Fall{HeizbilanzZeichnen, "d", "Mai", 134, 124},
             Fall{HeizbilanzZeichnen, "e", "Dec.", 299, 124},
             Fall{UeberGrafikZeichnen, "d", "Jan.", 35, 123},
             Fall{KuehlBedarfMonatZeichnen, "d", "Jan.", 35, 124},
             Fall{HeizbilanzZeichnen, "d", "kWh/(m² Monat)", 3, 0},
             Fall{MonatsbilanzZeichnen, "e", "kWh/(m² month)", 3, 0},
             Fall{NutzungsgradMonatZeichnen, "e", "kWh/(m² month)", 3, 0},
             Fall{JahrBilanzZeichnen, "d", "kWh/(m²a)", 5, 0},
             Fall{JahresbedarfZeichnen, "e", "kWh/(m²a)", 5, 0},
             Fall{NutzungsgradJahrZeichnen, "d", "kWh/(m²a)", 5, 0},
             Fall{JahrBilanzZeichnen, "d", "Jahresbilanz", 11, 124},
             Fall{JahresbedarfZeichnen, "e", "yearly balance", -1, 124},
             Fall{UeberGrafikZeichnen, "d", "Std./Monat", 10, 0},
             Fall{UeberGrafikZeichnen, "e", "h/month", 10, 0},
             Fall{UeberJahrZeichnen, "d", "Std.", 10, 0},
             Fall{UeberJahrZeichnen, "e", "h", 10, 0},
             Fall{UeberJahrZeichnen, "d", "Jahressumme", 22, 123},
             Fall{UeberJahrZeichnen, "e", "annual sum", 22, 123},
             Fall{StundenProTagMonatZeichnen, "d", "Std. / Tag", 3, 0},
             Fall{StundenProTagJahrZeichnen, "e", "h / d", 5, 0},
             Fall{StundenProTagJahrZeichnen, "d", "Jahresmittel", 11, 124},
             Fall{StundenProTagJahrZeichnen, "e", "yearly mean", 17, 124},
             Fall{KuehlBedarfJahrZeichnen, "d", "Jahresbilanz", 11, 124},
             Fall{KuehlBedarfJahrZeichnen, "d", "kWh/(m²a)", 5, 0},
             Fall{KuehlGradStundenMonatZeichnen, "d", "Kh", 3, 0},
             Fall{KuehlGradStundenJahrZeichnen, "e", "Kh", 5, 0},
             Fall{KuehlGradStundenJahrZeichnen, "d", "Jahressumme", 17, 124},
             Fall{KuehlGradStundenJahrZeichnen, "e", "yearly sum", 23, 124},
         }) {
        RekorderFlaeche bild;
        f.zeichne(*leeres_projekt(f.sprache), bild);
        EXPECT_TRUE(test::steht(bild, f.text, f.x, f.y)) << f.text;
    }
}

TEST(Beschriftung, EinAndererBuchstabeLaesstNurDieZahlen) {
    const auto p = leeres_projekt("x");
    p->qhs_sum = 3;
    for (auto* zeichne :
         {JahresbedarfZeichnen, UeberJahrZeichnen, StundenProTagJahrZeichnen, KuehlGradStundenJahrZeichnen}) {
        RekorderFlaeche bild;
        zeichne(*p, bild);
        for (const std::string& text : bild.texte())
            EXPECT_TRUE(text.empty() || text.front() == ' ') << text;
    }
    RekorderFlaeche bild;
    JahresbedarfZeichnen(*p, bild);
    EXPECT_EQ(test::flaechen(bild, farben::rot).size(), 1U);
}

}  // namespace
}  // namespace velmaris
