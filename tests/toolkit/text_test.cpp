#include "toolkit/text.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace velmaris {
namespace {

TEST(Windows1252, JedesByteKommtZurueck) {
    std::set<std::string> gesehen;
    for (int byte = 0; byte < 256; ++byte) {
        const std::string roh(1, static_cast<char>(byte));
        const std::string utf8 = aus_windows1252(roh);
        EXPECT_EQ(nach_windows1252(utf8), roh) << byte;
        EXPECT_EQ(zeichenzahl(utf8), 1U) << byte;
        gesehen.insert(utf8);
    }
    EXPECT_EQ(gesehen.size(), 256U);
}

TEST(Windows1252, KenntDieUmlauteUndErsetztFremdes) {
    EXPECT_EQ(nach_windows1252("Längengrad ß €"), "L\xE4ngengrad \xDF \x80");
    EXPECT_EQ(nach_windows1252("Łódź 🏠"),
              "?\xF3"
              "d? ?");
    EXPECT_EQ(nach_windows1252("\xC3"), "?");
    EXPECT_EQ(nach_windows1252("\xE2\x82z"), "??z");
}

TEST(Text, ZaehltUndFuelltNachZeichen) {
    EXPECT_EQ(rechtsbuendig("-10.5", 10), "     -10.5");
    EXPECT_EQ(rechtsbuendig("Mär", 5), "  Mär");
    EXPECT_EQ(rechtsbuendig("12345678901", 10), "12345678901");
}

TEST(Text, GrossUndKleinMitUmlauten) {
    EXPECT_EQ(kleinschreiben("WÜRZBURG.MET"), "würzburg.met");
    EXPECT_EQ(grossschreiben("straße übung.vel"), "STRAßE ÜBUNG.VEL");
    EXPECT_EQ(kleinschreiben("A×B÷C 🏠"), "a×b÷c 🏠");
}

TEST(Pfad, NimmtBeideTrenner) {
    EXPECT_EQ(pfadtext(pfad("\\klima\\münchen.met")), "/klima/münchen.met");
    EXPECT_EQ(pfadtext(pfad("a/ü")), "a/ü");
}

}  // namespace
}  // namespace velmaris
