#include "planes/E_Daemmung.h"

#include "tests/testprogramm.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::Testprogramm;

class EDaemmung : public testing::Test {
  protected:
    E_Daemmung& e() { return programm.haupt->e_daemmung; }
    Projekt& p() { return programm.p(); }

    Testprogramm programm;
};

TEST_F(EDaemmung, SchieberStellenDieWerte) {
    EXPECT_EQ(e().kwn_sb.minimum(), 1);
    EXPECT_EQ(e().kd_sb.minimum(), 0);
    e().kwo_sb.setze(135);
    EXPECT_EQ(p().kwo, 1.35F);
    EXPECT_EQ(e().kwo_anz.text(), "1.35");
    e().ft_sb.setze(21);
    EXPECT_EQ(p().ft, 2.1F);
    EXPECT_EQ(e().ft_anz.text(), "2.1");
    EXPECT_EQ(p().Geaendert, 1);
}

TEST_F(EDaemmung, ListenAendernDasErgebnisAberNichtDasAenderungszeichen) {
    const float vorher = p().qh;
    e().ugd.setze(4);
    EXPECT_EQ(p().ugd_typ, 4);
    EXPECT_EQ(p().Fx_ugd, 0.9F);
    EXPECT_GT(p().qh, vorher);
    e().ogd.setze(2);
    EXPECT_EQ(p().Dachraum_typ, 2);
    EXPECT_EQ(p().Geaendert, 0);
}

TEST_F(EDaemmung, WaermebrueckenUndHinterlueftung) {
    EXPECT_TRUE(e().Waermebruecken_opt.gesetzt(2));
    e().Waermebruecken_opt.setze(3);
    EXPECT_EQ(p().Waermebruecken, 0.05F);
    e().Waermebruecken_opt.setze(1);
    EXPECT_EQ(p().Waermebruecken, 0);
    EXPECT_EQ(e().cbk_hDach.wert(), 0);
    e().cbk_hDach.setze(1);
    EXPECT_EQ(p().cbk_hDach, 0);
}

TEST_F(EDaemmung, LeererDachraumBleibtUndZeigtKeineZeile) {
    p().Dachraum_typ = 3;
    p().Waermebruecken = 0.07F;
    programm.haupt->eingaben_anzeigen();
    EXPECT_EQ(p().Dachraum_typ, 3);
    EXPECT_EQ(e().ogd.index(), -1);
    EXPECT_FALSE(e().Waermebruecken_opt.gesetzt().has_value());
    EXPECT_EQ(p().Waermebruecken, 0.07F);
}

}  // namespace
}  // namespace velmaris
