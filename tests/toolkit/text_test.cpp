#include "toolkit/text.h"

#include "toolkit/auszeichnung.h"
#include "toolkit/csv.h"

#include <gtest/gtest.h>
#include <numeric>
#include <string>

namespace velmaris {
namespace {

TEST(Windows1252, JedesByteKommtZurueck) {
    std::string bytes(256, '\0');
    std::iota(bytes.begin(), bytes.end(), '\0');
    const std::string utf8 = aus_windows1252(bytes);
    EXPECT_EQ(nach_windows1252(utf8), bytes);
    EXPECT_EQ(zeichenzahl(utf8), 256U);
    EXPECT_NE(utf8.find("\x7F€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ\u00A0"),
              std::string::npos);
}

TEST(Windows1252, KenntDieUmlauteUndErsetztFremdes) {
    EXPECT_EQ(nach_windows1252("Längengrad ß €"), "L\xE4ngengrad \xDF \x80");
    EXPECT_EQ(nach_windows1252("Łóź 🏠 \xC3 \xE2\x82z"), "?\xF3? ? ? ??z");
    EXPECT_TRUE(in_windows1252("Größe €"));
    EXPECT_FALSE(in_windows1252("Łódź"));
}

TEST(Text, KenntGanzeZeichen) {
    for (const char* gut : {"", "az", "\u0080", "\u07FF", "\u0800", "\uFFFD", "\U0010FFFF"})
        EXPECT_TRUE(ist_utf8(gut)) << gut;
    for (const char* schlecht :
         {"\xC3", "\xC3z", "\x80", "\xC1\x81", "\xF5\x80\x80\x80", "\xE2\x82z", "a\xFF"})
        EXPECT_FALSE(ist_utf8(schlecht)) << schlecht;
}

TEST(Text, MachtSteuerzeichenSichtbar) {
    for (const char* steuernd : {"\x1F", "\x7F", "\u0080", "\u009F"}) {
        EXPECT_TRUE(hat_steuerzeichen(std::string("a") + steuernd));
        EXPECT_EQ(lesbar(steuernd), "\uFFFD");
    }
    EXPECT_FALSE(hat_steuerzeichen(" ~\u00A0€"));
    EXPECT_EQ(lesbar(" ~\u00A0€🏠\xC3"), " ~\u00A0€🏠\uFFFD");
}

TEST(Csvtext, SetztAnfuehrungszeichenNurWoEsSeinMuss) {
    Csvtext tabelle;
    for (const char* zelle : {"Größe [m²]", "", "a,b", "\"a\"", "a\r\nb\xFF"})
        tabelle.zelle(zelle);
    tabelle.zeilenende();
    tabelle.zelle(0.5F);
    tabelle.zelle("x y");
    tabelle.zeilenende();
    EXPECT_EQ(tabelle.text(), "Größe [m²],,\"a,b\",\"\"\"a\"\"\",a\uFFFD\uFFFDb\uFFFD\r\n0.5,x y\r\n");
}

TEST(Text, GrossUndKleinMitUmlauten) {
    EXPECT_EQ(kleinschreiben("WÜRZBURG.MET"), "würzburg.met");
    EXPECT_EQ(grossschreiben("straße übung.vel"), "STRAßE ÜBUNG.VEL");
    EXPECT_EQ(kleinschreiben("@AZ[ ÀÖ×ØÞß÷ 🏠"), "@az[ àö×øþß÷ 🏠");
    EXPECT_EQ(grossschreiben("`az{ àö÷øþÿ× 🏠"), "`AZ{ ÀÖ÷ØÞÿ× 🏠");
}

TEST(Text, FuelltNachZeichenUndNimmtBeideTrennerVonPfaden) {
    EXPECT_EQ(rechtsbuendig("Mär", 5), "  Mär");
    EXPECT_EQ(rechtsbuendig("12345678901", 10), "12345678901");
    EXPECT_EQ(pfadtext(pfad("\\klima/münchen.met")), "/klima/münchen.met");
}

TEST(Auszeichnung, SchuetztIhreZeichen) {
    EXPECT_EQ(maskiert("Klima & \"Wetter\" < 5 > ä"), "Klima &amp; &quot;Wetter&quot; &lt; 5 &gt; ä");
}

}  // namespace
}  // namespace velmaris
