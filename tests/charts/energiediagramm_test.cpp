#include "charts/energiediagramm.h"

#include "tests/charts/probe.h"
#include "tests/rekorder_flaeche.h"
#include "tests/textlage.h"
#include "toolkit/svg_flaeche.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

using Art = Zeichnung::Art;

/// Months that are all unlike. The largest column, 27 in December, takes the step 10: 10 kWh are 30 pixels.
Monatsenergie zwoelf_monate() {
    Monatsenergie w;
    for (int m = 1; m <= monate; ++m) {
        w.E(m) = static_cast<float>(m);
        w.H(m) = static_cast<float>(m) / 2;
        w.P(m) = static_cast<float>(m) * 2;
        w.Q(m) = static_cast<float>(m) / 4;
    }
    return w;
}

TEST(Saeulen, JederMonatHatSeineVierTeile) {
    const std::vector<Saeule> teile = saeulen(zwoelf_monate());
    ASSERT_EQ(teile.size(), 48U);
    for (std::size_t i = 0; i < teile.size(); ++i) {
        const double m = static_cast<double>(i / 4) + 1;
        const double x = 11 + 24 * m;
        const Saeule erwartet[]{{x, 95, x + 8, 95 - 3 * m, {255, 0, 0}},
                                {x, 95 - 3 * m, x + 8, 95 - 4.5 * m, {255, 128, 0}},
                                {x + 10, 95, x + 18, 95 - 6 * m, {128, 0, 0}},
                                {x + 10, 95 - 6 * m, x + 18, 95 - 6.75 * m, {192, 64, 0}}};
        const Saeule& e = erwartet[i % 4];
        EXPECT_EQ(teile[i].x1, e.x1);
        EXPECT_NEAR(teile[i].unten, e.unten, 1e-9);
        EXPECT_EQ(teile[i].x2, e.x2);
        EXPECT_NEAR(teile[i].oben, e.oben, 1e-9);
        EXPECT_EQ(teile[i].farbe, e.farbe);
    }
    EXPECT_TRUE(saeulen({}).empty());
}

TEST(Saeulen, TrefferNurAufDemGefuelltenPixel) {
    struct Fall {
        double x, y;
        bool treffer;
    };
    // February: end energy up to 86, primary energy up to 81.5; December up to 41 and 14.
    for (const Fall& f :
         {Fall{59, 95, true}, Fall{58, 95, false}, Fall{67, 86, true}, Fall{67, 85, false},
          Fall{68, 95, false}, Fall{69, 82, true}, Fall{69, 81, false}, Fall{77, 95, true},
          Fall{77, 96, false}, Fall{78, 95, false}, Fall{317, 14, true}, Fall{317, 13, false}})
        EXPECT_EQ(auf_saeule(zwoelf_monate(), f.x, f.y), f.treffer) << f.x << "," << f.y;
}

/// 100 m2 whose only heat, in January, needs this primary energy, kWh/(m2 month).
std::unique_ptr<Projekt> projekt(float primaer) {
    auto p = test::leeres_projekt();
    p->qhs_sum = 10;
    p->Monat(1).Qh = 1000;
    p->q_PE_Energietraeger = primaer;
    return p;
}

TEST(Monatsverbrauch, ZeichnetSeineSaeulenUeberMonateUndSkala) {
    const RekorderFlaeche bild(330, 115,
                               [](Zeichenflaeche& b) { Monatsverbrauch_zeichnen(b, *projekt(20)); });
    EXPECT_TRUE(test::steht(bild, "Jan.", 35, 98));
    EXPECT_TRUE(test::steht(bild, "Mai", 134, 98));
    EXPECT_TRUE(test::steht(bild, "Dez.", 299, 98));
    const auto flaechen = bild.alle(Art::flaeche);
    ASSERT_EQ(flaechen.size(), 2U);
    EXPECT_EQ(flaechen[0].zahlen, (test::Ecken{0, 0, 25, 100})) << "the strip of the scale";
    EXPECT_EQ(flaechen[0].farbe, bild.hintergrund());
    EXPECT_EQ(flaechen[1].zahlen, (test::Ecken{45, 95, 53, 35}));
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

}  // namespace
}  // namespace velmaris
