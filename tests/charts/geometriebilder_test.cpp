#include "charts/geometriebilder.h"

#include "charts/gewichtbild.h"
#include "tests/testflaeche.h"

#include <gtest/gtest.h>
#include <memory>

namespace velmaris {
namespace {

using test::Testflaeche;
using Art = test::Zeichnung::Art;

TEST(Geometriebilder, AvDiagrammStelltGleicheFormenGleichHoch) {
    const auto p = std::make_unique<Projekt>();
    Projekt& wuerfel = *p;
    wuerfel.v_geb = 1000;
    wuerfel.AV = 0.6F;
    Testflaeche flaeche(60, 130);
    av_diagramm_zeichnen(wuerfel, flaeche);
    const auto rot = flaeche.alle(Art::flaeche, farben::rot);
    ASSERT_EQ(rot.size(), 1U);
    EXPECT_EQ(rot[0].zahlen, (std::vector<double>{44, 123, 50, 71}));
    EXPECT_EQ(av_texte(wuerfel).AV_Wuerfel, "0.60");
    EXPECT_EQ(av_texte(wuerfel).AV_Kugel, "0.48");
    EXPECT_EQ(av_texte(wuerfel).AV_Tetraeder, "0.72");
    EXPECT_EQ(av_texte(wuerfel).av_anz, "0.60 ");
    wuerfel.AV = 5;
    Testflaeche hoch(60, 130);
    av_diagramm_zeichnen(wuerfel, hoch);
    EXPECT_EQ(hoch.alle(Art::flaeche, farben::rot)[0].zahlen[3], 7);
    EXPECT_TRUE(hoch.alle(Art::flaeche, farben::weiss).empty());
    EXPECT_EQ(av_texte(wuerfel).av_oben, 5);
    wuerfel.AV = 0;
    EXPECT_EQ(av_texte(wuerfel).av_oben, 110);
}

TEST(Geometriebilder, SuedpfeilZeigtNachUntenUndDrehtMitDerOrientierung) {
    const auto p = std::make_unique<Projekt>();
    Testflaeche flaeche(80, 80);
    lageplan_zeichnen(*p, flaeche);
    auto pfeil = flaeche.alle(Art::linie, farben::rot);
    ASSERT_EQ(pfeil.size(), 3U);
    EXPECT_NEAR(pfeil[0].zahlen[0], 40, 1e-9);
    EXPECT_NEAR(pfeil[0].zahlen[1], 54, 1e-9);
    EXPECT_EQ(flaeche.alle(Art::linie, farben::grau).size(), 9U);
    p->orient = 90;
    Testflaeche gedreht(80, 80);
    lageplan_zeichnen(*p, gedreht);
    EXPECT_NEAR(gedreht.alle(Art::linie, farben::rot)[0].zahlen[0], 26, 0.02);
}

TEST(Gewichtbild, WaechstMitDerWurzelOhneGrenze) {
    const auto p = std::make_unique<Projekt>();
    p->v_geb = 100;
    p->Cwirk = 81 * 3600 * 100;
    Gewichte g = gewichte(*p);
    EXPECT_DOUBLE_EQ(g.Gewicht1.hoehe, 900);
    EXPECT_DOUBLE_EQ(g.Gewicht1.oben, 600);
    EXPECT_DOUBLE_EQ(g.Gewicht2.hoehe, 400);
    EXPECT_DOUBLE_EQ(g.Gewicht2.oben, 210);
    p->Cwirk = 144 * 3600 * 100;
    g = gewichte(*p);
    EXPECT_DOUBLE_EQ(g.Gewicht1.hoehe, 1200);
    EXPECT_DOUBLE_EQ(g.Gewicht2.oben, 1500 - 1200 - 4800. / 9 + 10);
}

}  // namespace
}  // namespace velmaris
