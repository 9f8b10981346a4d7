#include "tools/climate/stationsliste.h"

#include "toolkit/fehler.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

namespace velmaris::klimasatz {
namespace {

std::string monate_der(const std::string& gruppe) {
    std::string spalten;
    for (int m = 1; m <= 12; ++m)
        spalten += "," + gruppe + (m < 10 ? "_0" : "_") + std::to_string(m);
    return spalten;
}

const std::string kopf = "name,land,datei,breite_n,laenge_o,hoehe_m,utc_h" + monate_der("ta") +
                         monate_der("dtr") + monate_der("ghi") + "\n";
const std::string zeile =
    "Bogotá,Kolumbien,bogota.met,4.706,-74.151,2547,-5,1,2,3,4,5,6,7,8,9,10,11,12.5,"
    "5,5,5,5,5,5,5,5,5,5,5,5.5,20,40,75,110,148,143,146,129,83,48,25,16.8\n";

std::string ersetzt(std::string text, const std::string& alt, const std::string& neu) {
    return text.replace(text.find(alt), alt.size(), neu);
}

TEST(Stationsliste, LiestDieFakten) {
    const auto stationen = stationsliste(kopf + zeile, "liste.csv");
    ASSERT_EQ(stationen.size(), 1U);
    const Stationsfakten& s = stationen[0];
    EXPECT_EQ(s.name + "/" + s.land + "/" + s.datei, "Bogotá/Kolumbien/bogota.met");
    const std::vector<double> zahlen{s.breite_n, s.laenge_o, s.hoehe_m, s.utc_h,  s.ta(1),
                                     s.ta(12),   s.dtr(12),  s.ghi(1),  s.ghi(12)};
    EXPECT_THAT(zahlen, testing::ElementsAre(4.706, -74.151, 2547, -5, 1, 12.5, 5.5, 20, 16.8));
    EXPECT_EQ(s.zeile, 2);
    // Longitude 74.151 west in the zone 5 h west: the sun is 0.849 degrees ahead of the clock.
    EXPECT_NEAR(standort(s).Laengenkorrektur, -0.849, 1e-5);
    EXPECT_NEAR(standort(s).Breite, 0.0821197, 1e-7);
}

/// What must not stand in the list's first row: replaced text, column and message.
TEST(Stationsliste, NenntDateiZeileUndFeldDesFehlers) {
    const struct {
        const char *alt, *neu, *feld, *grund;
    } faelle[] = {
        {",12.5,", ",61,", "ta_12", "61 is not within -60.0 .. 50.0"},
        {",5.5,", ",0,", "dtr_12", "0 is not within 0.5 .. 30.0"},
        {",146,", ",-1,", "ghi_07", "-1 is not within 0.0 .. 400.0"},
        {"4.706", "90.1", "breite_n", "90.1 is not within -90.0 .. 90.0"},
        {"-74.151", "-180.5", "laenge_o", "-180.5 is not within -180.0 .. 180.0"},
        {",2547", ",9000", "hoehe_m", "9000 is not within -430.0 .. 6000.0"},
        {",-5,", ",-5.1,", "utc_h", "no whole quarters of an hour"},
        {",-5,", ",15,", "utc_h", "15 is not within -12.0 .. 14.0"},
        {"Bogotá", "Łódź", "name", "character outside windows-1252"},
        {"bogota.met", "Bogota.met", "datei", "capitals in the file name"},
        {"bogota.met", "../bogota.met", "datei", "no name of a station file"},
    };
    const auto meldung = [](const std::string& text) {
        try {
            (void)stationsliste(text, "l.csv");
            return std::string("accepted");
        } catch (const Dateifehler& fehler) {
            return fehler.text("e");
        }
    };
    for (const auto& [alt, neu, feld, grund] : faelle)
        EXPECT_EQ(meldung(kopf + ersetzt(zeile, alt, neu)),
                  "l.csv, line 2 (" + std::string(feld) + "): " + grund);
    EXPECT_EQ(meldung(kopf + zeile + ersetzt(zeile, "bogota", "lima") + zeile),
              "l.csv, line 4 (datei): bogota.met stands in line 2 already");
    EXPECT_EQ(meldung(ersetzt(kopf, ",ta_07", ",ta_7") + zeile),
              "l.csv, line 1 (ta_07): the column is missing");
}

}  // namespace
}  // namespace velmaris::klimasatz
