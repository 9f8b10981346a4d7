#include "planes/E_Fenster.h"

#include "project/projektdatei.h"
#include "tests/testprogramm.h"
#include "toolkit/text.h"

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
    const std::array<std::array<float, 4>, 8> werte{{{5.8F, 0.92F, 3.5F, 5.34F},  // 0.8 x 5.8 + 0.2 x 3.5
                                                     {3, 0.8F, 2.8F, 2.96F},
                                                     {1.9F, 0.7F, 2, 1.92F},
                                                     {1.4F, 0.58F, 1.5F, 1.42F},
                                                     {1, 0.52F, 1.5F, 1.1F},
                                                     {0.7F, 0.51F, 0.7F, 0.7F},
                                                     {0.5F, 0.51F, 0.7F, 0.54F},
                                                     {0.5F, 0.51F, 0.7F, 0.54F}}};
    e().Option1.setze(1);
    for (std::size_t zeile = 0; zeile < werte.size(); ++zeile) {
        rechnungen = 0;
        e().nord.typ.setze(static_cast<int>(zeile));
        EXPECT_EQ(rechnungen, 1);
        EXPECT_EQ(p().FormLoadGuard, 0);
        EXPECT_EQ(p().fenstern_typ, static_cast<int>(zeile));
        EXPECT_EQ((std::array{p().kfgn, p().gfn, p().kfrn}),
                  (std::array{werte[zeile][0], werte[zeile][1], werte[zeile][2]}));
        EXPECT_FLOAT_EQ(p().kfn, werte[zeile][3]);
    }
    EXPECT_EQ(p().kfgs, 1.4F);
    EXPECT_EQ(e().nord.typ.text(), "Sonstiges");
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

/// The guard that a failed opening leaves set does not make the user's hand a load.
TEST_F(EFenster, NachGescheitertemOeffnenBleibtDieHandEineHand) {
    e().fokusstellung = [this] { return std::optional(e().sued.gf.sb.position()); };
    programm.haupt->datei.datei_oeffnen(
        pfadtext(programm.ordner.schreibe("halb.vel", test::projekttext({std::string(version_jetzt)}))));
    EXPECT_EQ(p().FormLoadGuard, -1);
    e().sued.gf.sb.setze(70);
    EXPECT_EQ(p().fensters_typ, typ_sonstiges);
}

TEST_F(EFenster, ModuswechselGibtAllenDieFensterDesSuedensInEinerRechnung) {
    e().Option1.setze(1);
    for (Fensterseite* seite : {&e().nord, &e().ost, &e().west}) {
        seite->typ.setze(6);
        for (Fensterschieber* schieber : {&seite->ra, &seite->versch, &seite->f})
            schieber->sb.setze(55);
    }
    e().sued.typ.setze(0);
    e().sued.kfg.sb.setze(570);
    e().sued.kfr.sb.setze(340);
    e().sued.gf.sb.setze(91);
    p().Geaendert = 0;
    rechnungen = 0;
    e().Option1.setze(0);
    EXPECT_EQ(rechnungen, 1);
    EXPECT_EQ(p().Geaendert, 1);
    EXPECT_FALSE(e().Command_HR[0].sichtbar());
    for (Fensterseite* seite : {&e().nord, &e().ost, &e().west}) {
        EXPECT_EQ(seite->typ.index(), 0);
        EXPECT_EQ((std::array{p().*seite->kfg_feld, p().*seite->kfr_feld, p().*seite->gf_feld,
                              p().*seite->ra_feld}),
                  (std::array{5.7F, 3.4F, 0.91F, 0.2F}));
        EXPECT_EQ(seite->versch.sb.position(), 20);
        EXPECT_EQ(seite->f.sb.position(), 55) << "the share is each facade's own";
    }
}

TEST_F(EFenster, ReiterZeigenEinenRahmen) {
    const auto gezeigt = [this](std::size_t reiter) {
        const std::array<const Fensterseite*, 4> seiten{&e().nord, &e().sued, &e().ost, &e().west};
        for (std::size_t i = 0; i < seiten.size(); ++i) {
            EXPECT_EQ(seiten[i]->rahmen.sichtbar(), i == reiter) << i;
            EXPECT_EQ(e().Command_HR[i].aktiv(), i != reiter) << i;
        }
    };
    e().Option1.setze(1);
    gezeigt(1);
    rechnungen = 0;
    for (const std::size_t reiter : {3U, 2U, 0U, 1U, 3U}) {
        e().Command_HR[reiter].druecke();
        gezeigt(reiter);
    }
    EXPECT_EQ(rechnungen, 0);
    e().Option1.setze(0);
    EXPECT_TRUE(e().sued.rahmen.sichtbar());
    EXPECT_FALSE(e().west.rahmen.sichtbar());
}

}  // namespace
}  // namespace velmaris
