#include "tools/pictures/postleitzahlen.h"

#include "tests/hilfen.h"
#include "tests/tools/pictures/kartenprobe.h"
#include "toolkit/fehler.h"
#include "toolkit/textdatei.h"
#include "toolkit/zahlen.h"

#include <gtest/gtest.h>
#include <map>
#include <string>

namespace velmaris {
namespace {

/// Region by prefix as the search of the program reads the table, item by item.
std::map<std::string, double> tabelle_lesen() {
    const std::string bytes = test::inhalt(test::programmordner() / "klima" / "plz.txt");
    std::map<std::string, double> regionen;
    Listenleser leser(bytes);
    while (const auto posten = leser.naechster()) {
        EXPECT_EQ(posten->size(), 6U) << *posten;
        const bool neu =
            regionen.emplace(std::string(spalten(*posten, 1, 3)), zahl_lesen(spalten(*posten, 5, 6))).second;
        EXPECT_TRUE(neu) << *posten << " twice";
    }
    EXPECT_EQ(bytes.size(), 8U * 1000);
    EXPECT_EQ(bytes.substr(0, 16), "000; 0\r\n001; 0\r\n");
    return regionen;
}

TEST(Postleitzahlen, JederAnfangStehtEinmalMitSeinerRegion) {
    const auto regionen = tabelle_lesen();
    ASSERT_EQ(regionen.size(), 1000U);
    for (auto& zeile : test::fakten("plz_region.csv")) {
        EXPECT_EQ(regionen.at(zeile["prefix"]), zahl_lesen(zeile["region"])) << zeile["prefix"];
    }
}

TEST(Postleitzahlen, BekannteStaedteLiegenInIhrerRegion) {
    const auto regionen = tabelle_lesen();
    const struct {
        std::string anfang, stadt;
        double region;
    } faelle[] = {
        {"281", "Bremen", 1},    {"101", "Berlin", 3},    {"200", "Hamburg", 3},  {"542", "Trier", 4},
        {"970", "Würzburg", 5},  {"603", "Frankfurt", 6}, {"791", "Freiburg", 7}, {"803", "München", 9},
        {"784", "Konstanz", 12}, {"000", "none", 0},
    };
    for (const auto& fall : faelle) {
        EXPECT_EQ(regionen.at(fall.anfang), fall.region) << fall.stadt;
    }
}

TEST(Postleitzahlen, DoppelterAnfangWirdAbgelehnt) {
    std::string bytes = test::inhalt(test::datenordner() / "plz_region.csv");
    const std::size_t ort = bytes.find("\n500,");
    ASSERT_NE(ort, std::string::npos);
    bytes.replace(ort + 1, 3, "499");
    const test::Testordner ordner;
    const auto datei = ordner.schreibe("plz.csv", bytes);
    EXPECT_THROW((void)bilder::postleitzahlen_text(datei), Dateifehler);
}

}  // namespace
}  // namespace velmaris
