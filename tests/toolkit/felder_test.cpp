#include "toolkit/felder.h"

#include "toolkit/fehler.h"
#include "toolkit/textfeld.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <tuple>
#include <utility>

namespace velmaris {
namespace {

/// The English message of the fault that an act must end in.
std::string verweigert(const std::function<void()>& tu) {
    try {
        tu();
    } catch (const Laufzeitfehler& fehler) {
        return fehler.text("e");
    }
    return "nothing";
}

TEST(Scrollfeld, FeuertNurBeiAndererStellung) {
    Scrollfeld feld("l_sb", 20, 500, 10, 20);
    int gefeuert = 0;
    feld.geaendert = [&] { ++gefeuert; };
    EXPECT_EQ(Scrollfeld("l_sb", -5, 5, 1, 2).position(), 0);
    feld.setze(20);
    feld.setze(100);
    feld.bewege(9999);
    EXPECT_EQ(feld.position(), 500);
    EXPECT_EQ(gefeuert, 2);
    feld.bereich(510, 505);
    EXPECT_EQ(feld.position(), 510);
    EXPECT_EQ(verweigert([&] { feld.setze(509); }), "l: position out of range: 509 (510 .. 510)");
    EXPECT_EQ(verweigert([&] { feld.setze(511); }), "l: position out of range: 511 (510 .. 510)");
    for (const auto& [name, groesse] : {std::pair{"WRG_Sb", "WRG: "}, {"awn_cb", "awn: "}, {"_sb", "_sb: "}})
        EXPECT_EQ(verweigert([&, name = name] { Scrollfeld(name, 0, 9, 1, 2).setze(-1); }).find(groesse), 0U);
}

TEST(Auswahlliste, SetzenLaeuftImmerMarkierenNie) {
    Auswahlliste liste("ugd");
    int gefeuert = 0;
    liste.gewaehlt = [&] { ++gefeuert; };
    liste.fuelle({"a", "b"});
    liste.setze(0);
    liste.setze(0);
    liste.markiere(1);
    EXPECT_EQ(liste.text(), "b");
    liste.schreibe("fremd");
    EXPECT_EQ(gefeuert, 2);
    EXPECT_EQ(liste.index(), -1);
    EXPECT_EQ(liste.text(), "fremd");
    EXPECT_EQ(verweigert([&] { liste.setze(2); }), "ugd: position out of range: 2 (0 .. 1)");
    EXPECT_EQ(verweigert([&] { liste.setze(-1); }), "ugd: position out of range: -1 (0 .. 1)");
}

TEST(Optionsgruppe, FeuertNurWennDieOptionNochNichtGesetztIst) {
    Optionsgruppe gruppe("First", 1, 2);
    std::string gefeuert;
    gruppe.geklickt = [&](int option) { gefeuert += std::to_string(option); };
    gruppe.setze(1);
    gruppe.setze(1);
    EXPECT_EQ(gefeuert, "1");
    gruppe.markiere(std::nullopt);
    EXPECT_FALSE(gruppe.gesetzt(1));
    EXPECT_EQ(verweigert([&] { gruppe.setze(3); }), "First: position out of range: 3 (1 .. 2)");
    EXPECT_EQ(verweigert([&] { gruppe.setze(0); }), "First: position out of range: 0 (1 .. 2)");
}

TEST(Pruefeld, NimmtNurNullUndEins) {
    Pruefeld feld("cbk_hDach");
    int gefeuert = 0;
    feld.geklickt = [&] { ++gefeuert; };
    feld.setze(0);
    feld.setze(1);
    feld.setze_verneint(1);
    EXPECT_EQ(feld.wert(), 0);
    EXPECT_EQ(gefeuert, 2);
    EXPECT_EQ(verweigert([&] { feld.setze(2); }), "cbk_hDach: position out of range: 2 (0 .. 1)");
    EXPECT_EQ(verweigert([&] { feld.setze_verneint(-1); }), "cbk_hDach: position out of range: -1 (0 .. 1)");
}

TEST(Feld, MeldetDerAnsichtNurAenderungen) {
    // How often, if something is done to a control twice.
    const auto meldungen = [](auto&& feld, const auto& tu) {
        int zahl = 0;
        feld.ansicht = [&] { ++zahl; };
        tu(feld);
        tu(feld);
        return zahl;
    };
    EXPECT_EQ(meldungen(Anzeige("a"), [](auto& a) { a.schreibe("10.0 m"); }), 1);
    EXPECT_EQ(meldungen(Anzeige("a"), [](auto& a) { a.faerbe(farben::rot); }), 1);
    EXPECT_EQ(meldungen(Anzeige("a"), [](auto& a) { a.verberge(true); }), 1);
    EXPECT_EQ(meldungen(Anzeige("a"), [](auto& a) { a.setze({1, 2}); }), 1);
    EXPECT_EQ(meldungen(Anzeige("a"), [](auto& a) { a.zeige(false); }), 1);
    EXPECT_EQ(meldungen(Anzeige("a"), [](auto& a) { a.aktiviere(false); }), 1);
    EXPECT_EQ(meldungen(Anzeige("a"), [](auto& a) { a.lege({1, 2, 3, 4}); }), 1);
    EXPECT_EQ(meldungen(Knopf("k"), [](auto& k) { k.schreibe("OK"); }), 1);
    EXPECT_EQ(meldungen(Pruefeld("p"), [](auto& p) { p.markiere(1); }), 1);
    EXPECT_EQ(meldungen(Menuepunkt("m"), [](auto& m) { m.kreuze_an(true); }), 1);
    EXPECT_EQ(meldungen(Bildfeld("b"), [](auto& b) { b.lade("karte.bmp"); }), 1);
    EXPECT_EQ(meldungen(Scrollfeld("s", 0, 9, 1, 2), [](auto& s) { s.setze(5); }), 1);
    // A list and a group tell each time, since the view may show another choice.
    EXPECT_EQ(meldungen(Auswahlliste("l"), [](auto& l) { l.schreibe("x"); }), 2);
    EXPECT_EQ(meldungen(Auswahlliste("l"), [](auto& l) { l.fuelle({"x"}); }), 2);
    EXPECT_EQ(meldungen(Optionsgruppe("o", 0, 2), [](auto& o) { o.markiere(1); }), 2);
    EXPECT_EQ(meldungen(Scrollfeld("s", 0, 9, 1, 2), [](auto& s) { s.bereich(0, 5); }), 2);
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

TEST(Textfeld, NimmtBeimTippenNurErlaubteZeichenBisZurGrenze) {
    using Fall = std::tuple<const char*, std::size_t, const char*, std::string>;
    for (const auto& [erlaubt, hoechstens, getippt, text] :
         {Fall{"12345", 5, "1a2-3 4€567", "12345"}, Fall{"", 3, "ÄÖÜß", "ÄÖÜ"},
          Fall{"", 0, "a b,c", "a b,c"}}) {
        Textfeld feld("feld", erlaubt, hoechstens);
        std::string ablauf;
        feld.ansicht = [&] { ablauf += "view "; };
        feld.geaendert = [&] { ablauf += feld.text(); };
        feld.bestaetigt = [&] { ablauf += " entered"; };
        feld.tippe(getippt);
        feld.bestaetige();
        EXPECT_EQ(ablauf, "view " + text + " entered");
        ablauf.clear();
        feld.schreibe("wie es steht");
        EXPECT_EQ(ablauf + feld.text(), "view wie es steht") << "the program writes without the handler";
    }
}

}  // namespace
}  // namespace velmaris
