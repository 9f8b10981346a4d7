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
    E_Zoom_Klima& zoom = e.zoom;
    EXPECT_FALSE(zoom.ebene.sichtbar());
    EXPECT_EQ(zoom.ebene.text() + zoom.Command2.text(), "Klimastationen - WeltAbbrechen");
    EXPECT_EQ(zoom.Picture1.bild().filename(), "welt_gross.bmp");
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

    probe.karten_sehen();
    e.Image1.druecke();
    probe.plattform.lose = {4 / 6.0 + 0.01};
    zoom.Picture1.maus_bewegt(839, 95);  // 1.5 x (559.55, 63.10)
    EXPECT_EQ(zoom.MausRegion.text(), "Tokyo (Japan)");
    EXPECT_EQ(e.MausRegion.text(), "");
    zoom.Picture1.maus_geklickt(839, 95);
    EXPECT_EQ(zoom.Klimaregionwahl2.text(), "Tokyo (Japan)");
    EXPECT_EQ(Klimaprobe::farbe(zoom.Picture1, 839, 95), farben::rot);
    EXPECT_EQ(Klimaprobe::farbe(zoom.Picture1, 510, 51), farben::gelb);  // Bremen no longer
}

}  // namespace
}  // namespace velmaris
