#include "charts/balkenfarben.h"
#include "charts/bilanzdiagramme.h"
#include "charts/kuehldiagramme.h"
#include "charts/nutzungsgrad.h"
#include "charts/schema.h"
#include "tests/charts/probe.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::flaechen;
using test::leeres_projekt;
using ::testing::DoubleNear;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

auto box(double x1, double y1, double x2, double y2) {
    const double toleranz = 1e-5;
    return ElementsAre(DoubleNear(x1, toleranz), DoubleNear(y1, toleranz), DoubleNear(x2, toleranz),
                       DoubleNear(y2, toleranz));
}

TEST(Heizbilanz, StapeltVerlusteUndVersorgungJeMonat) {
    const auto p = leeres_projekt();
    Monatswerte& februar = p->Monat(2);
    februar.Qt = 300;
    februar.Qv = 200;
    februar.Qh = 100;
    februar.Qi_genutzt = 150;
    februar.Qs_genutzt = 250;
    RekorderFlaeche bild;
    HeizbilanzZeichnen(*p, bild);
    // 5 kWh/m2 take the step 2, so that one kWh/m2 is 9.9 pixels high.
    EXPECT_THAT(flaechen(bild, {0, 0, 136})[1], box(59, 116, 67, 86.3));
    EXPECT_THAT(flaechen(bild, {102, 102, 255})[1], box(59, 86.3, 67, 66.5));
    EXPECT_THAT(flaechen(bild, {255, 0, 0})[1], box(69, 116, 77, 106.1));
    EXPECT_THAT(flaechen(bild, {255, 128, 0})[1], box(69, 106.1, 77, 91.25));
    EXPECT_THAT(flaechen(bild, {255, 255, 0})[1], box(69, 91.25, 77, 66.5));
    EXPECT_EQ(bild.alle(Zeichnung::Art::flaeche).size(), 12 * 5U);
    EXPECT_THAT(flaechen(bild, {255, 0, 0})[11], box(309, 116, 317, 116));
}

TEST(JahrBilanz, StapeltDieSpezifischenWerte) {
    const auto p = leeres_projekt();
    p->qtrs = 40;
    p->qinfs = 20;
    p->qverl_s = 60;
    p->qhs_sum = 30;
    p->qis = 10;
    p->qsols = 20;
    RekorderFlaeche bild;
    JahrBilanzZeichnen(*p, bild);
    // Step 15, 1.32 pixels each.
    EXPECT_THAT(flaechen(bild, balkenfarben::transmission), ElementsAre(box(35, 116, 55, 63.2)));
    EXPECT_THAT(flaechen(bild, balkenfarben::lueftung), ElementsAre(box(35, 63.2, 55, 36.8)));
    EXPECT_THAT(flaechen(bild, balkenfarben::heizen), ElementsAre(box(60, 116, 80, 76.4)));
    EXPECT_THAT(flaechen(bild, balkenfarben::intern), ElementsAre(box(60, 76.4, 80, 63.2)));
    EXPECT_THAT(flaechen(bild, balkenfarben::solar), ElementsAre(box(60, 63.2, 80, 36.8)));
}

TEST(Monatsbilanz, ZeichnetNurWasUeberNullIst) {
    const auto p = leeres_projekt();
    p->Monat(1).Qh = 400;
    p->Monat(7).Kuehlbedarf = 250;
    p->Monat(8).Kuehlbedarf = -5;
    RekorderFlaeche bild;
    MonatsbilanzZeichnen(*p, bild);
    EXPECT_THAT(flaechen(bild, balkenfarben::heizen), ElementsAre(box(35, 116, 43, 36.8)));
    EXPECT_THAT(flaechen(bild, balkenfarben::kuehlen), ElementsAre(box(189, 116, 197, 66.5)));
}

TEST(Jahresbedarf, ZaehltDieMonateZusammenUndZeigtAuchNichts) {
    const auto p = leeres_projekt();
    p->Monat(6).Kuehlbedarf = 300;
    p->Monat(7).Kuehlbedarf = 500;
    RekorderFlaeche bild;
    JahresbedarfZeichnen(*p, bild);
    // 8 kWh/m2 at the step 2.
    EXPECT_THAT(flaechen(bild, balkenfarben::kuehlen), ElementsAre(box(60, 116, 80, 36.8)));
    EXPECT_THAT(flaechen(bild, balkenfarben::heizen), ElementsAre(box(35, 116, 55, 116)));
}

TEST(UeberGrafik, UebermaltVonObenNachUnten) {
    const auto p = leeres_projekt();
    p->Monat(1).Stunden_kalt = 400;
    p->Monat(1).Stunden_komfort = 200;
    p->Monat(1).Stunden_heiss = 144;
    p->Monat(7).Stunden_komfort = 744;
    RekorderFlaeche bild;
    UeberGrafikZeichnen(*p, bild);
    // 200 hours are 24.75 pixels high.
    const std::vector<Zeichnung> balken = bild.alle(Zeichnung::Art::flaeche);
    ASSERT_EQ(balken.size(), 4U);
    EXPECT_THAT(balken[0].zahlen, box(35, 116, 53, 23.93));
    EXPECT_EQ(balken[0].farbe, balkenfarben::kuehlen);
    EXPECT_THAT(balken[1].zahlen, box(35, 116, 53, 41.75));
    EXPECT_EQ(balken[1].farbe, balkenfarben::komfort);
    EXPECT_THAT(balken[2].zahlen, box(35, 116, 53, 66.5));
    EXPECT_EQ(balken[2].farbe, balkenfarben::heizen);
    EXPECT_THAT(balken[3].zahlen, box(179, 116, 197, 23.93));
    EXPECT_EQ(balken[3].farbe, balkenfarben::komfort);
    EXPECT_EQ(bild.lies_punkt(44, 100), balkenfarben::heizen);
    EXPECT_EQ(bild.lies_punkt(44, 50), balkenfarben::komfort);
    EXPECT_EQ(bild.lies_punkt(44, 30), balkenfarben::kuehlen);
}

TEST(UeberJahr, DieJahressummenPassenImmer) {
    const auto p = leeres_projekt();
    for (int m = 1; m <= monate; ++m) {
        p->Monat(m).Stunden_kalt = 400;
        p->Monat(m).Stunden_heiss = 330;
    }
    RekorderFlaeche bild;
    UeberJahrZeichnen(*p, bild);
    EXPECT_THAT(flaechen(bild, balkenfarben::kuehlen), ElementsAre(box(45, 116, 70, 17.45)));
    EXPECT_THAT(flaechen(bild, balkenfarben::komfort), IsEmpty());
    EXPECT_THAT(flaechen(bild, balkenfarben::heizen), ElementsAre(box(45, 116, 70, 62)));
}

TEST(Fassadenbalken, TeilenEinenMassstab) {
    const auto p = leeres_projekt();
    const Fassadenbalken gewinn_s{&Projekt::Fenstergewinn_S, balkenfarben::solar};
    const Fassadenbalken verlust_n{&Projekt::Fensterverlust_N, balkenfarben::transmission};
    RekorderFlaeche leer(fassadenflaeche_breite, fassadenflaeche_hoehe);
    FassadenbalkenZeichnen(*p, gewinn_s, leer);
    EXPECT_THAT(flaechen(leer, balkenfarben::solar), ElementsAre(box(1, 49, 8, 50)));

    p->Fenstergewinn_S = 400;
    p->Fensterverlust_N = 100;
    RekorderFlaeche sued(fassadenflaeche_breite, fassadenflaeche_hoehe);
    FassadenbalkenZeichnen(*p, gewinn_s, sued);
    EXPECT_THAT(flaechen(sued, balkenfarben::solar), ElementsAre(box(1, 49, 8, 0)));
    EXPECT_THAT(sued.alle(Zeichnung::Art::kasten, farben::schwarz).at(0).zahlen, box(1, 49, 8, 0));
    RekorderFlaeche nord(fassadenflaeche_breite, fassadenflaeche_hoehe);
    FassadenbalkenZeichnen(*p, verlust_n, nord);
    EXPECT_THAT(flaechen(nord, balkenfarben::transmission), ElementsAre(box(1, 49, 8, 37.5)));
}

TEST(Nutzungsgrad, DerNutzbareTeilStehtImGanzen) {
    const auto p = leeres_projekt();
    p->Monat(3).Qs_genutzt = 200;
    p->Monat(3).Qs_brutto = 400;
    p->Monat(3).Qi_genutzt = 100;
    p->Monat(3).Qi_brutto = 300;
    p->Monat(9).Qs_brutto = 200;
    RekorderFlaeche monat;
    NutzungsgradMonatZeichnen(*p, monat);
    EXPECT_THAT(flaechen(monat, {255, 255, 0})[2], box(83, 116, 91, 76.4));
    EXPECT_THAT(flaechen(monat, {192, 192, 0})[2], box(83, 76.4, 91, 36.8));
    EXPECT_THAT(flaechen(monat, {255, 128, 0})[2], box(93, 116, 101, 96.2));
    EXPECT_THAT(flaechen(monat, {200, 99, 0})[2], box(93, 96.2, 101, 56.6));
    RekorderFlaeche jahr;
    NutzungsgradJahrZeichnen(*p, jahr);
    // 6 kWh/m2 at the step 2.
    EXPECT_THAT(flaechen(jahr, {255, 255, 0}), ElementsAre(box(35, 116, 55, 96.2)));
    EXPECT_THAT(flaechen(jahr, {192, 192, 0}), ElementsAre(box(35, 96.2, 55, 56.6)));
    EXPECT_THAT(flaechen(jahr, {255, 128, 0}), ElementsAre(box(60, 116, 80, 106.1)));
    EXPECT_THAT(flaechen(jahr, {200, 99, 0}), ElementsAre(box(60, 106.1, 80, 86.3)));
}

TEST(Kuehldiagramme, EinBalkenNurUeberNull) {
    const auto p = leeres_projekt();
    p->Monat(7).Stunden_heiss = 93;
    p->Monat(8).Stunden_heiss = 637;
    p->Monat(7).Kuehlbedarf = 400;
    p->Monat(7).Kuehlgradstunden = 30;
    struct Fall {
        void (*zeichne)(const Projekt&, Zeichenflaeche&);
        Farbe farbe;
        double x1, x2, y;
    };
    for (const Fall& f : {
             Fall{StundenProTagMonatZeichnen, {128, 0, 0}, 179, 197, 97.875},  // 3 h/d, step 6
             Fall{StundenProTagJahrZeichnen, {128, 0, 0}, 45, 70, 64.5},       // 2 h/d, step 1, 22.25 px
             Fall{KuehlBedarfMonatZeichnen, {0, 0, 255}, 179, 197, 37.8},      // 4, step 1, 17.8 px
             Fall{KuehlBedarfJahrZeichnen, {0, 0, 255}, 45, 70, 37.8},
             Fall{KuehlGradStundenMonatZeichnen, {64, 64, 0}, 179, 197, 55.6},  // 30, step 10, 1.78 px
             Fall{KuehlGradStundenJahrZeichnen, {64, 64, 0}, 45, 70, 55.6},
         }) {
        RekorderFlaeche bild;
        f.zeichne(*p, bild);
        const auto balken = flaechen(bild, f.farbe);
        ASSERT_FALSE(balken.empty());
        EXPECT_THAT(balken.front(), box(f.x1, 109, f.x2, f.y));
        RekorderFlaeche leer;
        f.zeichne(*leeres_projekt(), leer);
        EXPECT_THAT(leer.alle(Zeichnung::Art::flaeche), IsEmpty());
        EXPECT_TRUE(test::steht(leer, " 1", 13, f.farbe.r == 128 ? 82.75 : 87.2));
    }
}

TEST(Balken, KeineZahlUndNegativesWerdenNichtGefiltert) {
    const auto p = leeres_projekt();
    p->qhs_sum = NAN;
    p->Monat(1).Kuehlbedarf = -200;
    RekorderFlaeche bild;
    JahresbedarfZeichnen(*p, bild);
    EXPECT_TRUE(std::isnan(flaechen(bild, balkenfarben::heizen).at(0)[3]));
    EXPECT_GT(flaechen(bild, balkenfarben::kuehlen).at(0)[3], 116);
}

}  // namespace
}  // namespace velmaris
