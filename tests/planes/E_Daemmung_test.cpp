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
