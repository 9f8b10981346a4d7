#include "documents/report/rtf_lesen.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

std::string text(const Absatz& absatz) {
    std::string alles;
    for (const Textstueck& stueck : absatz.stuecke)
        alles += stueck.text;
    return alles;
}

TEST(RtfLesen, SeitenUndZeichenOhneUnbekanntes) {
    const auto absaetze =
        rtf_lesen(R"({\rtf1{\colortbl;\red1\green2;}{\*\generator x;}{\info{\title y}}\lang1031 a\par )"
                  "\\page\\qc b\\{\\'e4\\}\\\\ö\r\n\\par c}");
    ASSERT_EQ(absaetze.size(), 3U);
    EXPECT_TRUE(!absaetze[0].neue_seite && absaetze[1].neue_seite && !absaetze[2].neue_seite);
    EXPECT_EQ(text(absaetze[0]), "a");
    EXPECT_EQ(text(absaetze[1]), "b{ä}\\ö");
    EXPECT_EQ(text(absaetze[2]), "c");
}

TEST(RtfLesen, KaputtesIstKeinFehler) {
    const std::string ganz = R"({\rtf1\ansi{\fonttbl{\f0 A;}}\fs20\tx99 \'e4{\sub x}\par \page\ul y\par })";
    for (std::size_t i = 0; i <= ganz.size(); ++i) {
        EXPECT_LE(rtf_lesen(ganz.substr(0, i)).size(), 2U);
        EXPECT_LE(rtf_lesen(ganz.substr(i)).size(), 2U);
    }
    for (const char* text : {"", "\\", "\\'", "\\'e", "\\'zz", "}}}}", "{{{{", "\\fs99999999999999",
                             "\\fs-3 a", "\\tx", "\\f99 a\\par"})
        EXPECT_LE(rtf_lesen(text).size(), 1U) << text;
    EXPECT_EQ(text(rtf_lesen("}} a").at(0)), " a");
    EXPECT_EQ(rtf_lesen("\\fs-3 a").at(0).stuecke.at(0).groesse, 12);
}

}  // namespace
}  // namespace velmaris
