#include "climate/stationslisten.h"

#include "climate/klimadatei.h"
#include "climate/postleitzahlen.h"
#include "tests/climate/stationsdatei.h"
#include "tests/hilfen.h"
#include "toolkit/fehler.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <tuple>
#include <vector>

namespace velmaris {
namespace {

using test::kopftext;
using test::Testordner;
using testing::ElementsAre;

TEST(Kartenpunkte, LiegenWoDieHandSieAusrechnet) {
    // Europe at 44.104 N, 4.797 E: y = 4.4 x 30 = 132, straight x = 30 x 92 / 30 = 92, and leaning
    // 92 + 0.55 x (1104 - 1193) / 31 = 90.42097. World at 90 degrees: 1.677777778 x 90 = 151.
    using Fall = std::tuple<double, double, Kartenpunkt, Kartenpunkt>;
    for (const auto& [breite, laenge, europa, welt] :
         {Fall{44.104, 4.797, {90.42097, 132}, {333.04830, 49.00329}},
          Fall{0, 0, {65.65238, 326.0576}, {325, 123}}, Fall{45, -90, {-260.28739, 128.0576}, {174, 47.5}}}) {
        EXPECT_NEAR(europapunkt(breite, laenge).x, europa.x, 1e-4);
        EXPECT_NEAR(europapunkt(breite, laenge).y, europa.y, 1e-4);
        EXPECT_NEAR(weltpunkt(breite, laenge).x, welt.x, 1e-4);
        EXPECT_NEAR(weltpunkt(breite, laenge).y, welt.y, 1e-4);
    }
}

/// A station file of a head only: its name, the station's name, degrees north and east.
using Kopf = std::tuple<std::string, std::string, double, double>;

void schreibe(const Testordner& ordner, const std::vector<Kopf>& stationen) {
    for (const auto& [datei, name, breite, laenge] : stationen)
        ordner.schreibe(datei, kopftext(name, breite, laenge));
}

TEST(Stationslisten, SindNachDenBytesDerNamenGeordnet) {
    const Testordner ordner;
    schreibe(ordner, {Kopf{"a.met", "aarau (CH)", 47, 8}, Kopf{"b.met", "\xC5lesund (N)", 62, 6},
                      Kopf{"c.met", "Z\xFCrich (CH)", 47, 8}, Kopf{"d.met", "\x8Aibenik (HR)", 43, 16},
                      Kopf{"GROSS.MET", "Aachen (D)", 51, 6}, Kopf{"f.met", "Tokyo (J)", 35.7, 139.8}});
    const Stationslisten listen = stationslisten_lesen({ordner.pfad()});
    EXPECT_THAT(stationsnamen(listen.Welt), ElementsAre("Aachen (D)", "Tokyo (J)", "Zürich (CH)",
                                                        "aarau (CH)", "Šibenik (HR)", "Ålesund (N)"));
    EXPECT_EQ(listen.Europa.size(), 5U);
    EXPECT_EQ(stationsindex(listen.Welt, "GROSS.MET"), 0);
    EXPECT_EQ(stationsindex(listen.Europa, "f.met"), -1);
    EXPECT_NEAR(listen.Welt[1].ort.x, 325 + 1.677777778 * 139.8, 1e-9);
    EXPECT_NEAR(listen.Europa[3].ort.y, 4.4 * 31.104, 1e-9);
}

TEST(Stationslisten, EuropaEndetAmRandDesBildes) {
    const Testordner ordner;
    schreibe(ordner, {Kopf{"a.met", "Ecke", 74.104, -25.203}, Kopf{"b.met", "oben", 74.2, 0},
                      Kopf{"c.met", "links", 74.104, -25.3}, Kopf{"d.met", "Unten", 28.7, 7.4},
                      Kopf{"e.met", "unter", 28.6, 7.4}, Kopf{"f.met", "Rechts", 60, 42},
                      Kopf{"g.met", "rechts", 60, 60}, Kopf{"h.met", "fern", 40.7, -74}});
    const Stationslisten listen = stationslisten_lesen({ordner.pfad()});
    EXPECT_THAT(stationsnamen(listen.Europa), ElementsAre("Ecke", "Rechts", "Unten"));
}

TEST(Stationslisten, SchlechteDateienKostenNurSichSelbst) {
    const Testordner ordner;
    schreibe(ordner, {Kopf{"gut.met", "Gut (D)", 50, 10}, Kopf{"klima.met", "Vorlage (D)", 50, 10},
                      Kopf{"Klima.MET", "Vorlage (D)", 50, 10}, Kopf{"notiz.txt", "Notiz (D)", 50, 10},
                      Kopf{"namenlos.met", "", 50, 10},
                      Kopf{"lang.met", std::string(hoechste_kopfgroesse, 'x'), 50, 10}});
    ordner.schreibe("leer.met", "");
    ordner.schreibe("kurz.met", "Kurz (D)\r\nBreitengrad:  50\r\n");
    ordner.schreibe("ordner.met/inhalt.txt", "kein Kopf");
    const Stationslisten listen = stationslisten_lesen({ordner.pfad()});
    EXPECT_THAT(stationsnamen(listen.Welt), ElementsAre("Gut (D)", "namenlos.met"));
}

TEST(Stationslisten, DerErsteOrdnerGehtVor) {
    const Testordner ordner;
    schreibe(ordner,
             {Kopf{"eigen/b.met", "Eigen B", 50, 10}, Kopf{"eigen/c.met", "Eigen C", 50, 10},
              Kopf{"programm/a.met", "Programm A", 50, 10}, Kopf{"programm/b.met", "Programm B", 50, 10}});
    const Stationslisten listen =
        stationslisten_lesen({ordner / "eigen", ordner / "fehlt", ordner / "programm"});
    EXPECT_THAT(stationsnamen(listen.Welt), ElementsAre("Eigen B", "Eigen C", "Programm A"));
}

TEST(Postleitzahlen, FindenIhreRegion) {
    const Testordner ordner;
    const auto tabelle =
        ordner.schreibe("plz.txt", "010; 2\r\n011;11,012; 0\r\n013;13\r\n014;-1\r\n010; 7\r\n");
    using Fall = std::pair<const char*, std::optional<int>>;
    for (const auto& [plz, region] :
         {Fall{"01099", 2}, Fall{"01109", 11}, Fall{"01234", 0}, Fall{"01307", {}}, Fall{"01444", {}},
          Fall{"99999", {}}, Fall{"01", {}}})
        EXPECT_EQ(region_der_postleitzahl(tabelle, plz), region) << plz;
    EXPECT_THROW(static_cast<void>(region_der_postleitzahl(ordner / "fehlt.txt", "01099")), Dateifehler);
}

}  // namespace
}  // namespace velmaris
