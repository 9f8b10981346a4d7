#include "documents/report/temperaturverlauf.h"

#include "tests/documents/unterlagen.h"
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
        const auto jahr = test::seite(u, "report/temperaturen", 1);
        const auto februar = test::seite(u, "report/temperaturen", 2);
        auto alle_monate = februar;
        alle_monate.erase(alle_monate.begin() + 5, alle_monate.begin() + 7);  // the month's name
        alle_monate.front() = "";
        alle_monate.back() = jahr.back();
        const std::array soll{jahr, februar, alle_monate};
        for (std::size_t i = 0; i < 3; ++i) {
            const auto ist = zeilen(texte.at(i));
            const auto& kopf = soll.at(i);
            EXPECT_EQ(test::Zeilen(ist.begin(), ist.begin() + std::ssize(kopf)), kopf) << sprache << i;
            EXPECT_EQ(ist.size() - kopf.size() + 1, (i == 1 ? 28U : 365U) * 24) << sprache << i;
            EXPECT_EQ(ist.back().substr(0, 30) + ist.back().substr(40),
                      i == 1 ? "        28         2        24       0.0       0.0"
                             : "        31        12        24       7.3123456792.0");
        }
    }
}

}  // namespace
}  // namespace velmaris
