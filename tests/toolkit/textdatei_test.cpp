#include "toolkit/textdatei.h"

#include "tests/hilfen.h"
#include "tests/volle_festplatte.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace velmaris {
namespace {

namespace fs = std::filesystem;
using test::inhalt;
using test::Testordner;
using testing::AnyOf;
using testing::HasSubstr;

/// The English message of the fault that an act with a file ends in, empty if it succeeds.
std::string fehler_bei(const std::function<void()>& tu) {
    try {
        tu();
        return {};
    } catch (const Dateifehler& fehler) {
        return fehler.text("e");
    }
}

std::ptrdiff_t dateien_in(const Testordner& ordner) {
    return std::distance(fs::directory_iterator(ordner.pfad()), {});
}

TEST(Listenleser, TrenntAnKommaUndZeilenende) {
    Listenleser leser("eins , zwei\r\n\r\n  drei,\nvier");
    const std::vector<std::pair<std::string, int>> erwartet{{"eins ", 1}, {"zwei", 1}, {"", 2},
                                                            {"drei", 3},  {"", 3},     {"vier", 4}};
    for (const auto& [text, zeile] : erwartet) {
        EXPECT_EQ(leser.naechster(), text);
        EXPECT_EQ(leser.zeile(), zeile);
    }
    EXPECT_FALSE(leser.naechster().has_value());
}

TEST(Zeilenleser, NimmtBeideZeilenendenUndSpaltenBisZumEnde) {
    Zeilenleser leser("a\r\n\nb");
    for (const char* zeile : {"a", "", "b"})
        EXPECT_EQ(leser.naechste(), zeile);
    EXPECT_EQ(leser.zeile(), 3);
    EXPECT_FALSE(leser.naechste().has_value());
    EXPECT_EQ(spalten("12345678", 6, 10), "678");
    EXPECT_EQ(spalten("12345", 6, 10), "");
}

TEST(BytesLesen, NurGewoehnlicheDateienBisZurGrenze) {
    const Testordner ordner;
    test::rohr_anlegen(ordner / "rohr.met");
    for (const auto& [name, grund] : {std::pair{"fehlt.vel", "file not found"},
                                      {".", "is a folder, not a file"},
                                      {"rohr.met", "is not a regular file and is not read"}})
        EXPECT_EQ(fehler_bei([&, name = name] { return anfang_lesen(ordner / name, 10); }),
                  pfadtext(ordner / name) + ": " + grund);
    fs::create_symlink(ordner.schreibe("lang.txt", std::string(100000, 'x')), ordner / "gut.met");
    for (const std::size_t laenge : {10U, 65537U, 70000U})
        EXPECT_EQ(anfang_lesen(ordner / "gut.met", laenge).size(), laenge);
    for (const auto& [grenze, wort] : {std::pair{64U << 10U, "64 KB"}, {2U << 20U, "2 MB"}}) {
        EXPECT_EQ(bytes_lesen(ordner.schreibe("gut.met", std::string(grenze, 'x')), grenze).size(), grenze);
        ordner.schreibe("gross.met", std::string(grenze + 1, 'x'));
        EXPECT_THAT(fehler_bei([&, grenze = grenze] { return bytes_lesen(ordner / "gross.met", grenze); }),
                    HasSubstr(std::string("gross.met: the file is larger than ") + wort));
    }
}

TEST(DateiErsetzen, BehaeltDieRechteUndSchreibtDurchEinenVerweis) {
    const Testordner ordner;
    const auto datei = ordner / std::string(255, 'n');  // the longest name
    datei_ersetzen(datei, "alt");
    constexpr fs::perms lesen_schreiben = fs::perms::owner_read | fs::perms::owner_write;
    EXPECT_EQ(fs::status(datei).permissions() & fs::perms::owner_all, lesen_schreiben);
    fs::permissions(datei, lesen_schreiben | fs::perms::group_exec);
    fs::create_symlink(datei.filename(), ordner / "größe.txt");
    datei_ersetzen(ordner / "größe.txt", "neu");
    EXPECT_TRUE(fs::is_symlink(ordner / "größe.txt"));
    EXPECT_EQ(inhalt(datei), "neu");
    EXPECT_EQ(fs::status(datei).permissions(), lesen_schreiben | fs::perms::group_exec);
    EXPECT_TRUE(datei_anlegen(ordner / "neu.txt", "neu"));
    EXPECT_EQ(dateien_in(ordner), 3);
}

TEST(DateiErsetzen, EinFehlerLaesstDieAlteDateiGanz) {
    const Testordner ordner;
    const auto datei = ordner.schreibe("haus.txt", "alt");
    const std::string viel(100000, 'x');
    {
        const test::VolleFestplatte voll(1000);
        EXPECT_THAT(fehler_bei([&] { datei_ersetzen(datei, viel); }), HasSubstr("cannot be written"));
        EXPECT_THAT(fehler_bei([&] { return datei_anlegen(ordner / "neu.txt", viel); }),
                    HasSubstr("cannot be written"));
    }
    EXPECT_THAT(fehler_bei([&] { datei_ersetzen(ordner / "kein/ordner.txt", "neu"); }),
                HasSubstr("no such folder"));
    EXPECT_EQ(inhalt(datei), "alt");
    EXPECT_EQ(dateien_in(ordner), 1);
}

TEST(DateiErsetzen, WeigertSichBeiZielenDieKeineSind) {
    const Testordner ordner;
    const auto fest = ordner.schreibe("fest.txt", "alt");
    fs::permissions(fest, fs::perms::owner_read | fs::perms::group_read);
    fs::create_symlink("nirgends.txt", ordner / "leer");
    fs::create_symlink("kreis", ordner / "kreis");
    fs::create_symlink(fest, ordner / "zum_festen");
    test::rohr_anlegen(ordner / "rohr");
    for (const auto& [name, grund] : {std::pair{".", "is a folder, not a file"},
                                      {"fest.txt", "is write-protected"},
                                      {"zum_festen", "is write-protected"},
                                      {"leer", "is a link that leads nowhere"},
                                      {"kreis", "is a link that leads nowhere"},
                                      {"rohr", "is not a regular file"}})
        EXPECT_EQ(fehler_bei([&, name = name] { datei_ersetzen(ordner / name, "neu"); }),
                  pfadtext(ordner / name) + ": " + grund);
    EXPECT_FALSE(datei_anlegen(fest, "neu") || datei_anlegen(ordner / "leer", "neu"));
    EXPECT_EQ(inhalt(fest), "alt");
    EXPECT_EQ(dateien_in(ordner), 5);
}

TEST(DateiErsetzen, VonMehrerenSchreibernGewinntEinerGanz) {
    const Testordner ordner;
    const std::string kurz(20000, 'a');
    const std::string lang(30000, 'b');
    const auto datei = ordner.schreibe("haus.vel", kurz);
    std::thread anderer([&] {
        for (int i = 0; i < 100; ++i)
            datei_ersetzen(datei, lang);
    });
    for (int i = 0; i < 100; ++i) {
        datei_ersetzen(datei, kurz);
        EXPECT_THAT(inhalt(datei), AnyOf(kurz, lang));
    }
    anderer.join();
    EXPECT_EQ(dateien_in(ordner), 1);
}

}  // namespace
}  // namespace velmaris
