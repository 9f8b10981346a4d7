#include "toolkit/textdatei.h"

#include "tests/hilfen.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#ifdef __linux__
#include <sys/stat.h>
#endif

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
    struct Fall {
        const char *name, *de, *en;
    };
    for (const Fall& fall : {Fall{"fehlt.vel", "Datei nicht gefunden", "file not found"},
                             Fall{".", "ist ein Ordner, keine Datei", "is a folder, not a file"}}) {
        try {
            inhalt(ordner / fall.name);
            FAIL();
        } catch (const Dateifehler& fehler) {
            EXPECT_EQ(fehler.what(), pfadtext(ordner / fall.name) + ": " + fall.de);
            EXPECT_EQ(fehler.text("e"), pfadtext(ordner / fall.name) + ": " + fall.en);
        }
    }
    const Dateifehler genau("a.met", {"leer", "empty"}, 7, "Ta");
    EXPECT_EQ(genau.text("d"), "a.met, Zeile 7 (Ta): leer");
    EXPECT_EQ(genau.text("e"), "a.met, line 7 (Ta): empty");
    ordner.schreibe("lang.txt", std::string(100000, 'x'));
    for (const std::size_t laenge : {10U, 65537U, 70000U})
        EXPECT_EQ(anfang_lesen(ordner / "lang.txt", laenge).size(), laenge);
    EXPECT_EQ(bytes_lesen(ordner / "lang.txt", 100000).size(), 100000U);
}

TEST(BytesLesen, HatEineGrenze) {
    const Testordner ordner;
    for (const auto& [grenze, wort] :
         {std::pair<std::size_t, std::string>{65536, "64 KB"}, {std::size_t{2} << 20U, "2 MB"}}) {
        EXPECT_EQ(bytes_lesen(ordner.schreibe("gut.met", std::string(grenze, 'x')), grenze).size(), grenze);
        try {
            static_cast<void>(
                bytes_lesen(ordner.schreibe("gross.met", std::string(grenze + 1, 'x')), grenze));
            FAIL() << wort;
        } catch (const Dateifehler& fehler) {
            EXPECT_NE(fehler.text("d").find("gross.met: die Datei ist größer als " + wort), std::string::npos)
                << fehler.text("d");
        }
    }
}

#ifdef __linux__
TEST(BytesLesen, OeffnetNurGewoehnlicheDateien) {
    const Testordner ordner;
    ASSERT_EQ(::mkfifo((ordner / "rohr.met").c_str(), 0600), 0);
    std::filesystem::create_symlink("/dev/zero", ordner / "null.met");
    std::filesystem::create_symlink("rohr.met", ordner / "verweis.met");
    for (const char* name : {"rohr.met", "null.met", "verweis.met"}) {
        try {
            static_cast<void>(anfang_lesen(ordner / name, 10));
            FAIL() << name;
        } catch (const Dateifehler& fehler) {
            EXPECT_NE(fehler.text("e").find(std::string(name) + ": is not a regular file"), std::string::npos)
                << fehler.text("e");
        }
    }
    std::filesystem::create_symlink(ordner.schreibe("echt.met", "echt"), ordner / "gut.met");
    EXPECT_EQ(bytes_lesen(ordner / "gut.met", 4), "echt");
}
#endif

}  // namespace
}  // namespace velmaris
