#include "charts/schema.h"

#include "charts/bilanzdiagramme.h"
#include "charts/energiediagramm.h"
#include "charts/kuehldiagramme.h"
#include "charts/nutzungsgrad.h"
#include "tests/charts/probe.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <sstream>
#include <vector>

namespace velmaris {
namespace {

using test::leeres_projekt;

constexpr const char* stufen_bis_500 = "5:1 10:2 25:5 50:10 75:15 100:20 250:50 500:100 ";

/// A chart: how its largest value gets into month m of a record of 1 m2, the parts of its axis, and the
/// limits below which the axis has a step; the last limit is beyond all values.
struct Skala {
    const char* name;
    void (*setze)(Projekt& p, int m, double M);
    void (*zeichne)(const Projekt& p, Zeichenflaeche& bild);
    int teile;
    std::string stufen;
};

/// Hours are whole: the largest count that stays below.
void setze_tagesstunden(Projekt& p, int m, double M) {
    p.Monat(m).Stunden_heiss = static_cast<std::int16_t>(std::floor(M * p.Monat(m).Tage));
}

void setze_jahresstunden(Projekt& p, int m, double M) {
    const auto h = static_cast<std::int16_t>(std::floor(M * 365));
    p.Monat(m).Stunden_heiss = static_cast<std::int16_t>(h / 2);
    p.Monat(13 - m).Stunden_heiss = static_cast<std::int16_t>(h - h / 2);
}

void setze_energie(Projekt& p, int m, double M) {
    p.Heizsystem = p.Energietraeger = 1;
    p.qhs_sum = p.Monat(m).Qh = 10;
    (m == 1 ? p.q_HE_Energietraeger : p.q_PE_Energietraeger) = f32(M / 2);
    (m == 1 ? p.q_HE_Strom : p.q_PE_Strom) = f32(M / 2);
}

const std::vector<Skala>& skalen() {
    static const std::vector<Skala> alle{
        {"year balance, heating", [](Projekt& p, int, double M) { p.qverl_s = f32(M); }, JahrBilanzZeichnen,
         5,
         "10:2 25:5 50:10 75:15 100:20 250:50 500:100 750:150 1000:200 2500:500 5000:1000 7500:1500 "
         "10000:2000 1e6:10000"},
        {"month balance, heating", [](Projekt& p, int m, double M) { p.Monat(m).Qt = f32(M); },
         HeizbilanzZeichnen, 5, stufen_bis_500 + std::string("1e6:1000")},
        {"month heat demand", [](Projekt& p, int m, double M) { p.Monat(m).Qh = f32(M); },
         MonatsbilanzZeichnen, 5, stufen_bis_500 + std::string("1e6:500")},
        {"month cooling demand", [](Projekt& p, int m, double M) { p.Monat(m).Kuehlbedarf = f32(M); },
         MonatsbilanzZeichnen, 5, stufen_bis_500 + std::string("1e6:500")},
        {"year demand", [](Projekt& p, int, double M) { p.qhs_sum = f32(M); }, JahresbedarfZeichnen, 5,
         stufen_bis_500 + std::string("750:150 1000:200 2500:500 1e6:2500")},
        {"month gains",
         [](Projekt& p, int m, double M) { (m == 1 ? p.Monat(m).Qs_brutto : p.Monat(m).Qi_brutto) = f32(M); },
         NutzungsgradMonatZeichnen, 5, stufen_bis_500 + std::string("1e6:1000")},
        {"year gains", [](Projekt& p, int m, double M) { p.Monat(m).Qi_brutto = f32(M); },
         NutzungsgradJahrZeichnen, 5, stufen_bis_500 + std::string("750:150 1000:200 2500:500 1e6:2500")},
        {"hours per day, month", setze_tagesstunden, StundenProTagMonatZeichnen, 4,
         "4:1 8:2 12:3 16:4 20:5 24:6"},
        {"hours per day, year", setze_jahresstunden, StundenProTagJahrZeichnen, 4,
         "4:1 8:2 12:3 16:4 20:5 24:6"},
        {"cooling demand, month", [](Projekt& p, int m, double M) { p.Monat(m).Kuehlbedarf = f32(M); },
         KuehlBedarfMonatZeichnen, 5, stufen_bis_500 + std::string("1e6:500")},
        {"cooling demand, year", [](Projekt& p, int m, double M) { p.Monat(m).Kuehlbedarf = f32(M); },
         KuehlBedarfJahrZeichnen, 5, stufen_bis_500 + std::string("750:150 1000:200 2500:500 1e6:2500")},
        {"degree hours, month", [](Projekt& p, int m, double M) { p.Monat(m).Kuehlgradstunden = f32(M); },
         KuehlGradStundenMonatZeichnen, 5,
         "5:1 10:2 25:5 50:10 100:20 250:50 500:100 1000:200 2500:500 5000:1000 1e6:2000"},
        {"degree hours, year", [](Projekt& p, int m, double M) { p.Monat(m).Kuehlgradstunden = f32(M); },
         KuehlGradStundenJahrZeichnen, 5,
         "5:1 10:2 25:5 50:10 100:20 250:50 500:100 1000:200 2500:500 1e6:5000"},
        {"energy, month", setze_energie,
         [](const Projekt& p, Zeichenflaeche& bild) { Monatsverbrauch_zeichnen(bild, p); }, 3,
         "30:10 60:20 150:50 300:100 600:200 1500:500 3000:1000 6000:2000 15000:5000 30000:10000 1e6:50000"},
    };
    return alle;
}

/// The step that the drawn axis shows.
double gezeigter_schritt(const Skala& skala, int m, double M) {
    const auto p = leeres_projekt();
    p->f_nutz = 1;
    skala.setze(*p, m, M);
    RekorderFlaeche bild;
    skala.zeichne(*p, bild);
    double oben = 0;
    for (const std::string& text : bild.texte()) {
        if (text.front() == ' ') oben = std::max(oben, zahl_lesen(text));
    }
    return oben / skala.teile;
}

TEST(Skala, DerSchrittWechseltGenauAnDerGrenze) {
    for (const Skala& skala : skalen()) {
        std::istringstream stufen(skala.stufen);
        double von = 0;
        double bis = 0;
        double schritt = 0;
        char punkt = 0;
        for (int m = 1; stufen >> bis >> punkt >> schritt; m = 13 - m, von = bis) {
            for (const double M : {von, double{std::nextafter(static_cast<float>(bis), 0.0F)}})
                EXPECT_EQ(gezeigter_schritt(skala, m, M), schritt) << skala.name << " " << M;
        }
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
        int schritt;
    };
    const std::vector<Fall> faelle{
        {HeizbilanzZeichnen, 117, 17, 325, {117, 97.2, 77.4, 57.6, 37.8, 18}, 1},
        {UeberGrafikZeichnen, 117, 17, 325, {117, 92.25, 67.5, 42.75, 18}, 200},
        {UeberJahrZeichnen, 117, 17, 85, {117, 92.25, 67.5, 42.75, 18}, 2200},
        {StundenProTagMonatZeichnen, 110, 20, 325, {110, 87.75, 65.5, 43.25, 21}, 1},
        {KuehlGradStundenJahrZeichnen, 110, 20, 85, {110, 92.2, 74.4, 56.6, 38.8, 21}, 1},
        {[](const Projekt& p, Zeichenflaeche& bild) { Monatsverbrauch_zeichnen(bild, p); },
         95,
         5,
         325,
         {95, 95 - 89. / 3, 95 - 178. / 3, 6},
         10},
    };
    auto p = leeres_projekt();
    p->Heizsystem = p->Energietraeger = 1;
    for (const Fall& f : faelle) {
        RekorderFlaeche bild;
        f.zeichne(*p, bild);
        EXPECT_EQ(bild.zeichnungen.front().art, Art::cls);
        const std::vector<Zeichnung> linien = bild.alle(Art::linie, farben::schwarz);
        ASSERT_EQ(linien.size(), f.striche.size() + 2);
        EXPECT_EQ(linien[0].zahlen, (test::Ecken{30, f.achse, 30, f.oben}));
        EXPECT_EQ(linien[1].zahlen, (test::Ecken{30, f.achse, f.rechts, f.achse}));
        for (std::size_t i = 0; i < f.striche.size(); ++i) {
            const std::vector<double>& strich = linien[i + 2].zahlen;
            EXPECT_EQ(strich, (test::Ecken{27, strich[1], 30, strich[1]}));
            EXPECT_NEAR(strich[1], f.striche[i], 1e-9);
            const std::string zahl = " " + std::to_string(static_cast<int>(i) * f.schritt);
            EXPECT_TRUE(test::steht(bild, zahl, 25 - 6.0 * static_cast<double>(zahl.size()), strich[1] - 5))
                << zahl;
        }
    }
}

TEST(Beschriftung, EinheitUndNameAnJedemBild) {
    struct Fall {
        void (*zeichne)(const Projekt&, Zeichenflaeche&);
        const char* sprache;
        const char* einheit;
        double x;
        const char* name;  ///< under the axis, of a chart by months that of May
        double x_name, y_name = 124;
    };
    for (const Fall& f : {
             Fall{HeizbilanzZeichnen, "d", "kWh/(m² Monat)", 3, "Mai", 134},
             Fall{MonatsbilanzZeichnen, "e", "kWh/(m² month)", 3, "May", 134},
             Fall{NutzungsgradMonatZeichnen, "d", "kWh/(m² Monat)", 3, "Mai", 134},
             Fall{UeberGrafikZeichnen, "e", "h/month", 10, "May", 134, 123},
             Fall{StundenProTagMonatZeichnen, "d", "Std. / Tag", 3, "Mai", 134},
             Fall{KuehlBedarfMonatZeichnen, "e", "kWh/(m² month)", 3, "May", 134},
             Fall{KuehlGradStundenMonatZeichnen, "d", "Kh", 3, "Mai", 134},
             Fall{JahrBilanzZeichnen, "e", "kWh/(m²a)", 5, "yearly balance", -1},
             Fall{JahresbedarfZeichnen, "d", "kWh/(m²a)", 5, "Jahresbilanz", 11},
             Fall{NutzungsgradJahrZeichnen, "d", "kWh/(m²a)", 5, "Jahresbilanz", 11},
             Fall{UeberJahrZeichnen, "d", "Std.", 10, "Jahressumme", 22, 123},
             Fall{StundenProTagJahrZeichnen, "e", "h / d", 5, "yearly mean", 17},
             Fall{KuehlBedarfJahrZeichnen, "d", "kWh/(m²a)", 5, "Jahresbilanz", 11},
             Fall{KuehlGradStundenJahrZeichnen, "e", "Kh", 5, "yearly sum", 23},
         }) {
        RekorderFlaeche bild;
        f.zeichne(*leeres_projekt(f.sprache), bild);
        EXPECT_TRUE(test::steht(bild, f.einheit, f.x, 0)) << f.einheit;
        EXPECT_TRUE(test::steht(bild, f.name, f.x_name, f.y_name)) << f.name;
        const bool ganzes_jahr = f.x_name < 100;
        EXPECT_TRUE(ganzes_jahr || test::steht(bild, f.sprache[0] == 'd' ? "Dez." : "Dec.", 299, f.y_name));
    }
}

}  // namespace
}  // namespace velmaris
