#include "documents/report/temperaturverlauf.h"

#include "tests/documents/unterlagen.h"
#include "tests/hilfen.h"
#include "toolkit/textdatei.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

test::Zeilen zeilen(const std::string& text) {
    Zeilenleser leser(text);
    test::Zeilen alle;
    while (const auto zeile = leser.naechste())
        alle.emplace_back(*zeile);
    return alle;
}

TEST(Temperaturverlauf, KopfUndStunden) {
    for (const char* sprache : {"d", "e"}) {
        const test::Unterlagen u(sprache);
        Projekt& p = *u.p;
        p.Wetter(1, 1, 1).Ta = -10.5F;
        p.T_frei(1, 1, 1) = 19.96F;
        p.T_regel(1, 1, 1) = 20;
        p.Wetter(2, 1, 1).Ta = -3.04F;
        p.T_frei(12, 31, 24) = 7.26F;
        p.T_regel(12, 31, 24) = 123456789.0F;
        // the year file, the screen with February and with all months
        const std::array texte{jahrestemperaturen(p), temperaturverlauf_schreiben(p, 2),
                               temperaturverlauf_schreiben(p, 0)};
        for (int i = 1; i <= 3; ++i) {
            const auto alle = zeilen(texte.at(static_cast<std::size_t>(i - 1)));
            const auto soll = test::seite(u, "report/temperaturen", i);
            EXPECT_EQ(test::Zeilen(alle.begin(), alle.begin() + std::ssize(soll)), soll) << sprache << i;
            EXPECT_EQ(alle.size() - soll.size() + 1, (i == 2 ? 28U : 365U) * 24) << sprache << i;
            EXPECT_EQ(alle.back().substr(0, 30) + alle.back().substr(40),
                      i == 2 ? "        28         2        24       0.0       0.0"
                             : "        31        12        24       7.3123456792.0");
        }
    }
}

TEST(Temperaturverlauf, DieDateiIstWindows1252) {
    const test::Testordner ordner;
    temperaturverlauf_exportieren(*test::Unterlagen("d").p, ordner / "jahr.txt");
    const std::string bytes = test::inhalt(ordner / "jahr.txt");
    EXPECT_NE(bytes.find("Jahres-Temperaturverl\xE4ufe\r\n"), std::string::npos);
    EXPECT_TRUE(bytes.ends_with("\r\n"));
}

}  // namespace
}  // namespace velmaris
