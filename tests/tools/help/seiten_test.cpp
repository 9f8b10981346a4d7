#include "tests/tools/help/html.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris::test {
namespace {

using testing::HasSubstr;
namespace fs = std::filesystem;

/// The tags of a page that are closed in another order than they were opened in, or not at all.
std::vector<std::string> falsch_geschlossen(const std::string& text) {
    std::vector<std::string> offen;
    for (const std::string& marke : zwischen(text, "<", ">")) {
        const std::string name = marke.substr(0, marke.find_first_of(" \n"));
        if (name == "!DOCTYPE" || name == "meta" || name == "link" || name == "br" || name == "hr") continue;
        if (!name.starts_with('/')) {
            offen.push_back(name);
        } else if (!offen.empty() && "/" + offen.back() == name) {
            offen.pop_back();
        } else {
            return {name};
        }
    }
    return offen;
}

TEST(Hilfeseiten, JedeSeiteIstGueltigUndFuehrtWeiter) {
    for (const std::string sprache : {"d", "e"}) {
        const auto seiten = hilfeseiten(sprache);
        for (const auto& [name, text] : seiten) {
            SCOPED_TRACE(testing::Message() << sprache << "/" << name);
            for (const std::string& ziel : zwischen(text, "href=\"", "\""))
                EXPECT_TRUE(fs::is_regular_file(fs::path(VELMARIS_HILFESEITEN) / sprache / ziel)) << ziel;
            EXPECT_THAT(seiten.at("index"), HasSubstr("<a href=\"" + name + ".html\">"));
            EXPECT_THAT(text, testing::Not(HasSubstr("<!--")));
            EXPECT_THAT(falsch_geschlossen(text), testing::IsEmpty());
            EXPECT_THAT(text, HasSubstr(sprache == "d" ? "<html lang=\"de\">" : "<html lang=\"en\">"));
            EXPECT_EQ(zwischen(text, "<title>", "<"), zwischen(text, "<h1>", "<"));
        }
    }
}

}  // namespace
}  // namespace velmaris::test
