#include "tools/pictures/postleitzahlen.h"

#include "tests/hilfen.h"
#include "tests/tools/pictures/kartenprobe.h"
#include "toolkit/fehler.h"
#include "toolkit/textdatei.h"
#include "toolkit/zahlen.h"

#include <gtest/gtest.h>
#include <string>

namespace velmaris {
namespace {

/// As the search of the program reads the table, item by item.
TEST(Postleitzahlen, JederAnfangStehtDerReiheNachMitSeinerRegion) {
    const std::string bytes = test::inhalt(test::programmordner() / "klima" / "plz.txt");
    EXPECT_EQ(bytes.substr(0, 16), "000; 0\r\n001; 0\r\n");
    Listenleser leser(bytes);
    int anzahl = 0;
    for (const Csvzeile& zeile : test::fakten("plz_region.csv", {"prefix", "region"})) {
        const auto posten = leser.naechster().value_or("");
        EXPECT_EQ(spalten(posten, 1, 4), zeile.text("prefix") + ";");
        EXPECT_EQ(zahl_lesen(spalten(posten, 5, 6)), zeile.zahl("region", {0, 12})) << posten;
        ++anzahl;
    }
    EXPECT_EQ(anzahl, 1000);
    EXPECT_EQ(leser.naechster(), std::nullopt);
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
