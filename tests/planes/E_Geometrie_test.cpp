#include "planes/E_Geometrie.h"

#include "tests/testprogramm.h"

#include <array>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>

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
    e().orient_sb.setze(-45);
    EXPECT_EQ(p().orient, 45);
    EXPECT_EQ(e().orient_anz.text(), "45°");
    EXPECT_NE(p().Monat(6).Strahlung_W, west);
}

TEST_F(EGeometrie, BeheiztesDachgeschoss) {
    EXPECT_EQ(p().hd, 2);
    EXPECT_FALSE(e().hd_sb.sichtbar());
    e().Check_Dachgeschoss.setze(1);
    EXPECT_EQ(p().hd, 1);
    EXPECT_EQ(p().Geaendert, 1);
    EXPECT_TRUE(e().hd_sb.sichtbar());
    EXPECT_TRUE(e().Option_Dachfirst.aktiv());
    EXPECT_EQ(e().Picture3.bild().filename(), "haus1.bmp");
    EXPECT_EQ(programm.haupt->e_daemmung.liste2.text(), "Dach");
    EXPECT_TRUE(programm.haupt->e_daemmung.ogd_Dach.sichtbar());
    e().hd_sb.setze(-30);
    e().Check_Dachgeschoss.setze(0);
    EXPECT_EQ(p().hd, 0);
    EXPECT_FALSE(std::signbit(p().hd));
    EXPECT_EQ(e().Picture3.bild().filename(), "haus0.bmp");
    EXPECT_EQ(programm.haupt->e_daemmung.liste2.text(), "Obere Geschoßdecke");
}

TEST_F(EGeometrie, FirstOhneDachgeschossAendertNurSichSelbst) {
    const float vorher = p().qh;
    e().Option_Dachfirst.setze(2);
    EXPECT_EQ(p().Option_Dachfirst, 2);
    EXPECT_EQ(e().Picture3.bild().filename(), "haus0.bmp");
    EXPECT_EQ(p().qh, vorher);
    EXPECT_EQ(p().Geaendert, 0);
    e().Check_Dachgeschoss.setze(1);
    EXPECT_EQ(e().Picture3.bild().filename(), "haus2.bmp");
    EXPECT_EQ(e().Label9.text(), "Giebel:");
    e().Option_Dachfirst.setze(1);
    EXPECT_EQ(e().Label9.text(), "Dachfläche (West):");
    EXPECT_EQ(e().Label9.platz(), (Platz{.links = 26, .oben = 48}));
    e().Option_Dachfirst.setze(2);
    EXPECT_EQ(e().Giebel_anz.platz(), (Platz{-10, 70}));
    EXPECT_GT(p().f_dach_n, 0);
    EXPECT_EQ(p().f_dach_w, 0);
}

/// A file and New move the ridge while the attic is off; once it is on, picture and captions are of one
/// house.
TEST_F(EGeometrie, BeschriftungPasstNachJederReihenfolgeZumHaus) {
    struct Haus {
        const char* bild;
        const char* label9;
        Platz label6;
        Platz flaeche;
    };
    const std::array<Haus, 2> haeuser{{{"haus1.bmp", "Dachfläche (West):", {88, 72}, {24, 76}},
                                       {"haus2.bmp", "Giebel:", {48, 68}, {80, 84}}}};
    const auto haken = [this](int wert) { e().Check_Dachgeschoss.setze(wert); };
    const std::vector<std::function<void(int)>> wege{
        [&](int first) { haken(0), e().dachfirst_lesen(first), haken(1); },
        [&](int first) { e().dachgeschoss_lesen(0), e().dachfirst_lesen(first), e().dachgeschoss_lesen(1); },
        [&](int first) { haken(1), e().dachfirst_lesen(first), haken(0), haken(1); },
        [&](int first) {
            haken(0), e().Option_Dachfirst.setze(first), programm.haupt->neues_projekt(), haken(1);
        },
    };
    for (std::size_t weg = 0; weg < wege.size(); ++weg) {
        for (const int first : {2, 1}) {
            wege[weg](first);
            const Haus& haus = haeuser[static_cast<std::size_t>(first - 1)];
            EXPECT_EQ(e().Picture3.bild().filename(), haus.bild) << weg;
            EXPECT_EQ(e().Label9.text(), haus.label9) << weg;
            EXPECT_EQ(e().Label6.platz(), haus.label6) << weg;
            EXPECT_EQ(e().dachfläche_anz.platz(), haus.flaeche) << weg;
        }
    }
}

}  // namespace
}  // namespace velmaris
