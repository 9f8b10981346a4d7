#include "tools/climate/stationsliste.h"

#include "toolkit/fehler.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace velmaris::klimasatz {
namespace {

std::string monate_der(const std::string& gruppe) {
    std::string spalten;
    for (const char* nummer : {"01", "02", "03", "04", "05", "06", "07", "08", "09", "10", "11", "12"})
        spalten.append(",").append(gruppe).append("_").append(nummer);
    return spalten;
}

const std::string kopf = "name,land,datei,breite_n,laenge_o,hoehe_m,utc_h" + monate_der("ta") +
                         monate_der("dtr") + monate_der("ghi") + "\n";
const std::string monatszahlen =
    ",1,2,3,4,5,6,7,8,9,10,11,12.5,5,5,5,5,5,5,5,5,5,5,5,5.5,20,40,75,110,148,143,146,129,83,48,25,16.8\n";
const std::string zeile = "Bogotá,Kolumbien,bogota.met,4.706,-74.151,2547,-5" + monatszahlen;

std::string ersetzt(std::string text, const std::string& alt, const std::string& neu) {
    return text.replace(text.find(alt), alt.size(), neu);
}

TEST(Stationsliste, LiestDieFakten) {
    const auto stationen = stationsliste(kopf + zeile, "liste.csv");
    ASSERT_EQ(stationen.size(), 1U);
    const Stationsfakten& s = stationen[0];
    EXPECT_EQ(s.name + "/" + s.land + "/" + s.datei, "Bogotá/Kolumbien/bogota.met");
    EXPECT_EQ(s.breite_n, 4.706);
    EXPECT_EQ(s.laenge_o, -74.151);
    EXPECT_EQ(s.hoehe_m, 2547);
    EXPECT_EQ(s.utc_h, -5);
    EXPECT_EQ(s.ta(1), 1);
    EXPECT_EQ(s.ta(12), 12.5);
    EXPECT_EQ(s.dtr(12), 5.5);
    EXPECT_EQ(s.ghi(12), 16.8);
    EXPECT_EQ(s.zeile, 2);
    // Longitude 74.151 west in the zone 5 h west: the sun is 0.849 degrees ahead of the clock.
    EXPECT_NEAR(standort(s).Laengenkorrektur, -0.849, 1e-5);
    EXPECT_NEAR(standort(s).Breite, 0.0821197, 1e-7);
}

/// Each broken list with the message that it must give.
TEST(Stationsliste, NenntDateiZeileUndFeldDesFehlers) {
    struct Fall {
        std::string text;
        std::string meldung;
    };
    const std::string zweite = ersetzt(zeile, "bogota.met", "lima.met");
    const std::vector<Fall> faelle{
        {ersetzt(kopf, ",ta_07", ",ta_7") + zeile, "l.csv, line 1 (ta_07): the column is missing"},
        {kopf + ersetzt(zeile, ",12.5,", ",,"), "l.csv, line 2 (ta_12): the entry is missing"},
        {kopf + ersetzt(zeile, "Kolumbien", ""), "l.csv, line 2 (land): the entry is missing"},
        {kopf + ersetzt(zeile, ",146,", ",-1,"), "l.csv, line 2 (ghi_07): -1 is not within 0.0 .. 400.0"},
        {kopf + ersetzt(zeile, ",12.5,", ",61,"), "l.csv, line 2 (ta_12): 61 is not within"},
        {kopf + ersetzt(zeile, ",5.5,", ",0,"), "l.csv, line 2 (dtr_12): 0 is not within"},
        {kopf + ersetzt(zeile, "4.706", "90.1"), "l.csv, line 2 (breite_n): 90.1 is not within"},
        {kopf + ersetzt(zeile, "-74.151", "-180.5"), "l.csv, line 2 (laenge_o): -180.5 is not within"},
        {kopf + ersetzt(zeile, ",2547", ",9000"), "l.csv, line 2 (hoehe_m): 9000 is not within"},
        {kopf + ersetzt(zeile, ",-5,", ",-5.1,"), "l.csv, line 2 (utc_h): no whole quarters"},
        {kopf + ersetzt(zeile, ",-5,", ",15,"), "l.csv, line 2 (utc_h): 15 is not within"},
        {kopf + ersetzt(zeile, "Bogotá", "Łódź"), "l.csv, line 2 (name): character outside windows-1252"},
        {kopf + ersetzt(zeile, "Bogotá", "Bogot\xE1"),
         "l.csv, line 2 (name): character outside windows-1252"},
        {kopf + ersetzt(zeile, "bogota.met", "Bogota.met"), "l.csv, line 2 (datei): capitals"},
        {kopf + ersetzt(zeile, "bogota.met", "bogota.txt"),
         "l.csv, line 2 (datei): no name of a station file"},
        {kopf + ersetzt(zeile, "bogota.met", ".met"), "l.csv, line 2 (datei): no name of a station file"},
        {kopf + ersetzt(zeile, "bogota.met", "klima.met"),
         "l.csv, line 2 (datei): no name of a station file"},
        {kopf + ersetzt(zeile, "bogota.met", "../bogota.met"),
         "l.csv, line 2 (datei): no name of a station file"},
        {kopf + zeile + zweite + zeile, "l.csv, line 4 (datei): bogota.met stands in line 2 already"},
    };
    for (const Fall& fall : faelle) {
        try {
            (void)stationsliste(fall.text, "l.csv");
            ADD_FAILURE() << "accepted: " << fall.meldung;
        } catch (const Dateifehler& fehler) {
            EXPECT_THAT(fehler.text("e"), testing::StartsWith(fall.meldung));
        }
    }
}

}  // namespace
}  // namespace velmaris::klimasatz
