#include "documents/report/report.h"

#include "documents/report/rtf_lesen.h"
#include "tests/documents/unterlagen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>
#include <utility>

namespace velmaris {
namespace {

using test::Unterlagen;
using test::Zeilen;
using testing::Contains;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::Not;

/// The cells of a text between tabs; a rule is told by its length.
std::string zellen(const std::string& text) {
    if (text.ends_with("____")) return "_" + std::to_string(text.size() - text.find('_'));
    std::istringstream leser(text);
    Zeilen alle;
    for (std::string zelle; std::getline(leser, zelle, '\t');)
        alle.push_back(zelle);
    return test::zeile(alle);
}

/// The style of a row as far as its first piece tells it: size and tab stops in points, b, i, u for bold,
/// italic and underlined, c for centred.
std::string form(const Absatz& absatz) {
    const Textstueck& erstes = absatz.stuecke.front();
    std::ostringstream form;
    form << erstes.groesse << (erstes.fett ? "b" : "") << (erstes.kursiv ? "i" : "")
         << (erstes.unterstrichen ? "u" : "") << (absatz.zentriert ? "c" : "");
    for (const double tab : absatz.tabstopps)
        form << ' ' << tab;
    return form.str();
}

/// Page 0..7 of the report as a reader sees it, a text for each row, with its style where it changes.
Zeilen report(const Dokumentquelle& quelle, int seite) {
    Zeilen zeilen;
    std::string vorher;
    for (const Absatz& absatz : rtf_lesen(report_in_sprache(quelle, seite))) {
        std::string text;
        for (const Textstueck& stueck : absatz.stuecke) {
            EXPECT_EQ(stueck.schrift, "Times New Roman");
            text += (stueck.tiefgestellt ? "_" : "") + stueck.text;
        }
        const bool neu = !absatz.stuecke.empty() && std::exchange(vorher, form(absatz)) != form(absatz);
        zeilen.push_back((neu ? "[" + vorher + "]" : "") + zellen(text));
    }
    return zeilen;
}

TEST(Report, JedeZeileZeigtIhrenWertDesDatensatzes) {
    for (const char* sprache : {"d", "e"}) {
        Unterlagen u(sprache);
        std::size_t alle = 0;
        for (int seite = 1; seite <= reportseiten; ++seite) {
            const Zeilen soll = test::seite(u, "report/seiten", seite);
            EXPECT_THAT(report(u.quelle, seite), ElementsAreArray(soll)) << sprache << seite;
            alle += soll.size();
        }
        EXPECT_EQ(report(u.quelle, 0).size(), alle);
        constexpr int strom_statt_seite_6 = 8;
        u.quelle.energie.name = strom_name;
        EXPECT_THAT(report(u.quelle, 6),
                    ElementsAreArray(test::seite(u, "report/seiten", strom_statt_seite_6)));
    }
}

TEST(Report, OhneHeizwaermebedarfStehtNull) {
    Unterlagen u("d");
    u.p->qhs_sum = 1E-10F;
    const Zeilen zeilen = report(u.quelle, 6);
    EXPECT_EQ(zeilen.at(zeilen.size() - 13), "M1|0.0|0.0|0.0|0.0|0.0|0.0");
    EXPECT_EQ(zeilen.at(zeilen.size() - 2), "M12|0.0|0.0|0.0|0.0|0.0|0.0");
}

TEST(Report, DachUndNachbarnNachDerWahl) {
    Unterlagen u("e");
    u.p->Option_Dachfirst = 2;
    EXPECT_THAT(report(u.quelle, 1), Contains("Roof ridge:|in east-west-direction"));
    u.p->hd = 0;
    EXPECT_THAT(report(u.quelle, 1), Not(Contains(HasSubstr("Roof ridge"))));
    u.p->Check_Dachgeschoss = u.p->aws = u.p->awo = 0;
    const Zeilen zeilen = report(u.quelle, 1);
    EXPECT_THAT(zeilen, Not(Contains(HasSubstr("Height of roof"))));
    EXPECT_THAT(zeilen,
                testing::IsSupersetOf({"Upper floor:", "Towards:|<Dachraum>",
                                       "Walls towards another heated area:|north, south, east, west"}));
}

TEST(Report, ZeichenDesFormatsBleibenText) {
    Unterlagen u("d");
    u.p->Stationsname = R"(A{b}\c)";
    EXPECT_THAT(report(u.quelle, 1), Contains(R"([10 215]Klimastation:|A{b}\c)"));
}

}  // namespace
}  // namespace velmaris
