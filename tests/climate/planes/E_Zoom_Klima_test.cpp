#include "climate/planes/E_Zoom_Klima.h"

#include "tests/climate/planes/klimaprobe.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::Klimaprobe;

TEST(EZoomKlima, NimmtDieWahlNurMitDerBestaetigungMit) {
    Klimaprobe probe;
    probe.oeffne(3, "paris.met");
    E_Klima& e = *probe.e;
    EXPECT_FALSE(e.zoom.ebene.sichtbar());
    EXPECT_EQ(e.zoom.ebene.text() + e.zoom.Command2.text(), "Klimastationen - WeltAbbrechen");
    EXPECT_EQ(e.zoom.Picture1.bild().filename(), "welt_gross.bmp");
    e.Image1.druecke();
    EXPECT_TRUE(e.zoom.ebene.sichtbar());
    EXPECT_EQ(e.zoom.Klimaregionwahl2.eintraege(), e.Klimaregionwahl2.eintraege());
    EXPECT_EQ(e.zoom.Klimaregionwahl2.index(), 2);

    for (Knopf* knopf : {&e.zoom.Command2, &e.zoom.Command1}) {
        e.Image1.druecke();
        e.zoom.Klimaregionwahl2.setze(0);
        EXPECT_TRUE(probe.geladen.empty());
        knopf->druecke();
        EXPECT_FALSE(e.zoom.ebene.sichtbar());
        EXPECT_EQ(e.Klimaregionwahl2.index(), knopf == &e.zoom.Command1 ? 0 : 2);
    }
    EXPECT_EQ(probe.geladen, std::vector<std::string>{"bremen.met"});
}

TEST(EZoomKlima, FindetStationenAufDerVergroessertenKarte) {
    Klimaprobe probe;
    probe.oeffne(3, "paris.met");
    probe.karten_sehen();
    E_Klima& e = *probe.e;
    e.Image1.druecke();
    probe.plattform.lose = {4 / 6.0 + 0.01};
    e.zoom.Picture1.maus_bewegt(839, 95);  // 1.5 x (559.55, 63.10)
    EXPECT_EQ(e.zoom.MausRegion.text(), "Tokyo (Japan)");
    EXPECT_EQ(e.MausRegion.text(), "");
    e.zoom.Picture1.maus_geklickt(839, 95);
    EXPECT_EQ(e.zoom.Klimaregionwahl2.text(), "Tokyo (Japan)");
    EXPECT_EQ(Klimaprobe::farbe(e.zoom.Picture1, 839, 95), farben::rot);
    EXPECT_EQ(Klimaprobe::farbe(e.zoom.Picture1, 493, 61), farben::gelb);  // Paris no longer
}

}  // namespace
}  // namespace velmaris
