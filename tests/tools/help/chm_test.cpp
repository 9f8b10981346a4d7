#include "tests/tools/help/html.h"

#include <chm_lib.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

namespace velmaris::test {
namespace {

/// A compiled help file.
class Hilfedatei {
  public:
    explicit Hilfedatei(const std::string& sprache)
        : datei_(chm_open((std::string(VELMARIS_PROGRAMMORDNER) + "/Velmaris_" + sprache + ".chm").c_str()),
                 &chm_close) {}

    [[nodiscard]] bool offen() const { return datei_ != nullptr; }

    /// The bytes of an object, empty if there is none.
    [[nodiscard]] std::string lesen(const std::string& name) const {
        chmUnitInfo ort{};
        if (chm_resolve_object(datei_.get(), name.c_str(), &ort) != CHM_RESOLVE_SUCCESS) return {};
        std::string bytes(ort.length, '\0');
        const auto gelesen =
            chm_retrieve_object(datei_.get(), &ort, reinterpret_cast<unsigned char*>(bytes.data()), 0,
                                static_cast<LONGINT64>(ort.length));
        return gelesen == static_cast<LONGINT64>(ort.length) ? bytes : std::string();
    }

  private:
    std::unique_ptr<chmFile, decltype(&chm_close)> datei_;
};

TEST(Hilfedatei, EnthaeltJedeSeiteByteFuerByte) {
    for (const std::string sprache : {"d", "e"}) {
        const Hilfedatei hilfe(sprache);
        ASSERT_TRUE(hilfe.offen()) << sprache;
        for (const auto& [name, text] : hilfeseiten(sprache)) {
            EXPECT_EQ(hilfe.lesen("/" + name + ".html"), text) << sprache << "/" << name;
        }
        EXPECT_FALSE(hilfe.lesen("/stil.css").empty());
    }
}

TEST(Hilfedatei, BewahrtDieUmlaute) {
    const Hilfedatei hilfe("d");
    ASSERT_TRUE(hilfe.offen());
    EXPECT_THAT(hilfe.lesen("/E_Daemmung.html"), testing::HasSubstr("W\xC3\xA4rmebr\xC3\xBC"
                                                                    "cken"));
    // Tree and index are in windows-1252.
    EXPECT_THAT(hilfe.lesen("/Velmaris_d.hhc"), testing::HasSubstr("value=\"D\xE4mmung\""));
    EXPECT_THAT(hilfe.lesen("/Velmaris_d.hhk"), testing::HasSubstr("value=\"\xDC"
                                                                   "berw\xE4rmung"));
}

TEST(Hilfedatei, BeginntMitDerStartseite) {
    for (const std::string sprache : {"d", "e"}) {
        const std::string system = Hilfedatei(sprache).lesen("/#SYSTEM");
        EXPECT_THAT(system, testing::HasSubstr("index.html")) << sprache;
    }
}

}  // namespace
}  // namespace velmaris::test
