#include "planes/E_Fenster.h"

#include "tests/testprogramm.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::Testprogramm;

/// The program on the windows plane, with a count of full recalculations.
class EFenster : public testing::Test {
  protected:
    EFenster() {
        e().ebene.zeige(true);
        const auto rechnen = programm.haupt->sitzung.alles_berechnen;
        programm.haupt->sitzung.alles_berechnen = [this, rechnen] {
            if (p().FormLoadGuard == 0) ++rechnungen;
            rechnen();
        };
    }

    E_Fenster& e() { return programm.haupt->e_fenster; }
    Projekt& p() { return programm.p(); }

    Testprogramm programm;
    int rechnungen = 0;
};

TEST_F(EFenster, TypSetztDieDreiWerteUndDenGesamtwert) {
    e().Option1.setze(1);
    rechnungen = 0;
    e().nord.typ.setze(5);
    EXPECT_EQ(rechnungen, 1);
    EXPECT_EQ(p().fenstern_typ, 5);
    EXPECT_EQ(p().kfgn, 0.7F);
    EXPECT_EQ(p().gfn, 0.51F);
    EXPECT_EQ(p().kfrn, 0.7F);
    EXPECT_FLOAT_EQ(p().kfn, 0.7F);
    EXPECT_EQ(p().kfgs, 1.4F);
    EXPECT_EQ(e().nord.kfg.anz.text(), "0.70");
    EXPECT_EQ(p().FormLoadGuard, 0);
}

TEST_F(EFenster, GesamtwertMischtGlasUndRahmen) {
    e().Option1.setze(1);
    e().ost.kfg.sb.setze(200);
    e().ost.kfr.sb.setze(300);
    e().ost.ra.sb.setze(30);
    EXPECT_NEAR(p().kfo, 0.7 * 2.0 + 0.3 * 3.0, 1e-6);
    e().ost.ra.sb.setze(0);
    EXPECT_FLOAT_EQ(p().kfo, 2.0F);
    e().ost.ra.sb.setze(100);
    EXPECT_FLOAT_EQ(p().kfo, 3.0F);
}

TEST_F(EFenster, GleicheFensterFolgenDerSuedseiteInEinerRechnung) {
    e().sued.gf.sb.setze(70);
    EXPECT_EQ(rechnungen, 1);
    for (const float wert : {p().gfn, p().gfs, p().gfo, p().gfw})
        EXPECT_EQ(wert, 0.7F);
    rechnungen = 0;
    e().sued.typ.setze(0);
    EXPECT_EQ(rechnungen, 1);
    for (const std::int16_t typ : {p().fenstern_typ, p().fenstero_typ, p().fensterw_typ})
        EXPECT_EQ(typ, 0);
    EXPECT_EQ(p().kfgw, 5.8F);
}

TEST_F(EFenster, EinzelneFensterKopierenNichts) {
    e().Option1.setze(1);
    rechnungen = 0;
    e().sued.versch.sb.setze(50);
    EXPECT_EQ(rechnungen, 1);
    EXPECT_EQ(p().verschs, 0.5F);
    EXPECT_EQ(p().verschn, 0.2F);
}

TEST_F(EFenster, VonHandBewegtHeisstSonstiges) {
    e().fokusstellung = [this] { return std::optional(e().sued.kfg.sb.position()); };
    e().sued.kfg.sb.setze(145);
    EXPECT_EQ(rechnungen, 1);
    for (const std::int16_t typ : {p().fenstern_typ, p().fensters_typ, p().fenstero_typ, p().fensterw_typ}) {
        EXPECT_EQ(typ, 7);
    }
    EXPECT_EQ(p().kfgn, 1.45F);
    EXPECT_EQ(e().sued.typ.text(), "Sonstiges");
    e().sued.typ.setze(7);
    EXPECT_EQ(p().kfgs, 1.45F);
}

TEST_F(EFenster, ModuswechselRechnetDasJahrEinmal) {
    e().Option1.setze(1);
    e().sued.typ.setze(6);
    e().west.ra.sb.setze(55);
    p().Geaendert = 0;
    rechnungen = 0;
    e().Option1.setze(0);
    EXPECT_EQ(rechnungen, 1);
    EXPECT_EQ(p().raw, 0.2F);
    EXPECT_EQ(p().fensterw_typ, 6);
    EXPECT_EQ(p().Geaendert, 1);
    EXPECT_FALSE(e().Command_HR[0].sichtbar());
}

TEST_F(EFenster, ReiterZeigenEinenRahmen) {
    e().Option1.setze(1);
    EXPECT_FALSE(e().Command_HR[1].aktiv());
    rechnungen = 0;
    e().Command_HR[3].druecke();
    EXPECT_EQ(rechnungen, 0);
    EXPECT_TRUE(e().west.rahmen.sichtbar());
    EXPECT_FALSE(e().sued.rahmen.sichtbar());
    EXPECT_FALSE(e().Command_HR[3].aktiv());
    EXPECT_TRUE(e().Command_HR[1].aktiv());
}

TEST_F(EFenster, OhneFensterSindDieMittelwerteLeer) {
    for (Fensterseite* seite : {&e().nord, &e().sued, &e().ost, &e().west})
        seite->f.sb.setze(0);
    EXPECT_EQ(e().kf_anz.text(), "");
    EXPECT_EQ(e().gfm_anz.text(), "");
    EXPECT_EQ(e().f_gf_anz.text(), "0.0");
}

}  // namespace
}  // namespace velmaris
