#include "tests/hilfen.h"
#include "tests/volle_festplatte.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <vector>

namespace velmaris {
namespace {

namespace fs = std::filesystem;
using test::inhalt;
using test::Testordner;
using test::VolleFestplatte;

/// The English message of a failed replacement, empty if it succeeded.
std::string fehler_beim_ersetzen(const fs::path& datei, const std::string& bytes = "neu") {
    try {
        datei_ersetzen(datei, bytes);
        return {};
    } catch (const Dateifehler& fehler) {
        return fehler.text("e");
    }
}

std::ptrdiff_t dateien_in(const fs::path& ordner) {
    return std::distance(fs::directory_iterator(ordner), {});
}

TEST(DateiErsetzen, LaesstNurDieDateiZurueckUndBehaeltDieRechte) {
    const Testordner ordner;
    const auto datei = ordner / "größe.txt";
    datei_ersetzen(datei, "alt");
    EXPECT_EQ(fs::status(datei).permissions() & fs::perms::owner_all,
              fs::perms::owner_read | fs::perms::owner_write);
    constexpr fs::perms eng = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_exec;
    fs::permissions(datei, eng);
    datei_ersetzen(datei, "neu");
    EXPECT_EQ(inhalt(datei), "neu");
    EXPECT_EQ(fs::status(datei).permissions(), eng);
    EXPECT_EQ(dateien_in(ordner.pfad()), 1);
}

TEST(DateiErsetzen, EinFehlerLaesstDieAlteDateiGanz) {
    const Testordner ordner;
    const auto datei = ordner.schreibe("haus.txt", "alt");
    {
        const VolleFestplatte voll(1000);
        EXPECT_NE(fehler_beim_ersetzen(datei, std::string(100000, 'x')).find("cannot be written"),
                  std::string::npos);
        EXPECT_THROW(static_cast<void>(datei_anlegen(ordner / "neu.txt", std::string(100000, 'x'))),
                     Dateifehler);
    }
    EXPECT_EQ(inhalt(datei), "alt");
    EXPECT_EQ(dateien_in(ordner.pfad()), 1);
    EXPECT_THROW(datei_ersetzen(ordner / "kein/ordner.txt", "neu"), Dateifehler);
}

TEST(DateiErsetzen, WeigertSichBeiZielenDieKeineSind) {
    const Testordner ordner;
    const auto fest = ordner.schreibe("fest.txt", "alt");
    fs::permissions(fest, fs::perms::owner_read | fs::perms::group_read);
    fs::create_symlink("nirgends.txt", ordner / "leer");
    fs::create_symlink("kreis", ordner / "kreis");
    ASSERT_EQ(::mkfifo((ordner / "rohr").c_str(), 0600), 0);
    fs::create_symlink(fest, ordner / "zum_festen");
    struct Fall {
        fs::path ziel;
        const char* grund;
    };
    for (const Fall& fall : {Fall{ordner.pfad(), "is a folder"},
                             {fest, "write-protected"},
                             {ordner / "zum_festen", "write-protected"},
                             {ordner / "leer", "a link that leads nowhere"},
                             {ordner / "kreis", "a link that leads nowhere"},
                             {ordner / "rohr", "not a regular file"}}) {
        const std::string meldung = fehler_beim_ersetzen(fall.ziel);
        EXPECT_NE(meldung.find(fall.grund), std::string::npos) << fall.ziel << ": " << meldung;
        EXPECT_EQ(meldung.find(pfadtext(fall.ziel)), 0U) << meldung;
    }
    EXPECT_EQ(inhalt(fest), "alt");
    EXPECT_FALSE(fs::exists(ordner / "nirgends.txt"));
    EXPECT_EQ(dateien_in(ordner.pfad()), 5);
}

TEST(DateiErsetzen, SchreibtDurchEinenVerweisInSeinZiel) {
    const Testordner ordner;
    const auto ziel = ordner.schreibe("fern/haus.txt", "alt");
    fs::create_symlink("fern/haus.txt", ordner / "verweis");
    datei_ersetzen(ordner / "verweis", "neu");
    EXPECT_EQ(fehler_beim_ersetzen(ordner / std::string(255, 'n')), "") << "the longest name";
    EXPECT_TRUE(fs::is_symlink(ordner / "verweis"));
    EXPECT_EQ(inhalt(ziel), "neu");
}

TEST(DateiErsetzen, VonMehrerenSchreibernGewinntEinerGanz) {
    const Testordner ordner;
    const auto datei = ordner / "haus.vel";
    const std::vector<std::string> staende{std::string(20000, 'a'), std::string(25000, 'b'),
                                           std::string(30000, 'c')};
    datei_ersetzen(datei, staende[0]);
    std::vector<std::thread> schreiber;
    for (const std::string& stand : staende) {
        schreiber.emplace_back([&datei, &stand] {
            for (int i = 0; i < 50; ++i)
                datei_ersetzen(datei, stand);
        });
    }
    for (int i = 0; i < 200; ++i)
        EXPECT_EQ(std::count(staende.begin(), staende.end(), inhalt(datei)), 1);
    for (std::thread& einer : schreiber)
        einer.join();
    EXPECT_EQ(dateien_in(ordner.pfad()), 1);
}

TEST(DateiAnlegen, LaesstStehenWasDaIst) {
    const Testordner ordner;
    EXPECT_TRUE(datei_anlegen(ordner / "a.txt", "eins"));
    EXPECT_FALSE(datei_anlegen(ordner / "a.txt", "zwei"));
    EXPECT_EQ(inhalt(ordner / "a.txt"), "eins");
    fs::create_symlink("nirgends.txt", ordner / "leer");
    EXPECT_FALSE(datei_anlegen(ordner / "leer", "drei"));
    EXPECT_FALSE(fs::exists(ordner / "nirgends.txt"));
}

}  // namespace
}  // namespace velmaris
