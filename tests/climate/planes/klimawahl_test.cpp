#include "climate/planes/E_Klima.h"
#include "tests/climate/planes/klimaprobe.h"
#include "tests/climate/stationsdatei.h"
#include "tests/testprogramm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>

namespace velmaris {
namespace {

using test::Klimaprobe;
using test::Testprogramm;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

/// The pixels by which the regions 1 to 12 are known.
const std::vector<std::pair<int, int>> bezugspixel{{110, 20}, {140, 90}, {35, 135}, {90, 140},
                                                   {90, 220}, {70, 200}, {45, 260}, {90, 270},
                                                   {60, 250}, {70, 270}, {25, 175}, {75, 285}};

/// A picture of Germany of which only single pixels are coloured: the former, region r in (r, 0, 0), and
/// places to point at.
class Deutschlandkarte : public testing::Test {
  protected:
    Deutschlandkarte() {
        probe.oeffne(nummer(Klimabereich::deutschland), "trier.met");
        std::uint8_t region = 1;
        for (const auto& ort : bezugspixel)
            pixel[ort] = {region++, 0, 0};
        probe.e->kartenfarbe = [this](const Bildfeld&, double x, double y) -> std::optional<Farbe> {
            if (ohne_bild) return std::nullopt;
            const auto ort = pixel.find({static_cast<int>(x), static_cast<int>(y)});
            return ort == pixel.end() ? farben::weiss : ort->second;
        };
    }

    Klimaprobe probe;
    std::map<std::pair<int, int>, Farbe> pixel;
    bool ohne_bild = false;
};

TEST_F(Deutschlandkarte, EinKlickNimmtDieRegionSeinerFarbe) {
    pixel[{100, 30}] = {1, 0, 0};
    pixel[{30, 170}] = {11, 0, 0};
    probe.e->plz.schreibe("12345");
    probe.e->Picture1.maus_geklickt(30, 170);
    EXPECT_THAT(probe.geladen, ElementsAre("passau.met"));
    EXPECT_EQ(probe.e->Klimaregionwahl.index(), 10);
    EXPECT_EQ(probe.e->plz.text(), "");
    EXPECT_EQ(probe.p->Geaendert, 1);

    probe.e->plz.schreibe("12345");
    probe.e->Picture1.maus_geklickt(5, 5);
    EXPECT_EQ(probe.e->plz.text(), "");
    ohne_bild = true;
    probe.e->Picture1.maus_geklickt(100, 30);
    EXPECT_THAT(probe.geladen, SizeIs(1));
    ohne_bild = false;
    probe.e->Picture1.maus_geklickt(100, 30);
    EXPECT_THAT(probe.geladen, ElementsAre("passau.met", "bremen.met"));
}

TEST_F(Deutschlandkarte, DerHinweisKommtUndGehtMitDenZeitgebern) {
    Anzeige& hinweis = probe.e->Label2;
    auto& zeitgeber = probe.plattform.zeitgeber;
    probe.e->Picture1.maus_bewegt(35, 135);
    EXPECT_EQ(hinweis.platz(), (Platz{35, 155}));
    EXPECT_EQ(hinweis.text(), " Klimaregion 3 : Ruhrgebiet und weitere \r Ballungsgebiete des Flachlandes ");
    EXPECT_FALSE(hinweis.sichtbar());
    ASSERT_EQ(zeitgeber.count("E_Klima.Timer1"), 1U);
    EXPECT_EQ(zeitgeber.at("E_Klima.Timer1").millisekunden, 1000);

    probe.plattform.lasse_ablaufen("E_Klima.Timer1");
    EXPECT_TRUE(hinweis.sichtbar());
    EXPECT_EQ(zeitgeber.count("E_Klima.Timer1"), 0U);
    probe.plattform.lasse_ablaufen("E_Klima.Timer2");
    EXPECT_FALSE(hinweis.sichtbar());

    probe.e->Picture1.maus_bewegt(75, 285);
    probe.plattform.lasse_ablaufen("E_Klima.Timer1");
    probe.e->Picture1.maus_bewegt(5, 5);
    EXPECT_FALSE(hinweis.sichtbar());
    EXPECT_EQ(zeitgeber.count("E_Klima.Timer1"), 0U);
    probe.e->Picture1.maus_bewegt(75, 285);
    probe.e->Picture1.maus_bewegt(-1, -1);
    EXPECT_EQ(zeitgeber.count("E_Klima.Timer1"), 0U);
}

TEST_F(Deutschlandkarte, BeiGleichenFarbenGewinntImKlickDieLetzteImHinweisDieErste) {
    pixel[{25, 175}] = pixel[{90, 140}];  // region 11 looks like region 4
    probe.e->Picture1.maus_bewegt(90, 140);
    EXPECT_THAT(probe.e->Label2.text(), HasSubstr("Klimaregion 4 "));
    probe.e->Picture1.maus_geklickt(90, 140);
    EXPECT_THAT(probe.geladen, ElementsAre("passau.met"));
}

TEST(Klimawahl, DiePostleitzahlWirdGesuchtOderErklaert) {
    struct Fall {
        std::string getippt;
        std::vector<std::string> geladen;
        std::string meldung, rest;
    };
    const std::string kurz = "Bitte Postleitzahl 5-stellig eingeben!";
    const std::string ohne = "Die Tabelle \"plz.txt\" enthält keine Klimaregion für die Postleitzahl 77777.";
    for (const Fall& fall :
         {Fall{"28259", {"bremen.met"}, "", "28259"}, Fall{"94032", {"passau.met"}, "", "94032"},
          Fall{"00123", {}, "  Keine gültige Postleitzahl!  ", ""}, Fall{"5429", {}, kurz, "5429"},
          Fall{"D-542", {}, kurz, "542"}, Fall{"77777", {}, ohne, "77777"}}) {
        Klimaprobe probe;
        probe.oeffne(nummer(Klimabereich::deutschland), "trier.met");
        probe.e->plz.tippe(fall.getippt);
        probe.e->plz.bestaetige();
        EXPECT_EQ(probe.geladen, fall.geladen) << fall.getippt;
        EXPECT_EQ(probe.e->plz.text(), fall.rest);
        EXPECT_EQ(probe.p->Geaendert, fall.geladen.empty() ? 0 : 1);
        ASSERT_THAT(probe.plattform.meldungen, SizeIs(fall.meldung.empty() ? 0 : 1)) << fall.getippt;
        if (fall.meldung.empty()) continue;
        EXPECT_EQ(probe.plattform.meldungen[0].text, fall.meldung);
        EXPECT_EQ(probe.plattform.meldungen[0].symbol, Symbol::ausrufezeichen);
    }
}

TEST(Klimawahl, EineFehlendeTabelleDerPostleitzahlenWirdGenannt) {
    Klimaprobe probe;
    probe.oeffne(nummer(Klimabereich::deutschland), "trier.met");
    std::filesystem::remove(probe.ordner / "klima/plz.txt");
    probe.e->plz.tippe("28259");
    probe.e->PLZsuchen.druecke();
    ASSERT_THAT(probe.plattform.meldungen, SizeIs(1));
    EXPECT_THAT(probe.plattform.meldungen[0].text, HasSubstr("plz.txt: Datei nicht gefunden"));
}

TEST(Klimawahl, ImProgrammFolgenBeideKlimaebenenDerWahl) {
    Testprogramm programm;
    Haupt& haupt = *programm.haupt;
    EXPECT_EQ(haupt.a_klima.anz_klimaregion.text(), "Trier (Deutschland)");
    EXPECT_EQ(haupt.e_klima.anz_MittelJahrTemp.text(), haupt.a_klima.anz_MittelJahrTemp.text());
    EXPECT_NE(haupt.e_klima.anz_MittelJahrTemp.text(), "");
    EXPECT_EQ(haupt.e_klima.Option.gesetzt(), nummer(Klimabereich::europa));
    EXPECT_EQ(haupt.e_klima.Klimaregionwahl2.text(), "Trier (Deutschland)");
    EXPECT_EQ(programm.p().Geaendert, 0);

    const float bedarf = programm.p().qh;
    programm.ordner.schreibe("klima/fern.met", test::Stationsdatei{.ort = "Fern (Ausland)"}.text());
    programm.plattform.sanduhren.clear();
    haupt.e_klima.Klimaregionwahl2.setze(0);
    EXPECT_EQ(programm.p().Klimadatei, "fern.met");
    EXPECT_EQ(haupt.a_klima.anz_klimaregion.text(), "Fern (Ausland)");
    for (const Anzeige* mittel : {&haupt.e_klima.anz_MittelJahrTemp, &haupt.a_klima.anz_MittelJahrTemp})
        EXPECT_EQ(mittel->text(), "10.0");
    EXPECT_NE(programm.p().qh, bedarf);
    EXPECT_EQ(programm.p().Geaendert, 1);
    EXPECT_FALSE(programm.plattform.sanduhren.empty());
    EXPECT_FALSE(programm.plattform.sanduhren.back());
}

}  // namespace
}  // namespace velmaris
