#include "charts/geometriebilder.h"

#include "charts/gewichtbild.h"
#include "tests/charts/probe.h"
#include "tests/rekorder_flaeche.h"

#include <cmath>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::Ecken;
using test::leeres_projekt;
using Art = Zeichnung::Art;

TEST(Geometriebilder, AvDiagrammStelltGleicheFormenGleichHoch) {
    const auto p = leeres_projekt();
    p->v_geb = 1000;
    p->AV = 0.6F;
    RekorderFlaeche flaeche(60, 130);
    av_diagramm_zeichnen(*p, flaeche);
    // A cube: 6 / 0.06 less 2.88 / 0.06 is 52 pixels up from 123.
    EXPECT_EQ(test::flaechen(flaeche, farben::rot), (std::vector<Ecken>{{44, 123, 50, 71}}));
    EXPECT_EQ(test::flaechen(flaeche, farben::weiss), (std::vector<Ecken>{{44, 7, 50, 70}}));
    EXPECT_EQ(av_texte(*p).av_oben, 63);
    EXPECT_EQ(av_texte(*p).AV_Wuerfel, "0.60");
    EXPECT_EQ(av_texte(*p).AV_Kugel, "0.48");
    EXPECT_EQ(av_texte(*p).AV_Tetraeder, "0.72");
    EXPECT_EQ(av_texte(*p).av_anz, "0.60 ");
    p->AV = 5;
    RekorderFlaeche hoch(60, 130);
    av_diagramm_zeichnen(*p, hoch);
    EXPECT_EQ(test::flaechen(hoch, farben::rot).at(0)[3], 7);
    EXPECT_TRUE(test::flaechen(hoch, farben::weiss).empty());
    EXPECT_EQ(av_texte(*p).av_oben, 5);
    p->AV = p->v_geb = 0;
    EXPECT_EQ(av_texte(*p).av_oben, 110);
    EXPECT_EQ(av_texte(*p).AV_Kugel, "");
}

/// Roof of 40 pixels side with a ridge of 2/3 of it from west to east, and an arrow of 28 pixels to the
/// south; about the centre of the surface, turned clockwise by the orientation.
TEST(Geometriebilder, DerLageplanDrehtSichMitDerOrientierung) {
    const double s = 28 * std::sqrt(0.5);
    const double c = 14 * std::sqrt(0.5);
    const std::vector<Ecken> linien{{-s, -s, s, -s},
                                    {s, -s, s, s},
                                    {s, s, -s, s},
                                    {-s, s, -s, -s},
                                    {s * 2 / 3, 0, -s * 2 / 3, 0},
                                    {-s * 2 / 3, 0, -s, -s},
                                    {-s * 2 / 3, 0, -s, s},
                                    {s * 2 / 3, 0, s, -s},
                                    {s * 2 / 3, 0, s, s},
                                    {0, 14, 0, -14},
                                    {0, 14, -c, 14 - c},
                                    {0, 14, c, 14 - c}};
    for (const int grad : {0, 30, -110}) {
        const auto p = leeres_projekt();
        p->orient = static_cast<std::int16_t>(grad);
        RekorderFlaeche bild(80, 60);
        lageplan_zeichnen(*p, bild);
        EXPECT_EQ(bild.zeichnungen.front().art, Art::cls);
        const auto gezeichnet = bild.alle(Art::linie);
        ASSERT_EQ(gezeichnet.size(), linien.size());
        const double cosinus = std::cos(grad * std::acos(-1) / 180);
        const double sinus = std::sin(grad * std::acos(-1) / 180);
        for (std::size_t i = 0; i < linien.size(); ++i) {
            EXPECT_EQ(gezeichnet[i].farbe, i < 9 ? farben::grau : farben::rot);
            for (const std::size_t k : {0U, 2U}) {
                const double x = linien[i][k];
                const double y = linien[i][k + 1];
                EXPECT_NEAR(gezeichnet[i].zahlen[k], 40 + x * cosinus - y * sinus, 0.05) << i << " " << grad;
                EXPECT_NEAR(gezeichnet[i].zahlen[k + 1], 30 + x * sinus + y * cosinus, 0.05) << i;
            }
        }
    }
}

TEST(Gewichtbild, WaechstMitDerWurzelUeberDieFlaecheHinaus) {
    const auto p = leeres_projekt();
    p->v_geb = 100;
    p->Cwirk = 81 * 3600 * 100;
    const Gewichte g = gewichte(*p);
    EXPECT_DOUBLE_EQ(g.Gewicht1.hoehe, 900);
    EXPECT_DOUBLE_EQ(g.Gewicht1.oben, 600);
    EXPECT_DOUBLE_EQ(g.Gewicht2.hoehe, 400);
    EXPECT_DOUBLE_EQ(g.Gewicht2.oben, 210);
    p->Cwirk = 144 * 3600 * 100;  // 80 and 35.6 pixels high on a base line at 57
    const RekorderFlaeche bild(76, 60, [&](Zeichenflaeche& flaeche) { gewicht_zeichnen(*p, flaeche); });
    EXPECT_EQ(bild.zeichnungen.front().art, Art::cls);
    EXPECT_EQ(test::formen(bild),
              "24 -57.8889 52 -22.3333|24 -57.8889 52 -22.3333|"
              "8 -23 68 57|8 -23 68 57|0 57 76 57");
    EXPECT_EQ(test::flaechen(bild, {112, 118, 126}).size(), 2U);
}

}  // namespace
}  // namespace velmaris
