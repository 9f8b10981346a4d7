#include "documents/umbruch.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

/// One unit per byte.
double zeichen(std::string_view text) {
    return static_cast<double>(text.size());
}

/// The lines in one text, a stroke after each.
std::string zeilen(const std::vector<std::string>& alle) {
    std::string text;
    for (const std::string& zeile : alle)
        text += zeile + "/";
    return text;
}

TEST(Umbruch, TextInDerBreite) {
    struct Fall {
        const char* text;
        double breite;
        const char* report;
        const char* druck;
    };
    for (const Fall& fall :
         {Fall{"kurz", 10, "kurz/", "kurz/"},
          {"", 10, "/", "/"},
          {"eins zwei drei", 11, "eins zwei /drei/", "eins zwei /drei/"},
          // a line must stay narrower than the width
          {"eins zwei drei", 10, "eins /zwei drei/", "eins /zwei drei/"},
          // what fits whole is not touched
          {"Aus- legung", 12, "Aus- legung/", "Aus- legung/"},
          {"ab Donaudampfschiff zu", 9, "ab /Donaudampfschiff /zu/", "ab /Donaudampfschiff /zu/"},
          {"Aus- legung kurz", 13, "Auslegung /kurz/", "Auslegung /kurz/"},
          {"Heiz- und Kessel", 15, "Heiz- und /Kessel/", "Heiz- und /Kessel/"},
          {"Nah- oder Fernheizung", 12, "Nah- oder /Fernheizung/", "Nah- oder /Fernheizung/"},
          {"und Aus- legung! hier", 18, "und Auslegung! /hier/", "und Aus- legung! /hier/"}}) {
        EXPECT_EQ(zeilen(schreibeZeile(fall.text, fall.breite, zeichen)), fall.report) << fall.text;
        EXPECT_EQ(zeilen(zeilen_umbrechen(fall.text, fall.breite, zeichen)), fall.druck) << fall.text;
    }
}

}  // namespace
}  // namespace velmaris
