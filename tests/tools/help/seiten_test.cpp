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

/// The same rule for every page of both languages.
template <class Pruefung>
void jede_seite(Pruefung&& pruefung) {
    for (const std::string sprache : {"d", "e"}) {
        const auto seiten = hilfeseiten(sprache);
        ASSERT_THAT(seiten, Not(IsEmpty()));
        for (const auto& [name, text] : seiten) {
            SCOPED_TRACE(testing::Message() << sprache << "/" << name);
            pruefung(sprache, name, text);
        }
    }
}

TEST(Hilfeseiten, JedeEbeneUndJedesFensterHatIhreSeiteInBeidenSprachen) {
    for (const std::string sprache : {"d", "e"}) {
        const auto seiten = hilfeseiten(sprache);
        for (const char* ebene : {"index", "E_Geometrie", "E_Fenster", "E_Daemmung", "E_Gebaeude", "E_Klima",
                                  "E_Energie", "A_Uebersicht", "A_Klima", "A_Heizen", "A_Kuehlen", "A_Sankey",
                                  "E_Zoom_Klima", "A_Zoom", "E_Klimaimport", "A_Report", "Drucken"}) {
            EXPECT_TRUE(seiten.contains(ebene)) << sprache << "/" << ebene;
        }
    }
}

TEST(Hilfeseiten, BeideSprachenErzaehlenDasselbe) {
    const auto deutsch = hilfeseiten("d");
    const auto englisch = hilfeseiten("e");
    ASSERT_EQ(deutsch.size(), englisch.size());
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

TEST(Hilfeseiten, JederVerweisFuehrtZuEinerSeite) {
    jede_seite([](const std::string& sprache, const std::string&, const std::string& text) {
        for (const std::string& ziel : attribute(text, "href")) {
            EXPECT_TRUE(fs::is_regular_file(fs::path(VELMARIS_HILFESEITEN) / sprache / ziel)) << ziel;
        }
    });
}

TEST(Hilfeseiten, VomInhaltAusIstJedeSeiteErreichbar) {
    for (const std::string sprache : {"d", "e"}) {
        const auto seiten = hilfeseiten(sprache);
        const auto ziele = attribute(seiten.at("index"), "href");
        for (const auto& [name, text] : seiten) {
            if (name == "index") continue;
            EXPECT_THAT(ziele, testing::Contains(name + ".html")) << sprache;
        }
    }
}

TEST(Hilfeseiten, SindGeschlossenUndOhneOffeneMarken) {
    const std::set<std::string> ohne_schluss{"!DOCTYPE", "meta", "link", "br", "hr"};
    jede_seite([&](const std::string&, const std::string&, const std::string& text) {
        EXPECT_THAT(text, Not(HasSubstr("<!--")));
        std::vector<std::string> offen;
        for (const Marke& marke : marken(text)) {
            if (ohne_schluss.contains(marke.name)) continue;
            if (!marke.name.starts_with('/')) {
                offen.push_back(marke.name);
                continue;
            }
            ASSERT_FALSE(offen.empty()) << marke.name;
            ASSERT_EQ("/" + offen.back(), marke.name);
            offen.pop_back();
        }
        EXPECT_THAT(offen, IsEmpty());
    });
}

TEST(Hilfeseiten, NennenZeichensatzSpracheUndTitel) {
    jede_seite([](const std::string& sprache, const std::string&, const std::string& text) {
        EXPECT_THAT(text, HasSubstr("content=\"text/html; charset=utf-8\""));
        EXPECT_THAT(text, HasSubstr(sprache == "d" ? "<html lang=\"de\">" : "<html lang=\"en\">"));
        EXPECT_EQ(elemente(text, "title"), elemente(text, "h1"));
        EXPECT_THAT(text, Not(HasSubstr("\xC3\x83"))) << "encoded twice";
    });
}

/// The first number of a text that has the mark between two digits, empty if there is none.
std::string zahl_mit(const std::string& text, char zeichen) {
    const auto ziffer = [&text](std::size_t i) { return text[i] >= '0' && text[i] <= '9'; };
    for (std::size_t i = 1; i + 1 < text.size(); ++i) {
        if (text[i] == zeichen && ziffer(i - 1) && ziffer(i + 1)) return text.substr(i - 1, 3);
    }
    return {};
}

TEST(Hilfeseiten, SchreibenZahlenInDerSprache) {
    jede_seite([](const std::string& sprache, const std::string&, const std::string& text) {
        std::string klartext = reiner_text(text);
        // Names that carry a point of their own.
        for (const char* name :
             {"Version 3.0 in 3.2", "Version 3.0", "Version 3.2", "TS 4.09", "CC BY 4.0", "Release 6.0"})
            klartext = ersetzt(klartext, name, "");
        EXPECT_EQ(zahl_mit(klartext, sprache == "d" ? '.' : ','), "");
    });
}

}  // namespace
}  // namespace velmaris::test
