#include "planes/E_Geometrie.h"

#include "tests/testprogramm.h"
#include "toolkit/wort.h"

#include <array>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <initializer_list>
#include <string>

namespace velmaris {
namespace {

using test::Testprogramm;

class EGeometrie : public testing::Test {
  protected:
    E_Geometrie& e() { return programm.haupt->e_geometrie; }
    Projekt& p() { return programm.p(); }

    Testprogramm programm;
};

TEST_F(EGeometrie, OrientierungWirktAufDieStrahlung) {
    const std::int16_t west = p().Monat(6).Strahlung_W;
    int lageplan = 0;
    e().Picture1.ansicht = [&] { ++lageplan; };
    e().orient_sb.setze(-45);
    EXPECT_EQ(p().orient, 45);
    EXPECT_NE(p().Monat(6).Strahlung_W, west);
    EXPECT_EQ(lageplan, 1);
    programm.haupt->e_menue.klicke("Geometrie");
    EXPECT_EQ(lageplan, 2);
}

TEST_F(EGeometrie, BeheiztesDachgeschoss) {
    const E_Daemmung& d = programm.haupt->e_daemmung;
    const auto pruefe = [&](bool beheizt, const char* bild, const char* abschluss, double oben,
                            double hoehe) {
        for (const Feld* feld :
             std::initializer_list<const Feld*>{&e().hd_sb, &e().Label9, &e().Label6, &e().Label4,
                                                &e().hd_anz, &e().dachfläche_anz, &e().Giebel_anz})
            EXPECT_EQ(feld->sichtbar(), beheizt) << feld->name;
        EXPECT_EQ(e().Option_Dachfirst.aktiv(), beheizt);
        EXPECT_EQ(e().Frame3.aktiv(), beheizt);
        EXPECT_EQ(d.ogd_Dach.sichtbar(), beheizt);
        EXPECT_EQ(d.ogd.sichtbar(), !beheizt);
        EXPECT_EQ(d.liste2.text(), abschluss);
        EXPECT_EQ(e().Picture3.bild(), programm.ordner / ("Grafiken/" + std::string(bild)));
        EXPECT_EQ(e().h_sb.lage()->oben, oben);
        EXPECT_EQ(e().h_sb.lage()->hoehe, hoehe);
    };
    EXPECT_EQ(p().hd, 2);
    pruefe(false, "haus0.bmp", "Obere Geschoßdecke", 111, 97);  // 1665 and 1455 twips
    e().Check_Dachgeschoss.setze(1);
    EXPECT_EQ(p().hd, 1);
    EXPECT_EQ(p().Geaendert, 1);
    pruefe(true, "haus1.bmp", "Dach", 128, 80);
    e().hd_sb.setze(-30);
    e().Check_Dachgeschoss.setze(0);
    EXPECT_EQ(p().hd, 0);
    EXPECT_FALSE(std::signbit(p().hd));
    pruefe(false, "haus0.bmp", "Obere Geschoßdecke", 111, 97);
}

TEST_F(EGeometrie, FirstOhneDachgeschossAendertNurSichSelbst) {
    const float vorher = p().qh;
    e().Option_Dachfirst.setze(2);
    EXPECT_EQ(p().Option_Dachfirst, 2);
    EXPECT_EQ(e().Picture3.bild().filename(), "haus0.bmp");
    EXPECT_EQ(p().qh, vorher);
    EXPECT_EQ(p().Geaendert, 0);
    e().Check_Dachgeschoss.setze(1);
    EXPECT_GT(p().f_dach_n, 0);
    EXPECT_EQ(p().f_dach_w, 0);
}

/// A file and New move the ridge while the attic is off; once it is on, picture and captions are of one
/// house.
TEST_F(EGeometrie, BeschriftungPasstNachJederReihenfolgeZumHaus) {
    struct Haus {
        const char* bild;
        Zweisprachig label9, label6;
        std::array<Platz, 4> plaetze;  ///< Label9, Label6, area of the roof, gable; from the left and the top
    };
    const std::array<Haus, 2> haeuser{{{"haus1.bmp",
                                        {"Dachfläche (West):", "roof area (west):"},
                                        {"Giebel", "gable:"},
                                        {{{26, 48}, {88, 72}, {24, 76}, {72, 88}}}},
                                       {"haus2.bmp",
                                        {"Giebel:", "gable:"},
                                        {"Dachfläche (Süd):", "roof area (south):"},
                                        {{{4, 56}, {48, 68}, {80, 84}, {-10, 70}}}}}};
    for (const char* sprache : {"d", "e"}) {
        const Testprogramm anderes(sprache);
        E_Geometrie& g = anderes.haupt->e_geometrie;
        const auto haken = [&g](int wert) { g.Check_Dachgeschoss.setze(wert); };
        const std::vector<std::function<void(int)>> wege{
            [&](int first) { g.dachgeschoss_lesen(0), g.dachfirst_lesen(first), g.dachgeschoss_lesen(1); },
            [&](int first) { haken(1), g.dachfirst_lesen(first), haken(0), haken(1); },
            [&](int first) {
                haken(0), g.Option_Dachfirst.setze(first), anderes.haupt->neues_projekt(), haken(1);
            },
            [&](int first) { g.Option_Dachfirst.setze(first); },
        };
        for (std::size_t weg = 0; weg < wege.size(); ++weg) {
            for (const int first : {2, 1}) {
                wege[weg](first);
                const Haus& haus = haeuser[static_cast<std::size_t>(first - 1)];
                EXPECT_EQ(g.Picture3.bild().filename(), haus.bild) << weg;
                EXPECT_EQ(g.Label9.text(), haus.label9.in(sprache)) << weg;
                EXPECT_EQ(g.Label6.text(), haus.label6.in(sprache)) << weg;
                EXPECT_EQ((std::array{*g.Label9.platz(), *g.Label6.platz(), *g.dachfläche_anz.platz(),
                                      *g.Giebel_anz.platz()}),
                          haus.plaetze)
                    << weg;
            }
        }
    }
}

}  // namespace
}  // namespace velmaris
