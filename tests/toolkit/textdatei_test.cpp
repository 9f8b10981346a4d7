#include "toolkit/textdatei.h"

#include "tests/hilfen.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace velmaris {
namespace {

using test::inhalt;
using test::Testordner;

TEST(Listenleser, TrenntAnKommaUndZeilenende) {
    Listenleser leser("eins , zwei\r\n\r\n  drei,\nvier");
    const std::vector<std::pair<std::string, int>> erwartet{{"eins ", 1}, {"zwei", 1}, {"", 2},
                                                            {"drei", 3},  {"", 3},     {"vier", 4}};
    for (const auto& [text, zeile] : erwartet) {
        const auto posten = leser.naechster();
        ASSERT_TRUE(posten.has_value());
        EXPECT_EQ(*posten, text);
        EXPECT_EQ(leser.zeile(), zeile);
    }
    EXPECT_FALSE(leser.naechster().has_value());
}

TEST(Zeilenleser, NimmtBeideZeilenenden) {
    Zeilenleser leser("a\r\n\nb");
    EXPECT_EQ(leser.naechste(), "a");
    EXPECT_EQ(leser.naechste(), "");
    EXPECT_EQ(leser.naechste(), "b");
    EXPECT_EQ(leser.zeile(), 3);
    EXPECT_FALSE(leser.naechste().has_value());
}

TEST(Spalten, SchneidetAmZeilenende) {
    EXPECT_EQ(spalten("12345678", 6, 10), "678");
    EXPECT_EQ(spalten("12345", 6, 10), "");
    EXPECT_EQ(spalten("", 1, 5), "");
}

TEST(BytesLesen, NenntDateiUndGrund) {
    const Testordner ordner;
    EXPECT_THROW(inhalt(ordner.pfad()), Dateifehler);
    try {
        inhalt(ordner / "fehlt.vel");
        FAIL();
    } catch (const Dateifehler& fehler) {
        EXPECT_NE(std::string(fehler.what()).find("fehlt.vel: Datei nicht gefunden"), std::string::npos);
        EXPECT_NE(fehler.text("e").find("file not found"), std::string::npos);
    }
    ordner.schreibe("lang.txt", std::string(100000, 'x'));
    EXPECT_EQ(anfang_lesen(ordner / "lang.txt", 10), "xxxxxxxxxx");
    EXPECT_EQ(bytes_lesen(ordner / "lang.txt").size(), 100000U);
}

}  // namespace
}  // namespace velmaris
