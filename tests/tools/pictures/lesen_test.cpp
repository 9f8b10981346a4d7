#include "tests/hilfen.h"
#include "toolkit/fehler.h"
#include "tools/pictures/postleitzahlen.h"
#include "tools/pictures/umrisse.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>

namespace velmaris::bilder {
namespace {

using test::Testordner;

using Leser = std::function<void(const std::filesystem::path&)>;

const Leser umriss = [](const std::filesystem::path& datei) { (void)umriss_lesen(datei); };
const Leser linien = [](const std::filesystem::path& datei) { (void)linien_lesen(datei); };
const Leser regionen = [](const std::filesystem::path& datei) { (void)regionen_lesen(datei); };
const Leser postleitzahlen = [](const std::filesystem::path& datei) { (void)postleitzahlen_text(datei); };

TEST(Umriss, LiestRingeDerReiheNach) {
    const Testordner ordner;
    const auto datei = ordner.schreibe("land.csv",
                                       "ring,loch,lon,lat\n1,0,0,0\n1,0,4,0\n1,0,4,-3.5\n1,0,0,0\r\n"
                                       "2,1,1,1\n2,1,2,1\n2,1,2,2\n2,1,1,1\n");
    const Flaeche flaeche = umriss_lesen(datei);
    ASSERT_EQ(flaeche.size(), 2U);
    EXPECT_EQ(flaeche[0], (Ring{{0, 0}, {4, 0}, {4, -3.5}, {0, 0}}));
    EXPECT_EQ(flaeche[1].size(), 4U);
}

TEST(Lesen, NenntDateiZeileUndFeldDesFehlers) {
    const std::string kopf = "ring,loch,lon,lat\n", dreieck = "1,0,0,0\n1,0,4,0\n1,0,4,3\n1,0,0,0\n";
    const std::string regionskopf = "region,teil,ring,punkt,lon,lat\n";
    const struct {
        std::string name, inhalt;
        Leser lesen;
        std::string ort, grund;
    } faelle[] = {
        {"other head", "ring,loch,lon,lan\n", umriss, "line 1 (lat): ", "column is missing"},
        {"beyond 180 degrees", kopf + "1,0,180.5,0\n", umriss, "line 2 (lon): ", "180.5 is not within"},
        {"beyond the pole", kopf + "1,0,0,90.5\n", umriss, "line 2 (lat): ", "90.5 is not within"},
        {"open ring", kopf + "1,0,0,0\n1,0,4,0\n1,0,4,3\n1,0,0,1\n", umriss,
         "line 5 (lon): ", "ring is not closed"},
        {"ring cut short", kopf + dreieck + "2,0,0,0\n2,0,0,0\n", umriss,
         "line 7 (lon): ", "ring is not closed"},
        {"line of a point", "linie,lon,lat\n1,0,0\n1,4,0\n2,1,1\n", linien,
         "line 4 (linie): ", "one point only"},
        {"no such region", regionskopf + "13,1,0,1,9,50\n", regionen,
         "line 2 (region): ", "13 is not within"},
        {"region not whole", regionskopf + "1.5,1,0,1,9,50\n", regionen, "line 2 (region): ", "no whole"},
        {"prefixes missing", "prefix,region\n000,0\n", postleitzahlen, "plz.csv: ", "not 1000"},
    };
    for (const auto& fall : faelle) {
        const Testordner ordner;
        const auto datei = ordner.schreibe("plz.csv", fall.inhalt);
        try {
            fall.lesen(datei);
            ADD_FAILURE() << fall.name << ": no fault";
        } catch (const Dateifehler& fehler) {
            const std::string& text = fehler.text("e");
            EXPECT_NE(text.find("plz.csv"), std::string::npos) << fall.name << ": " << text;
            EXPECT_NE(text.find(fall.ort), std::string::npos) << fall.name << ": " << text;
            EXPECT_NE(text.find(fall.grund), std::string::npos) << fall.name << ": " << text;
        }
    }
}

}  // namespace
}  // namespace velmaris::bilder
