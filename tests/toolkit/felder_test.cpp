#include "toolkit/felder.h"

#include "toolkit/fehler.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <utility>

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

/// The English message of the fault that an act must end in.
std::string verweigert(const std::function<void()>& tu) {
    try {
        tu();
    } catch (const Laufzeitfehler& fehler) {
        return fehler.text("e");
    }
    return "nothing";
}

TEST(Scrollfeld, AusserhalbDesBereichsNenntDieGroesse) {
    for (const auto& [name, groesse] : {std::pair{"WRG_Sb", "WRG"}, {"awn_cb", "awn"}, {"_sb", "_sb"}}) {
        Scrollfeld feld(name, 10, 100, 5, 1);
        const std::string anfang = std::string(groesse) + ": position out of range: ";
        EXPECT_EQ(verweigert([&] { feld.setze(9); }), anfang + "9 (10 .. 100)");
        EXPECT_EQ(verweigert([&] { feld.setze(101); }), anfang + "101 (10 .. 100)");
        EXPECT_EQ(feld.position(), 10);
    }
    Scrollfeld feld("l_sb", 10, 100, 5, 1);
    feld.setze(100);
    feld.bereich(20, 15);
    EXPECT_EQ(feld.position(), 20);
    EXPECT_EQ(feld.maximum(), 20);
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
    EXPECT_EQ(liste.text(), "a");
    liste.schreibe("fremd");
    EXPECT_EQ(gefeuert, 2);
    EXPECT_EQ(liste.index(), -1);
    EXPECT_EQ(liste.text(), "fremd");
    EXPECT_EQ(verweigert([&] { liste.setze(2); }), "ugd: position out of range: 2 (0 .. 1)");
    EXPECT_EQ(verweigert([&] { liste.setze(-1); }), "ugd: position out of range: -1 (0 .. 1)");
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
    EXPECT_EQ(verweigert([&] { gruppe.setze(3); }), "Option_Dachfirst: position out of range: 3 (1 .. 2)");
    EXPECT_EQ(verweigert([&] { gruppe.setze(0); }), "Option_Dachfirst: position out of range: 0 (1 .. 2)");
}

TEST(Pruefeld, NimmtNurNullUndEins) {
    Pruefeld feld("cbk_hDach");
    int gefeuert = 0;
    feld.geklickt = [&] { ++gefeuert; };
    feld.setze(0);
    feld.setze(1);
    EXPECT_EQ(gefeuert, 1);
    feld.setze_verneint(1);
    EXPECT_EQ(feld.wert(), 0);
    EXPECT_EQ(verweigert([&] { feld.setze(2); }), "cbk_hDach: position out of range: 2 (0 .. 1)");
    EXPECT_EQ(verweigert([&] { feld.setze_verneint(-1); }), "cbk_hDach: position out of range: -1 (0 .. 1)");
}

/// How often a control told its view while the same was done to it twice.
template <class Feldart>
int meldungen(Feldart&& feld, const std::function<void(Feldart&)>& tu) {
    int zahl = 0;
    feld.ansicht = [&] { ++zahl; };
    tu(feld);
    tu(feld);
    return zahl;
}

TEST(Feld, MeldetDerAnsichtNurAenderungen) {
    EXPECT_EQ(meldungen<Anzeige>(Anzeige("a"), [](Anzeige& a) { a.schreibe("10.0 m"); }), 1);
    EXPECT_EQ(meldungen<Anzeige>(Anzeige("a"), [](Anzeige& a) { a.faerbe(farben::rot); }), 1);
    EXPECT_EQ(meldungen<Anzeige>(Anzeige("a"), [](Anzeige& a) { a.verberge(true); }), 1);
    EXPECT_EQ(meldungen<Anzeige>(Anzeige("a"), [](Anzeige& a) { a.setze({1, 2}); }), 1);
    EXPECT_EQ(meldungen<Anzeige>(Anzeige("a"), [](Anzeige& a) { a.zeige(false); }), 1);
    EXPECT_EQ(meldungen<Anzeige>(Anzeige("a"), [](Anzeige& a) { a.zeige(true); }), 0);
    EXPECT_EQ(meldungen<Anzeige>(Anzeige("a"), [](Anzeige& a) { a.aktiviere(false); }), 1);
    EXPECT_EQ(meldungen<Anzeige>(Anzeige("a"), [](Anzeige& a) { a.lege({1, 2, 3, 4}); }), 1);
    EXPECT_EQ(meldungen<Knopf>(Knopf("k"), [](Knopf& k) { k.schreibe("OK"); }), 1);
    EXPECT_EQ(meldungen<Pruefeld>(Pruefeld("p"), [](Pruefeld& p) { p.markiere(1); }), 1);
    EXPECT_EQ(meldungen<Menuepunkt>(Menuepunkt("m"), [](Menuepunkt& m) { m.kreuze_an(true); }), 1);
    EXPECT_EQ(meldungen<Bildfeld>(Bildfeld("b"), [](Bildfeld& b) { b.lade("karte.bmp"); }), 1);
    EXPECT_EQ(meldungen<Scrollfeld>(Scrollfeld("s", 0, 9, 1, 2), [](Scrollfeld& s) { s.setze(5); }), 1);
    // A list and a group tell each time, since the view may show another choice.
    EXPECT_EQ(meldungen<Auswahlliste>(Auswahlliste("l"), [](Auswahlliste& l) { l.schreibe("x"); }), 2);
    EXPECT_EQ(meldungen<Auswahlliste>(Auswahlliste("l"), [](Auswahlliste& l) { l.fuelle({"x"}); }), 2);
    EXPECT_EQ(meldungen<Optionsgruppe>(Optionsgruppe("o", 0, 2), [](Optionsgruppe& o) { o.markiere(1); }), 2);
    EXPECT_EQ(meldungen<Scrollfeld>(Scrollfeld("s", 0, 9, 1, 2), [](Scrollfeld& s) { s.bereich(0, 5); }), 2);
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
