#include "calc/jahressummen.h"

#include <gtest/gtest.h>
#include <memory>

namespace velmaris {
namespace {

/// A floor of 50 m2 and values that rise with the month; the numbers of the months add up to 78.
TEST(Jahressummen, MonatUndJahrVonHand) {
    const auto p = std::make_unique<Projekt>();
    p->f_nutz = 50;
    p->Klimaeffizienz = 2.5F;
    for (int m = 1; m <= monate; ++m) {
        Monatswerte& w = p->Monat(m);
        const auto mal = [m](int wert) { return static_cast<std::int16_t>(m * wert); };
        w.Tage = 30;
        w.Stunden_kalt = mal(10), w.Stunden_komfort = mal(20), w.Stunden_heiss = mal(3);
        w.Qs_genutzt = mal(100), w.Qs_brutto = mal(200), w.Qi_genutzt = mal(300), w.Qi_brutto = mal(400);
        w.Kuehlbedarf = mal(500);
    }
    const Betriebsstunden dezember = betriebsstunden(*p, 12);
    const Betriebsstunden jahr = betriebsstunden_im_jahr(*p);
    EXPECT_TRUE(dezember.kalt == 120 && dezember.komfort == 240 && dezember.heiss == 36);
    EXPECT_TRUE(jahr.kalt == 780 && jahr.komfort == 1560 && jahr.heiss == 234);
    EXPECT_DOUBLE_EQ(tagesstunden(*p, 12), 1.2);
    EXPECT_DOUBLE_EQ(tagesstunden_im_jahr(*p), 234 / 365.0);
    for (const auto& [g, faktor] : {std::pair{gewinne(*p, 12), 12}, {gewinne_im_jahr(*p), 78}}) {
        EXPECT_DOUBLE_EQ(g.solar_genutzt, 2 * faktor);
        EXPECT_DOUBLE_EQ(g.solar, 4 * faktor);
        EXPECT_DOUBLE_EQ(g.intern_genutzt, 6 * faktor);
        EXPECT_DOUBLE_EQ(g.intern, 8 * faktor);
    }
    EXPECT_DOUBLE_EQ(summe_der_monate(*p, &Monatswerte::Kuehlbedarf), 39000);
    EXPECT_DOUBLE_EQ(monatskuehlbedarf(*p, 12), 120);
    EXPECT_DOUBLE_EQ(jahreskuehlbedarf(*p), 780);
    for (const auto& [k, faktor] : {std::pair{kuehlenergie(*p, 12), 12}, {kuehlenergie_im_jahr(*p), 78}}) {
        EXPECT_DOUBLE_EQ(k.Endenergie, 4 * faktor);
        EXPECT_DOUBLE_EQ(k.Primaerenergie, 12 * faktor);
    }
}

}  // namespace
}  // namespace velmaris
