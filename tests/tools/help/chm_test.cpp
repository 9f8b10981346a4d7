#include "tests/hilfen.h"
#include "tests/tools/help/html.h"

#include <chm_lib.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

namespace velmaris::test {
namespace {

/// The bytes of an object of a compiled help file, empty if there is none.
std::string lesen(chmFile* datei, const std::string& name) {
    chmUnitInfo ort{};
    if (chm_resolve_object(datei, name.c_str(), &ort) != CHM_RESOLVE_SUCCESS) return {};
    std::string bytes(ort.length, '\0');
    const auto laenge = static_cast<LONGINT64>(ort.length);
    auto* ziel = reinterpret_cast<unsigned char*>(bytes.data());
    return chm_retrieve_object(datei, &ort, ziel, 0, laenge) == laenge ? bytes : std::string();
}

TEST(Hilfedatei, EnthaeltJedeSeiteByteFuerByte) {
    for (const std::string sprache : {"d", "e"}) {
        const std::string name = "Velmaris_" + sprache;
        const std::string pfad = VELMARIS_PROGRAMMORDNER "/" + name + ".chm";
        const std::unique_ptr<chmFile, decltype(&chm_close)> datei(chm_open(pfad.c_str()), &chm_close);
        ASSERT_TRUE(datei) << pfad;
        for (const auto& [seite, text] : hilfeseiten(sprache))
            EXPECT_EQ(lesen(datei.get(), "/" + seite + ".html"), text) << sprache << "/" << seite;
        EXPECT_FALSE(lesen(datei.get(), "/stil.css").empty());
        const std::string system = lesen(datei.get(), "/#SYSTEM");
        EXPECT_THAT(system, testing::HasSubstr("index.html")) << "the first page";
        const std::string kein_stempel(4, '\0');
        EXPECT_EQ(system.substr(8, 4) + inhalt(pfad).substr(16, 4), kein_stempel + kein_stempel);
        // Tree and index are in windows-1252.
        if (sprache == "e") continue;
        EXPECT_THAT(lesen(datei.get(), "/" + name + ".hhc"), testing::HasSubstr("value=\"D\xE4mmung\""));
        EXPECT_THAT(lesen(datei.get(), "/" + name + ".hhk"), testing::HasSubstr("rw\xE4rmung\""));
    }
}

}  // namespace
}  // namespace velmaris::test
