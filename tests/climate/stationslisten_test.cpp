#include "climate/stationslisten.h"

#include "climate/klimadatei.h"
#include "climate/postleitzahlen.h"
#include "tests/climate/stationsdatei.h"
#include "tests/hilfen.h"
#include "toolkit/fehler.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::kopftext;
using test::Testordner;
using testing::ElementsAre;

/// The station with that file; fails the test if the list lacks it.
Station station(const std::vector<Station>& liste, const std::string& datei) {
    const int index = stationsindex(liste, datei);
    EXPECT_GE(index, 0) << datei;
    return index < 0 ? Station{} : liste[static_cast<std::size_t>(index)];
}

TEST(Kartenpunkte, LiegenWoDieHandSieAusrechnet) {
    struct Fall {
        double breite, laenge;
        Kartenpunkt europa, welt;
    };
    // Europe at 44.104 N, 4.797 E: y = 4.4 x 30 = 132, straight x = 30 x 92 / 30 = 92, and leaning
    // 92 + 0.55 x (1104 - 1193) / 31 = 90.42097. World at 90 degrees: 1.677777778 x 90 = 151.
    for (const Fall& fall :
         {Fall{44.104, 4.797, {90.42097, 132}, {333.04830, 49.00329}},
          Fall{74.104, -25.203, {0, 0}, {282.71497, -1.33004}}, Fall{0, 0, {65.65238, 326.0576}, {325, 123}},
          Fall{45, -90, {-260.28739, 128.0576}, {174, 47.5}}}) {
        EXPECT_NEAR(europapunkt(fall.breite, fall.laenge).x, fall.europa.x, 1e-4);
        EXPECT_NEAR(europapunkt(fall.breite, fall.laenge).y, fall.europa.y, 1e-4);
        EXPECT_NEAR(weltpunkt(fall.breite, fall.laenge).x, fall.welt.x, 1e-4);
        EXPECT_NEAR(weltpunkt(fall.breite, fall.laenge).y, fall.welt.y, 1e-4);
    }
}

TEST(Stationslisten, SindNachDenBytesDerNamenGeordnet) {
    const Testordner ordner;
    ordner.schreibe("a.met", kopftext("aarau (CH)", 47, 8));
    ordner.schreibe("b.met", kopftext("\xC5lesund (N)", 62, 6));
    ordner.schreibe("c.met", kopftext("Z\xFCrich (CH)", 47, 8));
    ordner.schreibe("d.met", kopftext("\x8Aibenik (HR)", 43, 16));
    ordner.schreibe("GROSS.MET", kopftext("Aachen (D)", 51, 6));
    ordner.schreibe("f.met", kopftext("Tokyo (J)", 35.7, 139.8));
    const Stationslisten listen = stationslisten_lesen({ordner.pfad()});
    EXPECT_THAT(stationsnamen(listen.Welt), ElementsAre("Aachen (D)", "Tokyo (J)", "Zürich (CH)",
                                                        "aarau (CH)", "Šibenik (HR)", "Ålesund (N)"));
    EXPECT_THAT(stationsnamen(listen.Europa),
                ElementsAre("Aachen (D)", "Zürich (CH)", "aarau (CH)", "Šibenik (HR)", "Ålesund (N)"));
    EXPECT_EQ(station(listen.Welt, "GROSS.MET").name, "Aachen (D)");
    EXPECT_EQ(stationsindex(listen.Europa, "f.met"), -1);
    EXPECT_NEAR(station(listen.Welt, "f.met").ort.x, 325 + 1.677777778 * 139.8, 1e-9);
    EXPECT_NEAR(station(listen.Europa, "d.met").ort.y, 4.4 * 31.104, 1e-9);
}

TEST(Stationslisten, EuropaEndetAmRandDesBildes) {
    struct Fall {
        std::string datei;
        double breite, laenge;
        bool drin;
    };
    const std::vector<Fall> faelle{{"ecke.met", 74.104, -25.203, true}, {"oben.met", 74.2, 0, false},
                                   {"links.met", 74.104, -25.3, false}, {"unten.met", 28.7, 7.4, true},
                                   {"sued.met", 28.6, 7.4, false},      {"rechts.met", 60, 42, true},
                                   {"ost.met", 60, 60, false},          {"new_york.met", 40.7, -74, false}};
    const Testordner ordner;
    for (const Fall& fall : faelle)
        ordner.schreibe(fall.datei, kopftext(fall.datei, fall.breite, fall.laenge));
    const Stationslisten listen = stationslisten_lesen({ordner.pfad()});
    EXPECT_EQ(listen.Welt.size(), faelle.size());
    for (const Fall& fall : faelle)
        EXPECT_EQ(stationsindex(listen.Europa, fall.datei) >= 0, fall.drin) << fall.datei;
}

TEST(Stationslisten, SchlechteDateienKostenNurSichSelbst) {
    const Testordner ordner;
    ordner.schreibe("gut.met", kopftext("Gut (D)", 50, 10));
    ordner.schreibe("klima.met", kopftext("Vorlage (D)", 50, 10));
    ordner.schreibe("Klima.MET", kopftext("Vorlage (D)", 50, 10));
    ordner.schreibe("notiz.txt", kopftext("Notiz (D)", 50, 10));
    ordner.schreibe("leer.met", "");
    ordner.schreibe("kurz.met", "Kurz (D)\r\nBreitengrad:  50\r\n");
    ordner.schreibe("ordner.met/inhalt.txt", "kein Kopf");
    ordner.schreibe("namenlos.met", kopftext("", 50, 10));
    ordner.schreibe("lang.met", kopftext(std::string(hoechste_kopfgroesse, 'x'), 50, 10));
    ordner.schreibe("komma.met", kopftext("Bad, Ort (D)", 49.75, 6.66));
    const Stationslisten listen = stationslisten_lesen({ordner.pfad()});
    EXPECT_THAT(stationsnamen(listen.Welt), ElementsAre("Bad", "Gut (D)", "namenlos.met"));
    // Behind the comma the rest of line 1 counts as the latitude, and the latitude as the longitude.
    EXPECT_NEAR(station(listen.Welt, "komma.met").ort.x, 325 - 1.677777778 * 49.75, 1e-9);
    EXPECT_EQ(station(listen.Welt, "komma.met").ort.y, 123);
}

TEST(Stationslisten, DerErsteOrdnerGehtVor) {
    const Testordner ordner;
    ordner.schreibe("eigen/b.met", kopftext("Eigen B", 50, 10));
    ordner.schreibe("eigen/c.met", kopftext("Eigen C", 50, 10));
    ordner.schreibe("programm/a.met", kopftext("Programm A", 50, 10));
    ordner.schreibe("programm/b.met", kopftext("Programm B", 50, 10));
    const Stationslisten listen =
        stationslisten_lesen({ordner / "eigen", ordner / "fehlt", ordner / "programm"});
    EXPECT_THAT(stationsnamen(listen.Welt), ElementsAre("Eigen B", "Eigen C", "Programm A"));
}

TEST(Postleitzahlen, FindenIhreRegion) {
    const Testordner ordner;
    const auto tabelle =
        ordner.schreibe("plz.txt", "010; 2\r\n011;11,012; 0\r\n013;13\r\n014;-1\r\n010; 7\r\n");
    struct Fall {
        std::string plz;
        std::optional<int> region;
    };
    for (const Fall& fall :
         {Fall{"01099", 2}, Fall{"01109", 11}, Fall{"01234", 0}, Fall{"01307", std::nullopt},
          Fall{"01444", std::nullopt}, Fall{"99999", std::nullopt}, Fall{"01", std::nullopt}})
        EXPECT_EQ(region_der_postleitzahl(tabelle, fall.plz), fall.region) << fall.plz;
    EXPECT_THROW(static_cast<void>(region_der_postleitzahl(ordner / "fehlt.txt", "01099")), Dateifehler);
}

}  // namespace
}  // namespace velmaris
