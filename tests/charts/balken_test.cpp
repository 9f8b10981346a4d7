#include "charts/balkenfarben.h"
#include "charts/bilanzdiagramme.h"
#include "charts/energiediagramm.h"
#include "charts/kuehldiagramme.h"
#include "charts/nutzungsgrad.h"
#include "tests/charts/probe.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::flaechen;
using test::leeres_projekt;
using ::testing::DoubleNear;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pointwise;

using Zeichenroutine = void (*)(const Projekt&, Zeichenflaeche&);

auto box(double x1, double y1, double x2, double y2) {
    return Pointwise(DoubleNear(1e-4), {x1, y1, x2, y2});
}

/// 100 m2 of usable floor and twelve months of 30 days whose values are all unlike.
std::unique_ptr<Projekt> volles_projekt() {
    auto p = leeres_projekt();
    for (std::int16_t m = 1; m <= monate; ++m) {
        Monatswerte& w = p->Monat(m);
        const float f = m;
        w.Qt = 300 + 7 * f, w.Qv = 200 + 5 * f, w.Qh = 400 - 20 * f, w.Kuehlbedarf = 20 + 15 * f;
        w.Qi_genutzt = 100 + 3 * f, w.Qi_brutto = 150 + 4 * f, w.Kuehlgradstunden = 10 + 3 * f;
        w.Qs_genutzt = 50 + 2 * f, w.Qs_brutto = 130 + 10 * f, w.Tage = 30;
        w.Stunden_kalt = static_cast<std::int16_t>(300 - m);
        w.Stunden_komfort = static_cast<std::int16_t>(200 + 2 * m);
        w.Stunden_heiss = static_cast<std::int16_t>(100 + 3 * m);
    }
    p->q_HE_Energietraeger = 300, p->q_HE_Strom = 30, p->q_PE_Energietraeger = 150, p->q_PE_Strom = 60;
    p->qtrs = 40, p->qinfs = 20, p->qverl_s = 60, p->qhs_sum = 30, p->qis = 10, p->qsols = 18;
    return p;
}

void energie_zeichnen(const Projekt& p, Zeichenflaeche& bild) {
    Monatsverbrauch_zeichnen(bild, p);
}

/// One piece of the bar of every month: its colour, its place in the column, its ends `a` + `b` m, the foot
/// of the bars and the height of 1 kWh, 1 h or 1 Kh.
struct Schicht {
    Zeichenroutine zeichne;
    Farbe farbe;
    double x, breite;
    double a_unten, b_unten, a_oben, b_oben;
    double fuss, pixel;
};

/// The scales take the largest value: 644 of losses in December the step 2, so that 99 pixels are 1000 kWh;
/// 380 of demand in January and 250 of sun in December the step 1; 800 hours whatever the values; 136 hours
/// in 30 days the step 2, so that 89 pixels are 8 hours a day; 46 degree hours the step 10. A tenth of the
/// demand in kWh is end energy, in January 41.8 with electricity: the step 20 makes 90 pixels of 60 kWh.
TEST(Monatsbilder, JederMonatHatSeineBalken) {
    const auto p = volles_projekt();
    for (const Schicht& s : std::vector<Schicht>{
             {HeizbilanzZeichnen, {0, 0, 136}, 0, 8, 0, 0, 300, 7, 116, 0.099},
             {HeizbilanzZeichnen, {102, 102, 255}, 0, 8, 300, 7, 500, 12, 116, 0.099},
             {HeizbilanzZeichnen, farben::rot, 10, 8, 0, 0, 400, -20, 116, 0.099},
             {HeizbilanzZeichnen, {255, 128, 0}, 10, 8, 400, -20, 500, -17, 116, 0.099},
             {HeizbilanzZeichnen, farben::gelb, 10, 8, 500, -17, 550, -15, 116, 0.099},
             {MonatsbilanzZeichnen, farben::rot, 0, 8, 0, 0, 400, -20, 116, 0.198},
             {MonatsbilanzZeichnen, farben::blau, 10, 8, 0, 0, 20, 15, 116, 0.198},
             {NutzungsgradMonatZeichnen, farben::gelb, 0, 8, 0, 0, 50, 2, 116, 0.198},
             {NutzungsgradMonatZeichnen, {192, 192, 0}, 0, 8, 50, 2, 130, 10, 116, 0.198},
             {NutzungsgradMonatZeichnen, {255, 128, 0}, 10, 8, 0, 0, 100, 3, 116, 0.198},
             {NutzungsgradMonatZeichnen, {200, 99, 0}, 10, 8, 100, 3, 150, 4, 116, 0.198},
             {UeberGrafikZeichnen, farben::blau, 0, 18, 0, 0, 600, 4, 116, 0.12375},
             {UeberGrafikZeichnen, farben::gelb, 0, 18, 0, 0, 500, 1, 116, 0.12375},
             {UeberGrafikZeichnen, farben::rot, 0, 18, 0, 0, 300, -1, 116, 0.12375},
             {StundenProTagMonatZeichnen, {128, 0, 0}, 0, 18, 0, 0, 100, 3, 109, 11.125 / 30},
             {KuehlBedarfMonatZeichnen, farben::blau, 0, 18, 0, 0, 20, 15, 109, 0.178},
             {KuehlGradStundenMonatZeichnen, {64, 64, 0}, 0, 18, 0, 0, 10, 3, 109, 1.78},
             {energie_zeichnen, farben::rot, 0, 8, 0, 0, 40, -2, 95, 1.5},
             {energie_zeichnen, {255, 128, 0}, 0, 8, 40, -2, 44, -2.2, 95, 1.5},
             {energie_zeichnen, {128, 0, 0}, 10, 8, 0, 0, 20, -1, 95, 1.5},
             {energie_zeichnen, {192, 64, 0}, 10, 8, 20, -1, 28, -1.4, 95, 1.5}}) {
        RekorderFlaeche bild;
        s.zeichne(*p, bild);
        const auto balken = flaechen(bild, s.farbe);
        ASSERT_EQ(balken.size(), 12U);
        for (int m = 1; m <= monate; ++m) {
            const double x = 35 + 24 * (m - 1) + s.x;
            EXPECT_THAT(balken[static_cast<std::size_t>(m - 1)],
                        box(x, s.fuss - s.pixel * (s.a_unten + s.b_unten * m), x + s.breite,
                            s.fuss - s.pixel * (s.a_oben + s.b_oben * m)))
                << m;
        }
    }
}

TEST(Jahresbilder, ZeigenDieSummenDerMonate) {
    struct Fall {
        Zeichenroutine zeichne;
        Farbe farbe;
        double x1, unten, x2, oben;
    };
    // Sums: cooling 1410 kWh and 354 Kh, sun 756 of 2340, house 1434 of 2112, hours 3522, 2556 and 1434.
    for (const Fall& f : std::vector<Fall>{
             {JahrBilanzZeichnen, {0, 0, 136}, 35, 116, 55, 63.2},  // step 15, 1.32 pixels
             {JahrBilanzZeichnen, {102, 102, 255}, 35, 63.2, 55, 36.8},
             {JahrBilanzZeichnen, farben::rot, 60, 116, 80, 76.4},
             {JahrBilanzZeichnen, {255, 128, 0}, 60, 76.4, 80, 63.2},
             {JahrBilanzZeichnen, farben::gelb, 60, 63.2, 80, 39.44},
             {JahresbedarfZeichnen, farben::rot, 35, 116, 55, 56.6},  // step 10, 1.98 pixels
             {JahresbedarfZeichnen, farben::blau, 60, 116, 80, 88.082},
             {NutzungsgradJahrZeichnen, farben::gelb, 35, 116, 55, 86.0624},  // step 5, 3.96 pixels
             {NutzungsgradJahrZeichnen, {192, 192, 0}, 35, 86.0624, 55, 23.336},
             {NutzungsgradJahrZeichnen, {255, 128, 0}, 60, 116, 80, 59.2136},
             {NutzungsgradJahrZeichnen, {200, 99, 0}, 60, 59.2136, 80, 32.3648},
             {UeberJahrZeichnen, farben::blau, 45, 116, 70, 31.49},  // 8800 hours on 99 pixels
             {UeberJahrZeichnen, farben::gelb, 45, 116, 70, 47.6225},
             {UeberJahrZeichnen, farben::rot, 45, 116, 70, 76.3775},
             {StundenProTagJahrZeichnen, {128, 0, 0}, 45, 109, 70, 109 - 22.25 * 1434 / 365},
             {KuehlBedarfJahrZeichnen, farben::blau, 45, 109, 70, 58.804},         // step 5, 3.56 pixels
             {KuehlGradStundenJahrZeichnen, {64, 64, 0}, 45, 109, 70, 45.988}}) {  // step 100, 0.178 pixels
        RekorderFlaeche bild;
        f.zeichne(*volles_projekt(), bild);
        EXPECT_THAT(flaechen(bild, f.farbe), ElementsAre(box(f.x1, f.unten, f.x2, f.oben)));
    }
}

TEST(Balken, WoNichtsIstBleibtDieFlaecheLeer) {
    const auto p = leeres_projekt();
    p->Monat(8).Kuehlbedarf = -5;
    for (const Zeichenroutine zeichne :
         {MonatsbilanzZeichnen, UeberGrafikZeichnen, UeberJahrZeichnen, StundenProTagMonatZeichnen,
          StundenProTagJahrZeichnen, KuehlBedarfMonatZeichnen, KuehlBedarfJahrZeichnen,
          KuehlGradStundenMonatZeichnen, KuehlGradStundenJahrZeichnen}) {
        RekorderFlaeche bild;
        zeichne(*p, bild);
        EXPECT_THAT(bild.alle(Zeichnung::Art::flaeche), IsEmpty());
    }
}

}  // namespace
}  // namespace velmaris
