#include "climate/planes/E_Klima.h"
#include "tests/climate/planes/klimaprobe.h"
#include "tests/climate/stationsdatei.h"
#include "tests/testprogramm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <tuple>

namespace velmaris {
namespace {

using test::Klimaprobe;
using test::Testprogramm;
using testing::ElementsAre;
using testing::HasSubstr;

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
    Bildfeld& karte = probe.e->Picture1;
    std::map<std::pair<int, int>, Farbe> pixel;
    bool ohne_bild = false;
};

TEST_F(Deutschlandkarte, EinKlickNimmtDieRegionSeinerFarbe) {
    pixel[{100, 30}] = {1, 0, 0};
    pixel[{25, 175}] = pixel[{90, 140}];  // region 11 looks like region 4: the last one is taken
    probe.e->plz.schreibe("12345");
    karte.maus_geklickt(5, 5);
    EXPECT_EQ(probe.e->plz.text(), "");
    ohne_bild = true;
    karte.maus_geklickt(100, 30);
    EXPECT_THAT(probe.geladen, testing::IsEmpty());
    ohne_bild = false;
    karte.maus_geklickt(90, 140);
    karte.maus_geklickt(100, 30);
    EXPECT_THAT(probe.geladen, ElementsAre("passau.met", "bremen.met"));
    karte.maus_bewegt(90, 140);
    EXPECT_THAT(probe.e->Label2.text(), HasSubstr("Klimaregion 4 ")) << "the first one is told";
}

TEST_F(Deutschlandkarte, DerHinweisKommtUndGehtMitDenZeitgebern) {
    const Anzeige& hinweis = probe.e->Label2;
    for (std::size_t i = 0; i < bezugspixel.size(); ++i) {
        const auto [x, y] = bezugspixel[i];
        karte.maus_bewegt(x, y);
        EXPECT_EQ(hinweis.platz(), (Platz{static_cast<double>(x), y + 20.0}));
        EXPECT_THAT(hinweis.text(), HasSubstr(" Klimaregion " + std::to_string(i + 1) + " :"));
        EXPECT_FALSE(hinweis.sichtbar());
        EXPECT_EQ(probe.plattform.zeitgeber.at("E_Klima.Timer1").millisekunden, 1000);
        probe.plattform.lasse_ablaufen("E_Klima.Timer1");
        EXPECT_TRUE(hinweis.sichtbar());
    }
    EXPECT_EQ(probe.plattform.zeitgeber.at("E_Klima.Timer2").millisekunden, 4000);
    probe.plattform.lasse_ablaufen("E_Klima.Timer2");
    EXPECT_FALSE(hinweis.sichtbar());
    karte.maus_bewegt(75, 285);
    karte.maus_bewegt(5, 5);
    EXPECT_FALSE(hinweis.sichtbar());
    EXPECT_FALSE(probe.plattform.zeitgeber.contains("E_Klima.Timer1"));
}

TEST(Klimawahl, DiePostleitzahlWirdGesuchtOderErklaert) {
    const std::string kurz = "Bitte Postleitzahl 5-stellig eingeben!";
    const std::string ohne = "Die Tabelle \"plz.txt\" enthält keine Klimaregion für die Postleitzahl 77777.";
    using Fall = std::tuple<std::string, std::vector<std::string>, std::string, std::string>;
    for (const auto& [getippt, geladen, meldung, rest] :
         {Fall{"28259", {"bremen.met"}, "", "28259"},
          Fall{"00123", {}, "  Keine gültige Postleitzahl!  ", ""}, Fall{"5429", {}, kurz, "5429"},
          Fall{"D-542", {}, kurz, "542"}, Fall{"77777", {}, ohne, "77777"}}) {
        Klimaprobe probe;
        probe.oeffne(nummer(Klimabereich::deutschland), "trier.met");
        probe.e->plz.tippe(getippt);
        probe.e->plz.bestaetige();
        EXPECT_EQ(probe.geladen, geladen) << getippt;
        EXPECT_EQ(probe.e->plz.text(), rest);
        EXPECT_EQ(probe.plattform.meldungen.empty() ? "" : probe.plattform.meldungen[0].text, meldung);
    }
    Klimaprobe probe;
    std::filesystem::remove(probe.ordner / "klima/plz.txt");
    probe.e->plz.tippe("28259");
    probe.e->PLZsuchen.druecke();
    EXPECT_THAT(probe.plattform.meldungen.at(0).text, HasSubstr("plz.txt: Datei nicht gefunden"));
}

TEST(EZoomKlima, NimmtDieWahlNurMitDerBestaetigungMit) {
    Klimaprobe probe;
    probe.oeffne(3, "paris.met");
    E_Klima& e = *probe.e;
    E_Zoom_Klima& zoom = e.zoom;
    for (Knopf* knopf : {&zoom.Command2, &zoom.Command1}) {
        e.Image1.druecke();
        EXPECT_TRUE(zoom.ebene.sichtbar());
        EXPECT_EQ(zoom.Klimaregionwahl2.text(), "Paris (Frankreich)");
        zoom.Klimaregionwahl2.setze(0);
        EXPECT_TRUE(probe.geladen.empty());
        knopf->druecke();
        EXPECT_FALSE(zoom.ebene.sichtbar());
        EXPECT_EQ(e.Klimaregionwahl2.index(), knopf == &zoom.Command1 ? 0 : 2);
    }
    EXPECT_EQ(probe.geladen, std::vector<std::string>{"bremen.met"});

    zoom.kartenfarbe = Klimaprobe::farbe;
    e.Image1.druecke();
    probe.plattform.lose = {4 / 6.0 + 0.01};
    zoom.Picture1.maus_bewegt(839, 95);  // 1.5 x (559.55, 63.10)
    EXPECT_EQ(zoom.MausRegion.text(), "Tokyo (Japan)");
    zoom.Picture1.maus_geklickt(839, 95);
    EXPECT_EQ(zoom.Klimaregionwahl2.text(), "Tokyo (Japan)");
    EXPECT_EQ(Klimaprobe::farbe(zoom.Picture1, 839, 95), farben::rot);
    EXPECT_EQ(Klimaprobe::farbe(zoom.Picture1, 510, 51), farben::gelb);  // Bremen no longer
}

TEST(Klimawahl, ImProgrammFolgenBeideKlimaebenenDerWahl) {
    Testprogramm programm;
    Haupt& haupt = *programm.haupt;
    const float bedarf = programm.p().qh;
    programm.ordner.schreibe("klima/fern.met", test::Stationsdatei{.ort = "Fern (Ausland)"}.text());
    haupt.e_klima.Klimaregionwahl2.setze(0);
    EXPECT_EQ(programm.p().Klimadatei, "fern.met");
    EXPECT_EQ(haupt.a_klima.anz_klimaregion.text(), "Fern (Ausland)");
    EXPECT_EQ(haupt.e_klima.anz_MittelJahrTemp.text() + haupt.a_klima.anz_MittelJahrTemp.text(), "10.010.0");
    EXPECT_NE(programm.p().qh, bedarf);
    EXPECT_EQ(programm.p().Geaendert, 1);
    EXPECT_FALSE(programm.plattform.sanduhren.back());
}

}  // namespace
}  // namespace velmaris
