#include "planes/E_Gebaeude.h"

#include "tests/testprogramm.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::Testprogramm;

class EGebaeude : public testing::Test {
  protected:
    E_Gebaeude& e() { return programm.haupt->e_gebaeude; }
    Projekt& p() { return programm.p(); }

    Testprogramm programm;
};

TEST_F(EGebaeude, SollwertUndUeberwaermungsgrenzeHaltenAbstand) {
    e().Troom_sb.setze(270);
    EXPECT_EQ(p().Troom, 26.9F);
    EXPECT_EQ(e().Troom_sb.position(), 269);
    EXPECT_EQ(e().troom_anz.text(), "26.9");
    e().Troom_sb.setze(400);
    EXPECT_EQ(p().Troom, 26.9F);
    e().Troom_sb.setze(200);
    e().Tueber_sb.setze(200);
    EXPECT_EQ(p().Tueber, 20.1F);
    e().Tueber_sb.setze(100);
    EXPECT_EQ(p().Tueber, 20.1F);
}

TEST_F(EGebaeude, WandGegenNachbarnSperrtDasFensterUndBehaeltDenAnteil) {
    E_Fenster& fenster = programm.haupt->e_fenster;
    e().aws_cb.setze(1);
    EXPECT_EQ(p().aws, 0);
    EXPECT_EQ(p().fs, 40);
    EXPECT_EQ(p().f_sf, 0);
    EXPECT_FALSE(fenster.sued.f.sb.aktiv());
    EXPECT_TRUE(fenster.sued.f.anz.verborgen());
    EXPECT_TRUE(fenster.sued.gf.sb.aktiv());
    e().aws_cb.setze(0);
    EXPECT_EQ(p().aws, 1);
    EXPECT_GT(p().f_sf, 0);
    EXPECT_TRUE(fenster.sued.f.sb.aktiv());
    EXPECT_FALSE(fenster.sued.f.anz.verborgen());
}

TEST_F(EGebaeude, BauartAendertDieSpeichermasse) {
    const float mittel = p().Cwirk;
    p().Geaendert = 0;
    e().Innenwandart.setze(0);
    EXPECT_EQ(p().Innenwandart, 0);
    EXPECT_GT(p().Cwirk, mittel);
    EXPECT_EQ(p().Geaendert, 1);
    EXPECT_FALSE(e().Cwirk_anz.text().empty());
}

}  // namespace
}  // namespace velmaris
