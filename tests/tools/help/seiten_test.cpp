#include "tests/hilfen.h"
#include "tests/tools/help/html.h"
#include "toolkit/text.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

namespace velmaris::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
namespace fs = std::filesystem;

/// Titles of elements that are not closed.
const std::set<std::string> ohne_schluss{"!DOCTYPE", "meta", "link", "br", "hr"};

/// The tags of a page that are closed in another order than they were opened in, or not at all.
std::vector<std::string> falsch_geschlossen(const std::string& text) {
    std::vector<std::string> offen;
    for (const Marke& marke : marken(text)) {
        if (ohne_schluss.contains(marke.name)) continue;
        if (!marke.name.starts_with('/')) {
            offen.push_back(marke.name);
        } else if (!offen.empty() && "/" + offen.back() == marke.name) {
            offen.pop_back();
        } else {
            return {marke.name};
        }
    }
    return offen;
}

/// The first number of a text that has the mark between two digits, empty if there is none.
std::string zahl_mit(const std::string& text, char zeichen) {
    const auto ziffer = [&text](std::size_t i) { return text[i] >= '0' && text[i] <= '9'; };
    for (std::size_t i = 1; i + 1 < text.size(); ++i) {
        if (text[i] == zeichen && ziffer(i - 1) && ziffer(i + 1)) return text.substr(i - 1, 3);
    }
    return {};
}

/// The words of a page without the names that carry a point of their own.
std::string klartext(const std::string& seite) {
    std::string text = reiner_text(seite);
    for (const char* name :
         {"Version 3.0 in 3.2", "Version 3.0", "Version 3.2", "TS 4.09", "CC BY 4.0", "Release 6.0"})
        text = ersetzt(text, name, "");
    return text;
}

TEST(Hilfeseiten, JedeSeiteIstGueltigUndFuehrtWeiter) {
    for (const std::string sprache : {"d", "e"}) {
        const auto seiten = hilfeseiten(sprache);
        const auto ziele_des_inhalts = attribute(seiten.at("index"), "href");
        for (const auto& [name, text] : seiten) {
            SCOPED_TRACE(testing::Message() << sprache << "/" << name);
            for (const std::string& ziel : attribute(text, "href"))
                EXPECT_TRUE(fs::is_regular_file(fs::path(VELMARIS_HILFESEITEN) / sprache / ziel)) << ziel;
            if (name != "index") {
                EXPECT_THAT(ziele_des_inhalts, testing::Contains(name + ".html"));
            }
            EXPECT_THAT(text, Not(HasSubstr("<!--")));
            EXPECT_THAT(falsch_geschlossen(text), IsEmpty());
            EXPECT_THAT(text, HasSubstr("content=\"text/html; charset=utf-8\""));
            EXPECT_THAT(text, HasSubstr(sprache == "d" ? "<html lang=\"de\">" : "<html lang=\"en\">"));
            EXPECT_EQ(elemente(text, "title"), elemente(text, "h1"));
            EXPECT_THAT(text, Not(HasSubstr("\xC3\x83"))) << "encoded twice";
            EXPECT_EQ(zahl_mit(klartext(text), sprache == "d" ? '.' : ','), "");
        }
    }
}

TEST(Hilfeseiten, BeideSprachenErzaehlenDasselbe) {
    const auto deutsch = hilfeseiten("d");
    const auto englisch = hilfeseiten("e");
    ASSERT_EQ(deutsch.size(), englisch.size());
    for (const char* ebene : {"E_Geometrie", "E_Fenster", "E_Daemmung", "E_Gebaeude", "E_Klima", "E_Energie",
                              "A_Uebersicht", "A_Klima", "A_Heizen", "A_Kuehlen", "A_Sankey", "E_Zoom_Klima",
                              "A_Zoom", "E_Klimaimport", "A_Report", "Drucken"})
        EXPECT_TRUE(deutsch.contains(ebene)) << ebene;
    for (const auto& [name, text] : deutsch) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(englisch.contains(name));
        const std::string& andere = englisch.at(name);
        for (const char* marke : {"h2", "p", "li", "tr", "td"}) {
            EXPECT_EQ(elemente(text, marke).size(), elemente(andere, marke).size()) << marke;
        }
        auto ziele = attribute(text, "href");
        auto andere_ziele = attribute(andere, "href");
        std::sort(ziele.begin(), ziele.end());
        std::sort(andere_ziele.begin(), andere_ziele.end());
        EXPECT_EQ(ziele, andere_ziele);
    }
}

}  // namespace
}  // namespace velmaris::test
