#include "toolkit/felder.h"

#include "toolkit/fehler.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

TEST(Scrollfeld, FeuertNurBeiAndererStellung) {
    Scrollfeld feld("l_sb", 20, 500, 10, 20);
    int gefeuert = 0;
    feld.geaendert = [&] { ++gefeuert; };
    EXPECT_EQ(feld.position(), 20);
    feld.setze(20);
    EXPECT_EQ(gefeuert, 0);
    feld.setze(100);
    EXPECT_EQ(gefeuert, 1);
    feld.bewege(9999);
    EXPECT_EQ(feld.position(), 500);
    EXPECT_EQ(gefeuert, 2);
}

TEST(Scrollfeld, AusserhalbDesBereichsNenntDieGroesse) {
    Scrollfeld feld("WRG_Sb", 0, 100, 5, 1);
    try {
        feld.setze(101);
        FAIL();
    } catch (const Laufzeitfehler& fehler) {
        EXPECT_EQ(fehler.feld(), "WRG");
    }
    EXPECT_EQ(feld.position(), 0);
}

TEST(Auswahlliste, SetzenLaeuftImmerMarkierenNie) {
    Auswahlliste liste("ugd");
    int gefeuert = 0;
    liste.gewaehlt = [&] { ++gefeuert; };
    liste.fuelle({"a", "b"});
    EXPECT_EQ(liste.index(), -1);
    liste.setze(1);
    liste.setze(1);
    EXPECT_EQ(gefeuert, 2);
    liste.markiere(0);
    liste.schreibe("fremd");
    EXPECT_EQ(gefeuert, 2);
    EXPECT_EQ(liste.index(), -1);
    EXPECT_EQ(liste.text(), "fremd");
    EXPECT_THROW(liste.setze(2), Laufzeitfehler);
    EXPECT_THROW(liste.setze(-1), Laufzeitfehler);
}

TEST(Optionsgruppe, FeuertNurWennDieOptionNochNichtGesetztIst) {
    Optionsgruppe gruppe("Option_Dachfirst", 1, 2);
    int zuletzt = 0;
    gruppe.geklickt = [&](int option) { zuletzt = option; };
    gruppe.setze(2);
    EXPECT_EQ(zuletzt, 2);
    zuletzt = 0;
    gruppe.setze(2);
    EXPECT_EQ(zuletzt, 0);
    gruppe.markiere(std::nullopt);
    EXPECT_FALSE(gruppe.gesetzt(2));
    EXPECT_THROW(gruppe.setze(3), Laufzeitfehler);
}

TEST(Pruefeld, NimmtNurNullUndEins) {
    Pruefeld feld("cbk_hDach");
    int gefeuert = 0;
    feld.geklickt = [&] { ++gefeuert; };
    feld.setze(0);
    feld.setze(1);
    EXPECT_EQ(gefeuert, 1);
    EXPECT_THROW(feld.setze(-4), Laufzeitfehler);
}

TEST(Feld, MeldetDerAnsichtNurAenderungen) {
    Anzeige anzeige("l_anz");
    int gezeigt = 0;
    anzeige.ansicht = [&] { ++gezeigt; };
    anzeige.schreibe(" 10.0 m");
    anzeige.schreibe(" 10.0 m");
    anzeige.zeige(true);
    EXPECT_EQ(gezeigt, 1);
    anzeige.zeige(false);
    EXPECT_EQ(gezeigt, 2);
}

TEST(Knopf, DruecktNurWennErAktivIst) {
    Knopf knopf("Geometrie");
    int gedrueckt = 0;
    knopf.gedrueckt = [&] { ++gedrueckt; };
    knopf.aktiviere(false);
    knopf.druecke();
    knopf.aktiviere(true);
    knopf.druecke();
    EXPECT_EQ(gedrueckt, 1);
}

}  // namespace
}  // namespace velmaris
