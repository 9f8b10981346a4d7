#include "charts/schema.h"

#include "charts/bilanzdiagramme.h"
#include "charts/energiediagramm.h"
#include "charts/kuehldiagramme.h"
#include "charts/nutzungsgrad.h"
#include "tests/charts/probe.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <sstream>

namespace velmaris {
namespace {

using test::leeres_projekt;

using Zeichenroutine = void (*)(const Projekt&, Zeichenflaeche&);
using Setzer = std::function<void(Projekt& p, int m, double M)>;

Setzer im_monat(float Monatswerte::*feld) {
    return [feld](Projekt& p, int m, double M) { p.Monat(m).*feld = f32(M); };
}

Setzer im_jahr(float Projekt::*feld) {
    return [feld](Projekt& p, int, double M) { p.*feld = f32(M); };
}

/// Hours are whole: the largest count in this many days that stays below.
Setzer stunden_in(int tage) {
    return [tage](Projekt& p, int m, double M) {
        p.Monat(m).Stunden_heiss = static_cast<std::int16_t>(std::floor(M * tage));
    };
}

void energie_setzen(Projekt& p, int m, double M) {
    p.qhs_sum = p.Monat(m).Qh = 10;
    (m == 1 ? p.q_HE_Energietraeger : p.q_PE_Energietraeger) = f32(M / 2);
    (m == 1 ? p.q_HE_Strom : p.q_PE_Strom) = f32(M / 2);
}

void energie_zeichnen(const Projekt& p, Zeichenflaeche& bild) {
    Monatsverbrauch_zeichnen(bild, p);
}

/// A chart: how its largest value gets into month m of a record of 1 m2, the parts of its axis, and the
/// limits below which the axis has a step.
struct Skala {
    Setzer setze;
    Zeichenroutine zeichne;
    int teile;
    std::string stufen;
};

std::vector<Skala> skalen() {
    using M = Monatswerte;
    const std::string klein = "5:1 10:2 25:5 50:10 75:15 100:20 250:50 500:100 ";
    const std::string gross = "10:2 25:5 50:10 75:15 100:20 250:50 500:100 750:150 1000:200 2500:500 ";
    const std::string bedarf = klein + "750:150 1000:200 2500:500 1e6:2500";
    const std::string stunden = "4:1 8:2 12:3 16:4 20:5 24:6";
    const std::string kelvin = "5:1 10:2 25:5 50:10 100:20 250:50 500:100 1000:200 2500:500 ";
    return {
        {im_jahr(&Projekt::qverl_s), JahrBilanzZeichnen, 5,
         gross + "5000:1000 7500:1500 10000:2000 1e6:10000"},
        {im_monat(&M::Qt), HeizbilanzZeichnen, 5, klein + "1e6:1000"},
        {im_monat(&M::Qh), MonatsbilanzZeichnen, 5, klein + "1e6:500"},
        {im_monat(&M::Kuehlbedarf), MonatsbilanzZeichnen, 5, klein + "1e6:500"},
        {im_jahr(&Projekt::qhs_sum), JahresbedarfZeichnen, 5, bedarf},
        {im_monat(&M::Kuehlbedarf), JahresbedarfZeichnen, 5, bedarf},
        {im_monat(&M::Qs_brutto), NutzungsgradMonatZeichnen, 5, klein + "1e6:1000"},
        {im_monat(&M::Qi_brutto), NutzungsgradMonatZeichnen, 5, klein + "1e6:1000"},
        {im_monat(&M::Qi_brutto), NutzungsgradJahrZeichnen, 5, bedarf},
        {stunden_in(31), StundenProTagMonatZeichnen, 4, stunden},
        {stunden_in(365), StundenProTagJahrZeichnen, 4, stunden},
        {im_monat(&M::Kuehlbedarf), KuehlBedarfMonatZeichnen, 5, klein + "1e6:500"},
        {im_monat(&M::Kuehlbedarf), KuehlBedarfJahrZeichnen, 5, bedarf},
        {im_monat(&M::Kuehlgradstunden), KuehlGradStundenMonatZeichnen, 5, kelvin + "5000:1000 1e6:2000"},
        {im_monat(&M::Kuehlgradstunden), KuehlGradStundenJahrZeichnen, 5, kelvin + "1e6:5000"},
        {energie_setzen, energie_zeichnen, 3,
         "30:10 60:20 150:50 300:100 600:200 1500:500 3000:1000 6000:2000 15000:5000 30000:10000 1e6:50000"},
    };
}

/// The step that the drawn axis shows.
double gezeigter_schritt(const Skala& skala, int m, double M) {
    const auto p = leeres_projekt();
    p->f_nutz = 1;
    skala.setze(*p, m, M);
    RekorderFlaeche bild;
    skala.zeichne(*p, bild);
    double oben = 0;
    for (const std::string& text : bild.texte())
        if (text.front() == ' ') oben = std::max(oben, zahl_lesen(text));
    return oben / skala.teile;
}

TEST(Skala, DerSchrittWechseltGenauAnDerGrenze) {
    for (const Skala& skala : skalen()) {
        std::istringstream stufen(skala.stufen);
        char punkt = 0;
        int m = 1;
        for (double von = 0, bis = 0, schritt = 0; stufen >> bis >> punkt >> schritt; m = 13 - m, von = bis) {
            for (const double M : {von, double{std::nextafter(static_cast<float>(bis), 0.0F)}})
                EXPECT_EQ(gezeigter_schritt(skala, m, M), schritt) << skala.stufen << ": " << M;
        }
    }
}

TEST(Rahmen, AchsenStricheUndZahlen) {
    using Art = Zeichnung::Art;
    struct Fall {
        Zeichenroutine zeichne;
        double achse, oben, rechts;
        std::vector<double> striche;
        int schritt;
    };
    for (const Fall& f :
         std::vector<Fall>{{HeizbilanzZeichnen, 117, 17, 325, {117, 97.2, 77.4, 57.6, 37.8, 18}, 1},
                           {UeberGrafikZeichnen, 117, 17, 325, {117, 92.25, 67.5, 42.75, 18}, 200},
                           {UeberJahrZeichnen, 117, 17, 85, {117, 92.25, 67.5, 42.75, 18}, 2200},
                           {StundenProTagMonatZeichnen, 110, 20, 325, {110, 87.75, 65.5, 43.25, 21}, 1},
                           {KuehlGradStundenJahrZeichnen, 110, 20, 85, {110, 92.2, 74.4, 56.6, 38.8, 21}, 1},
                           {energie_zeichnen, 95, 5, 325, {95, 95 - 89. / 3, 95 - 178. / 3, 6}, 10}}) {
        RekorderFlaeche bild;
        f.zeichne(*leeres_projekt(), bild);
        EXPECT_EQ(bild.zeichnungen.front().art, Art::cls);
        const std::vector<Zeichnung> linien = bild.alle(Art::linie, farben::schwarz);
        ASSERT_EQ(linien.size(), f.striche.size() + 2);
        EXPECT_EQ(linien[0].zahlen, (test::Ecken{30, f.achse, 30, f.oben}));
        EXPECT_EQ(linien[1].zahlen, (test::Ecken{30, f.achse, f.rechts, f.achse}));
        for (std::size_t i = 0; i < f.striche.size(); ++i) {
            const double y = linien[i + 2].zahlen[1];
            EXPECT_EQ(linien[i + 2].zahlen, (test::Ecken{27, y, 30, y}));
            EXPECT_NEAR(y, f.striche[i], 1e-9);
            const std::string zahl = " " + std::to_string(static_cast<int>(i) * f.schritt);
            EXPECT_TRUE(test::steht(bild, zahl, 25 - 6.0 * static_cast<double>(zahl.size()), y - 5)) << zahl;
        }
    }
}

TEST(Beschriftung, EinheitUndNameAnJedemBild) {
    struct Fall {
        Zeichenroutine zeichne;
        const char* sprache;
        const char* einheit;
        double x;
        const char* name;  ///< under the axis, of a chart by months that of May
        double x_name, y_name = 124;
    };
    for (const Fall& f : {Fall{HeizbilanzZeichnen, "d", "kWh/(m² Monat)", 3, "Mai", 134},
                          Fall{MonatsbilanzZeichnen, "e", "kWh/(m² month)", 3, "May", 134},
                          Fall{UeberGrafikZeichnen, "e", "h/month", 10, "May", 134, 123},
                          Fall{StundenProTagMonatZeichnen, "d", "Std. / Tag", 3, "Mai", 134},
                          Fall{KuehlGradStundenMonatZeichnen, "d", "Kh", 3, "Mai", 134},
                          Fall{JahrBilanzZeichnen, "e", "kWh/(m²a)", 5, "yearly balance", -1},
                          Fall{JahresbedarfZeichnen, "d", "kWh/(m²a)", 5, "Jahresbilanz", 11},
                          Fall{UeberJahrZeichnen, "d", "Std.", 10, "Jahressumme", 22, 123},
                          Fall{StundenProTagJahrZeichnen, "e", "h / d", 5, "yearly mean", 17},
                          Fall{KuehlBedarfJahrZeichnen, "d", "kWh/(m²a)", 5, "Jahresbilanz", 11},
                          Fall{KuehlGradStundenJahrZeichnen, "e", "Kh", 5, "yearly sum", 23}}) {
        RekorderFlaeche bild;
        f.zeichne(*leeres_projekt(f.sprache), bild);
        EXPECT_TRUE(test::steht(bild, f.einheit, f.x, 0)) << f.einheit;
        EXPECT_TRUE(test::steht(bild, f.name, f.x_name, f.y_name)) << f.name;
    }
}

}  // namespace
}  // namespace velmaris
