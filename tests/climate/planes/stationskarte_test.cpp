#include "climate/planes/stationskarte.h"

#include "tests/climate/planes/klimaprobe.h"
#include "tests/rekorder_flaeche.h"

#include <gtest/gtest.h>
#include <tuple>

namespace velmaris {
namespace {

using test::Losplattform;
using Art = Zeichnung::Art;

/// A map with four stations: two at one place, one within reach of a click but not of the pointer, one far
/// away.
class Karte : public testing::Test {
  protected:
    Karte() {
        liste.fuelle(stationsnamen(stationen));
        liste.gewaehlt = [this] { ++gewaehlt; };
        karte.verbinden();
    }

    /// The pointer moves to a place whose colour is given.
    std::string zeige(double x, double y, std::optional<Farbe> farbe) {
        unter_der_maus = farbe;
        bild.maus_bewegt(x, y);
        return MausRegion.text();
    }

    Losplattform plattform;
    const std::vector<Station> stationen{{"Adorf", "a.met", {50, 40}},
                                         {"Bheim", "b.met", {50, 40}},
                                         {"Cstadt", "c.met", {52.5, 40}},
                                         {"Dburg", "d.met", {90, 70}}};
    Bildfeld bild{"Picture2"};
    Auswahlliste liste{"Klimaregionwahl2"};
    Anzeige MausRegion{"MausRegion"};
    std::optional<Farbe> unter_der_maus;
    Kartenfarbe kartenfarbe = [this](const Bildfeld&, double, double) { return unter_der_maus; };
    int gewaehlt = 0;
    Stationskarte karte{plattform, stationen, 1, 2, bild, liste, MausRegion, kartenfarbe};
};

TEST_F(Karte, MaltGelbePunkteUndZuletztDenRoten) {
    const auto punkte = [this] { return RekorderFlaeche(100, 80, bild.zeichnen).alle(Art::kreis); };
    ASSERT_EQ(punkte().size(), 5U);
    EXPECT_EQ(punkte()[3].zahlen, (std::vector<double>{90, 70, 2}));
    for (const auto& [i, farbe] : {std::pair{0U, farben::gelb}, {3U, farben::gelb}, {4U, farben::rot}}) {
        EXPECT_EQ(punkte()[i].farbe, farbe);
        EXPECT_EQ(punkte()[i].fuellung, farbe);
    }
    liste.markiere(2);
    EXPECT_EQ(punkte()[4].zahlen, (std::vector<double>{52.5, 40, 2}));
    liste.schreibe("Fern");
    EXPECT_EQ(punkte()[4].zahlen, (std::vector<double>{-10, -10, 2}));
}

TEST_F(Karte, DerZeigerLostEineStationInSeinerNaeheAus) {
    // The lots 0, 0.25, 0.5 and 0.99 draw the stations 0, 1, 2 and 3.
    using Fall = std::tuple<std::vector<double>, double, double, const char*, int>;
    for (const auto& [lose, x, y, name, gezogen] :
         {Fall{{0}, 50, 40, "Adorf", 1}, Fall{{0.99, 0.5, 0.25, 0}, 50, 40, "Bheim", 3},
          Fall{{0.5}, 50, 40, "", 250}, Fall{{0.99}, 88.1, 71.9, "Dburg", 1}, Fall{{0.99}, 88, 70, "", 250},
          Fall{{0.99}, 90, 72, "", 250}}) {
        plattform.lose = lose;
        for (const Farbe punkt : {farben::gelb, farben::rot}) {
            plattform.gezogen = 0;
            EXPECT_EQ(zeige(x, y, punkt), name);
            EXPECT_EQ(plattform.gezogen, gezogen);
        }
    }
    for (const auto& neben : {std::optional(Farbe{255, 255, 1}), std::optional<Farbe>()}) {
        MausRegion.schreibe("Adorf");
        EXPECT_EQ(zeige(50, 40, neben), "");
    }
}

TEST_F(Karte, EinKlickNimmtDieStationBisZumGezeigtenNamen) {
    using Fall = std::tuple<double, std::optional<Farbe>, const char*, int>;
    for (const auto& [x, farbe, name, index] :
         {Fall{50, farben::gelb, "Adorf", 0}, Fall{50, farben::gelb, "Bheim", 1},
          Fall{50, farben::gelb, "Cstadt", 2}, Fall{50, farben::gelb, "Dburg", 2},
          Fall{49.5, farben::gelb, "Dburg", 1}, Fall{50, farben::gelb, "Aachen", -1},
          Fall{50, farben::gelb, "", -1}, Fall{53, farben::gelb, "Adorf", -1},
          Fall{50, farben::rot, "Adorf", -1}, Fall{50, {}, "Adorf", -1}}) {
        gewaehlt = 0;
        unter_der_maus = farbe;
        MausRegion.schreibe(name);
        liste.markiere(-1);
        bild.maus_geklickt(x, 40);
        EXPECT_EQ(liste.index(), index) << x << name;
        EXPECT_EQ(gewaehlt, index < 0 ? 0 : 1);
    }
}

}  // namespace
}  // namespace velmaris
