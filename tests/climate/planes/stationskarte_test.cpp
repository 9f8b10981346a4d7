#include "climate/planes/stationskarte.h"

#include "tests/climate/planes/klimaprobe.h"
#include "tests/rekorder_flaeche.h"

#include <gtest/gtest.h>

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

    /// A click there, with that name shown.
    int klicke(double x, double y, std::optional<Farbe> farbe, const std::string& name) {
        unter_der_maus = farbe;
        MausRegion.schreibe(name);
        liste.markiere(-1);
        bild.maus_geklickt(x, y);
        return liste.index();
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
    EXPECT_EQ(punkte().size(), 5U);
    EXPECT_EQ(punkte()[3].zahlen, (std::vector<double>{90, 70, 2}));
    for (const std::size_t i : {0U, 3U, 4U}) {
        const Farbe farbe{255, static_cast<std::uint8_t>(i < 4 ? 255 : 0), 0};
        EXPECT_EQ(punkte()[i].farbe, farbe);
        EXPECT_EQ(punkte()[i].fuellung, farbe);
    }
    liste.markiere(2);
    EXPECT_EQ(punkte()[4].zahlen, (std::vector<double>{52.5, 40, 2}));
    liste.schreibe("Fern");
    EXPECT_EQ(punkte()[4].zahlen, (std::vector<double>{-10, -10, 2}));
}

TEST_F(Karte, DerZeigerLostEineStationInSeinerNaeheAus) {
    struct Fall {
        std::vector<double> lose;
        double x, y;
        std::string name;
        int gezogen;
    };
    // The lots 0, 0.25, 0.5 and 0.99 draw the stations 0, 1, 2 and 3.
    for (const Fall& fall : {Fall{{0}, 50, 40, "Adorf", 1}, Fall{{0.99, 0.5, 0.25, 0}, 50, 40, "Bheim", 3},
                             Fall{{0.5}, 50, 40, "", 250}, Fall{{0.99}, 88.1, 71.9, "Dburg", 1},
                             Fall{{0.99}, 88, 70, "", 250}, Fall{{0.99}, 90, 72, "", 250}}) {
        plattform.lose = fall.lose;
        for (const Farbe punkt : {farben::gelb, farben::rot}) {
            plattform.gezogen = 0;
            EXPECT_EQ(zeige(fall.x, fall.y, punkt), fall.name);
            EXPECT_EQ(plattform.gezogen, fall.gezogen);
        }
    }
    for (const auto& neben : {std::optional(Farbe{255, 255, 1}), std::optional<Farbe>()}) {
        MausRegion.schreibe("Adorf");
        EXPECT_EQ(zeige(50, 40, neben), "");
    }
}

TEST_F(Karte, EinKlickNimmtDieStationBisZumGezeigtenNamen) {
    struct Fall {
        double x;
        std::optional<Farbe> farbe;
        std::string name;
        int index;
    };
    for (const Fall& fall : {Fall{50, farben::gelb, "Adorf", 0}, Fall{50, farben::gelb, "Bheim", 1},
                             Fall{50, farben::gelb, "Cstadt", 2}, Fall{50, farben::gelb, "Dburg", 2},
                             Fall{49.5, farben::gelb, "Dburg", 1}, Fall{50, farben::gelb, "Aachen", -1},
                             Fall{50, farben::gelb, "", -1}, Fall{53, farben::gelb, "Adorf", -1},
                             Fall{50, farben::rot, "Adorf", -1}, Fall{50, farben::weiss, "Adorf", -1},
                             Fall{50, std::nullopt, "Adorf", -1}}) {
        gewaehlt = 0;
        EXPECT_EQ(klicke(fall.x, 40, fall.farbe, fall.name), fall.index) << fall.x << fall.name;
        EXPECT_EQ(gewaehlt, fall.index < 0 ? 0 : 1);
    }
}

}  // namespace
}  // namespace velmaris
