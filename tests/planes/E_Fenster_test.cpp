#include "planes/E_Fenster.h"

#include "project/feldtabelle.h"
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

/// The scroll field with the focus follows the project that comes, as all others do.
TEST_F(EFenster, LadenIstKeineBewegungVonHand) {
    constexpr std::array typzeilen{"fenstern_typ", "fensters_typ", "fenstero_typ", "fensterw_typ"};
    using Typen = std::array<std::int16_t, 4>;
    const auto typen = [this] {
        return Typen{p().fenstern_typ, p().fensters_typ, p().fenstero_typ, p().fensterw_typ};
    };
    const auto lade = [this](const std::function<void()>& tu) {
        e().ebene.zeige(true);
        tu();
    };
    FILEIO& datei = programm.haupt->datei;
    const std::vector<std::string> neu = test::projektzeilen(p());
    for (int fall = 0; fall < 2 * typ_sonstiges; ++fall) {
        const int modus = fall % 2;
        std::vector<std::string> zeilen = neu;
        const auto setze = [&](std::string_view feld, int wert) {
            zeilen[static_cast<std::size_t>(feld_suchen(feld)->zeile) - 1] = std::to_string(wert);
        };
        setze("Option1", modus);
        Typen erwartet{};
        for (std::size_t i = 0; i < typzeilen.size(); ++i) {
            const auto versatz = modus == 1 ? static_cast<int>(i) : 0;
            erwartet[i] = static_cast<std::int16_t>((fall / 2 + versatz) % typ_sonstiges);
            setze(typzeilen[i], erwartet[i]);
        }
        const auto haus = programm.ordner.schreibe("haus.vel", test::projekttext(zeilen));
        for (const Fensterseite* seite : {&e().nord, &e().sued, &e().ost, &e().west}) {
            for (const Fensterschieber* schieber : {&seite->gf, &seite->kfg, &seite->kfr}) {
                e().fokusstellung = [schieber] { return std::optional(schieber->sb.position()); };
                lade([&] { datei.datei_oeffnen(pfadtext(haus)); });
                EXPECT_EQ(typen(), erwartet) << schieber->sb.name << " " << fall;
                lade([&] { datei.datei_neu(); });
                EXPECT_EQ(typen(), (Typen{3, 3, 3, 3})) << schieber->sb.name << " " << fall;
            }
        }
    }
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

}  // namespace
}  // namespace velmaris
