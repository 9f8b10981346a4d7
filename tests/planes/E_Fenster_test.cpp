#include "planes/E_Fenster.h"

#include "tests/testprogramm.h"

#include <gtest/gtest.h>
#include <utility>

namespace velmaris {
namespace {

/// The program on the windows plane, with a count of full recalculations.
class EFenster : public testing::Test {
  protected:
    EFenster() {
        e.ebene.zeige(true);
        const auto rechnen = programm.haupt->sitzung.alles_berechnen;
        programm.haupt->sitzung.alles_berechnen = [this, rechnen] {
            if (p.FormLoadGuard == 0) ++rechnungen;
            rechnen();
        };
    }

    test::Testprogramm programm;
    Projekt& p = programm.p();
    E_Fenster& e = programm.haupt->e_fenster;
    const std::array<Fensterseite*, 4> seiten{&e.nord, &e.sued, &e.ost, &e.west};
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
    e.Option1.setze(1);
    for (int zeile = 0; const auto& [kfg, gf, kfr, kf] : werte) {
        rechnungen = 0;
        e.nord.typ.setze(zeile);
        EXPECT_EQ(rechnungen, 1);
        EXPECT_EQ(p.FormLoadGuard, 0);
        EXPECT_EQ(p.fenstern_typ, zeile++);
        EXPECT_EQ((std::array{p.kfgn, p.gfn, p.kfrn}), (std::array{kfg, gf, kfr}));
        EXPECT_FLOAT_EQ(p.kfn, kf);
    }
    EXPECT_EQ(p.kfgs, 1.4F);
    EXPECT_EQ(e.nord.typ.text(), "Sonstiges");
}

TEST_F(EFenster, GleicheFensterFolgenDerSuedseiteInEinerRechnung) {
    const auto pruefe = [this](float gf, float kfg, int typ) {
        EXPECT_EQ(std::exchange(rechnungen, 0), 1);
        for (const Fensterseite* seite : seiten) {
            EXPECT_EQ(p.*seite->gf_feld, gf);
            EXPECT_EQ(p.*seite->kfg_feld, kfg);
            EXPECT_EQ(p.*seite->typ_feld, typ);
        }
    };
    e.sued.gf.sb.setze(70);
    pruefe(0.7F, 1.4F, 3);
    e.sued.typ.setze(0);
    pruefe(0.92F, 5.8F, 0);
    e.fokusstellung = [this] { return std::optional(e.sued.kfg.sb.position()); };
    e.sued.kfg.sb.setze(145);
    pruefe(0.92F, 1.45F, 7);  // moved by hand
}

TEST_F(EFenster, ModuswechselGibtAllenDieFensterDesSuedensInEinerRechnung) {
    e.Option1.setze(1);
    for (Fensterseite* seite : {&e.nord, &e.ost, &e.west}) {
        seite->typ.setze(6);
        for (Fensterschieber* schieber : {&seite->ra, &seite->versch, &seite->f})
            schieber->sb.setze(55);
    }
    e.sued.typ.setze(0);
    for (const auto& [schieber, ort] : {std::pair(&e.sued.kfg, 570), {&e.sued.kfr, 340}, {&e.sued.gf, 91}})
        schieber->sb.setze(ort);
    p.Geaendert = 0;
    rechnungen = 0;
    e.Option1.setze(0);
    EXPECT_EQ(rechnungen, 1);
    EXPECT_EQ(p.Geaendert, 1);
    for (const Fensterseite* s : {&e.nord, &e.ost, &e.west}) {
        EXPECT_EQ(s->typ.index(), 0);
        EXPECT_EQ((std::array{p.*s->kfg_feld, p.*s->kfr_feld, p.*s->gf_feld, p.*s->ra_feld}),
                  (std::array{5.7F, 3.4F, 0.91F, 0.2F}));
        EXPECT_EQ(s->versch.sb.position(), 20);
        EXPECT_EQ(s->f.sb.position(), 55) << "the share is each facade's own";
    }
}

TEST_F(EFenster, ReiterZeigenEinenRahmen) {
    EXPECT_FALSE(e.nord.rahmen.sichtbar());
    e.Option1.setze(1);
    for (const std::size_t reiter : {1U, 3U, 2U, 0U}) {
        e.Command_HR[reiter].druecke();
        for (std::size_t i = 0; i < seiten.size(); ++i) {
            EXPECT_EQ(seiten[i]->rahmen.sichtbar(), i == reiter) << i;
            EXPECT_EQ(e.Command_HR[i].aktiv(), i != reiter) << i;
        }
    }
    e.Option1.setze(0);
    EXPECT_TRUE(e.sued.rahmen.sichtbar());
    EXPECT_FALSE(e.Command_HR[0].sichtbar());
}

}  // namespace
}  // namespace velmaris
