#include "tests/hilfen.h"
#include "tests/tools/pictures/kartenprobe.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"
#include "tools/csv.h"
#include "tools/pictures/postleitzahlen.h"
#include "tools/pictures/umrisse.h"

#include <gtest/gtest.h>
#include <string>

namespace velmaris::bilder {
namespace {

using test::Testordner;

/// As the search of the program reads the table: region and prefix in fixed columns.
TEST(Postleitzahlen, JederAnfangStehtDerReiheNachMitSeinerRegion) {
    std::string tabelle;
    const std::string fakten = test::inhalt(test::datenordner() / "plz_region.csv");
    for (const Csvzeile& zeile : csv_lesen(fakten, "plz", {"prefix", "region"}))
        tabelle += zeile.text("prefix") + ";" + rechtsbuendig(zeile.text("region"), 2) + "\r\n";
    EXPECT_EQ(test::inhalt(pfad(VELMARIS_PROGRAMMORDNER) / "klima" / "plz.txt"), tabelle);
}

TEST(Lesen, NenntDateiZeileUndFeldDesFehlers) {
    const std::string kopf = "ring,loch,lon,lat\n", regionskopf = "region,teil,ring,punkt,lon,lat\n";
    std::string doppelt = test::inhalt(test::datenordner() / "plz_region.csv");
    const auto umriss = [](const auto& datei) { (void)umriss_lesen(datei); };
    const auto linien = [](const auto& datei) { (void)linien_lesen(datei); };
    const auto regionen = [](const auto& datei) { (void)regionen_lesen(datei); };
    const auto postleitzahlen = [](const auto& datei) { (void)postleitzahlen_text(datei); };
    const struct {
        std::string inhalt;
        void (*lesen)(const std::filesystem::path&);
        std::string meldung;
    } faelle[] = {
        {doppelt.replace(doppelt.find("\n500,"), 4, "\n499"), postleitzahlen,
         ", line 502 (prefix): 499 is not in order"},
        {kopf + "1,0,180.5,0\n", umriss, ", line 2 (lon): 180.5 is not within -180.0 .. 180.0"},
        {kopf + "1,0,0,-90.5\n", umriss, ", line 2 (lat): -90.5 is not within -90.0 .. 90.0"},
        {kopf + "1,0,0,0\n1,0,4,0\n1,0,4,3\n1,0,0,1\n", umriss, ", line 5 (lon): the ring is not closed"},
        {kopf + "1,0,4,0\n1,0,4,0\n1,0,4,0\n2,0,4,0\n", umriss, ", line 4 (lon): the ring is not closed"},
        {"linie,lon,lat\n1,0,0\n1,4,0\n2,1,1\n", linien, ", line 4 (linie): the line has one point only"},
        {regionskopf + "13,1,0,1,9,50\n", regionen, ", line 2 (region): 13 is not within 1.0 .. 12.0"},
        {"prefix,region\n000,0\n", postleitzahlen, ": not 1000 prefixes"},
    };
    const Testordner ordner;
    for (const auto& [inhalt, lesen, meldung] : faelle) {
        const auto datei = ordner.schreibe("f.csv", inhalt);
        try {
            lesen(datei);
            ADD_FAILURE() << "accepted: " << meldung;
        } catch (const Dateifehler& fehler) {
            EXPECT_EQ(fehler.text("e"), pfadtext(datei) + meldung);
        }
    }
}

}  // namespace
}  // namespace velmaris::bilder
