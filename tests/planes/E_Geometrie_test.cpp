#include "planes/E_Geometrie.h"

#include "tests/testprogramm.h"

#include <array>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <initializer_list>
#include <string>

namespace velmaris {
namespace {

TEST(EGeometrie, OrientierungWirktAufDieStrahlung) {
    const test::Testprogramm programm;
    E_Geometrie& e = programm.haupt->e_geometrie;
    const std::int16_t west = programm.p().Monat(6).Strahlung_W;
    int lageplan = 0;
    e.Picture1.ansicht = [&] { ++lageplan; };
    e.orient_sb.setze(-45);
    EXPECT_EQ(programm.p().orient, 45);
    EXPECT_NE(programm.p().Monat(6).Strahlung_W, west);
    programm.haupt->e_menue.klicke("Geometrie");
    EXPECT_EQ(lageplan, 2);
}

TEST(EGeometrie, BeheiztesDachgeschoss) {
    const test::Testprogramm programm;
    const Projekt& p = programm.p();
    const E_Daemmung& d = programm.haupt->e_daemmung;
    E_Geometrie& e = programm.haupt->e_geometrie;
    const auto pruefe = [&](bool beheizt, const std::string& bild) {
        for (const Feld* feld :
             std::initializer_list<const Feld*>{&e.hd_sb, &e.Label9, &e.Label6, &e.Label4, &e.hd_anz,
                                                &e.dachfläche_anz, &e.Giebel_anz, &d.ogd_Dach})
            EXPECT_EQ(feld->sichtbar(), beheizt) << feld->name;
        EXPECT_EQ(e.Option_Dachfirst.aktiv(), beheizt);
        EXPECT_EQ(e.Frame3.aktiv(), beheizt);
        EXPECT_EQ(d.ogd.sichtbar(), !beheizt);
        EXPECT_EQ(d.liste2.text(), beheizt ? "Dach" : "Obere Geschoßdecke");
        EXPECT_EQ(e.Picture3.bild(), programm.ordner / ("Grafiken/" + bild));
        EXPECT_EQ(e.h_sb.lage()->oben, beheizt ? 128 : 111);  // 1665 twips
        EXPECT_EQ(e.h_sb.lage()->hoehe, beheizt ? 80 : 97);   // 1455 twips
    };
    const float qh = p.qh;
    e.Option_Dachfirst.setze(2);
    EXPECT_EQ(p.Option_Dachfirst, 2);
    EXPECT_EQ(p.qh, qh) << "without a heated attic the ridge is only noted";
    EXPECT_EQ(p.Geaendert, 0);
    pruefe(false, "haus0.bmp");
    e.Check_Dachgeschoss.setze(1);
    EXPECT_EQ(p.hd, 1);
    EXPECT_EQ(p.Geaendert, 1);
    EXPECT_GT(p.f_dach_n, 0);
    EXPECT_EQ(p.f_dach_w, 0);
    pruefe(true, "haus2.bmp");
    e.hd_sb.setze(-30);
    e.Check_Dachgeschoss.setze(0);
    EXPECT_EQ(p.hd, 0);
    EXPECT_FALSE(std::signbit(p.hd));
    pruefe(false, "haus0.bmp");
}

/// A file and New move the ridge while the attic is off; once it is on, picture and captions are of one
/// house.
TEST(EGeometrie, BeschriftungPasstNachJederReihenfolgeZumHaus) {
    struct Haus {
        std::string sprache, bild, label9, label6;
        std::array<Platz, 4> plaetze;  ///< Label9, Label6, area of the roof, gable; from the left and the top
    };
    const std::array<Platz, 4> laengs{{{26, 48}, {88, 72}, {24, 76}, {72, 88}}};
    const std::array<Platz, 4> quer{{{4, 56}, {48, 68}, {80, 84}, {-10, 70}}};
    for (const Haus& haus : {Haus{"d", "haus1.bmp", "Dachfläche (West):", "Giebel", laengs},
                             {"d", "haus2.bmp", "Giebel:", "Dachfläche (Süd):", quer},
                             {"e", "haus1.bmp", "roof area (west):", "gable:", laengs},
                             {"e", "haus2.bmp", "gable:", "roof area (south):", quer}}) {
        const test::Testprogramm programm(haus.sprache);
        E_Geometrie& g = programm.haupt->e_geometrie;
        const auto haken = [&g](int wert) { g.Check_Dachgeschoss.setze(wert); };
        const std::vector<std::function<void(int)>> wege{
            [&](int first) { g.dachgeschoss_lesen(0), g.dachfirst_lesen(first), g.dachgeschoss_lesen(1); },
            [&](int first) {
                haken(0), g.Option_Dachfirst.setze(first), programm.haupt->neues_projekt(), haken(1);
            },
            [&](int first) { g.Option_Dachfirst.setze(first); },
        };
        for (const auto& weg : wege) {
            const int first = haus.bild == "haus1.bmp" ? 1 : 2;
            g.Option_Dachfirst.setze(3 - first);
            weg(first);
            EXPECT_EQ(g.Picture3.bild().filename(), haus.bild);
            EXPECT_EQ(g.Label9.text(), haus.label9);
            EXPECT_EQ(g.Label6.text(), haus.label6);
            EXPECT_EQ((std::array{*g.Label9.platz(), *g.Label6.platz(), *g.dachfläche_anz.platz(),
                                  *g.Giebel_anz.platz()}),
                      haus.plaetze);
        }
    }
}

}  // namespace
}  // namespace velmaris
