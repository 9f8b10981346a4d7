#include "climate/planes/kartenweg.h"

#include "tests/climate/planes/klimaprobe.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>
#include <tuple>

namespace velmaris {
namespace {

using Richtung = Kartenweg::Richtung;
using test::Klimaprobe;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr int deutschland = nummer(Klimabereich::deutschland);
constexpr int europa = nummer(Klimabereich::europa);
constexpr int welt = nummer(Klimabereich::welt);
constexpr Richtung pfeile[]{Richtung::links, Richtung::rechts, Richtung::oben, Richtung::unten};

/// The region to which the way leads from another one.
int nachbar(Klimaprobe& probe, int region, Richtung richtung) {
    probe.e->Klimaregionwahl.markiere(region - 1);
    probe.e->regionenweg.beginne();
    probe.e->regionenweg.gehe(richtung);
    return std::stoi(probe.e->regionenweg.name());
}

TEST(Kartenweg, PfeileFuehrenZurNaechstenRegionUndZuJeder) {
    Klimaprobe probe;
    probe.oeffne(deutschland, "trier.met");
    for (const auto& [von, richtung, nach] : {std::tuple{4, Richtung::unten, 6},
                                              {6, Richtung::links, 11},
                                              {11, Richtung::oben, 3},
                                              {2, Richtung::links, 4},
                                              {12, Richtung::rechts, 8},
                                              {2, Richtung::rechts, 2},
                                              {5, Richtung::vor, 6},
                                              {12, Richtung::vor, 12},
                                              {5, Richtung::zurueck, 4},
                                              {1, Richtung::zurueck, 1},
                                              {7, Richtung::anfang, 1},
                                              {7, Richtung::ende, 12}})
        EXPECT_EQ(nachbar(probe, von, richtung), nach) << von;
    std::set<int> erreicht{1};
    for (std::size_t vorher = 0; vorher != erreicht.size();) {
        vorher = erreicht.size();
        for (const int region : std::set<int>(erreicht))
            for (const Richtung richtung : pfeile)
                erreicht.insert(nachbar(probe, region, richtung));
    }
    EXPECT_EQ(erreicht.size(), 12U);
}

TEST(Kartenweg, DieRegionWirdGenanntUndErstAufWunschGenommen) {
    Klimaprobe probe;
    probe.oeffne(deutschland, "trier.met");
    Kartenweg& weg = probe.e->regionenweg;
    const Anzeige& hinweis = probe.e->Label2;
    weg.beginne();
    EXPECT_EQ(weg.ort(), (Kartenpunkt{90, 140}));
    weg.gehe(Richtung::unten);
    EXPECT_THAT(hinweis.text(), HasSubstr("Klimaregion 6 "));
    EXPECT_EQ(hinweis.platz(), (Platz{70, 220}));
    EXPECT_TRUE(hinweis.sichtbar());
    EXPECT_THAT(probe.geladen, ElementsAre());
    weg.gehe(Richtung::ende);
    weg.gehe(Richtung::zurueck);
    weg.nimm();
    EXPECT_THAT(probe.geladen, ElementsAre("passau.met"));
    weg.beende();
    EXPECT_FALSE(hinweis.sichtbar());
    EXPECT_EQ(weg.ort(), std::nullopt);
    EXPECT_EQ(weg.name(), "");
    weg.gehe(Richtung::vor);
    weg.nimm();
    EXPECT_EQ(weg.ort(), std::nullopt) << "the focus is elsewhere";
}

/// On the map of the world the station comes into view; in the window over it everything is larger.
TEST(Kartenweg, StationenAufDenKartenEuropasUndDerWelt) {
    Klimaprobe probe;
    E_Klima& e = *probe.e;
    probe.oeffne(europa, "tokyo.met");
    e.europaweg.beginne();
    EXPECT_EQ(e.europaweg.name(), "Bremen (Deutschland)") << "the chosen one is not on the map";
    e.europaweg.gehe(Richtung::unten);
    EXPECT_EQ(e.europaweg.name(), "Trier (Deutschland)");
    e.europaweg.gehe(Richtung::rechts);
    EXPECT_EQ(e.MausRegion.text(), "Passau (Deutschland)");
    e.europaweg.nimm();
    EXPECT_THAT(probe.geladen, ElementsAre("passau.met"));
    e.europaweg.beende();
    EXPECT_EQ(e.MausRegion.text(), "");

    probe.oeffne(welt, "honolulu.met");
    e.weltweg.beginne();
    EXPECT_EQ(e.HScroll1.position(), 0);
    e.weltweg.gehe(Richtung::ende);
    e.weltweg.gehe(Richtung::rechts);
    e.weltweg.gehe(Richtung::rechts);
    EXPECT_EQ(e.MausRegion.text(), "Tokyo (Japan)");
    EXPECT_EQ(e.HScroll1.position(), e.HScroll1.maximum());
    const double x = e.weltweg.ort()->x;
    e.weltweg.nimm();
    EXPECT_THAT(probe.geladen, ElementsAre("tokyo.met"));

    e.zoom.oeffnen();
    e.zoom.weg.beginne();
    EXPECT_EQ(e.zoom.weg.name(), "Tokyo (Japan)");
    EXPECT_DOUBLE_EQ(e.zoom.weg.ort()->x, 1.5 * x);
}

}  // namespace
}  // namespace velmaris
