#include "documents/umbruch.h"

#include "documents/reporttext.h"

#include <array>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

using Liste = std::vector<std::string>;

/// One unit per byte.
double zeichen(std::string_view text) {
    return static_cast<double>(text.size());
}

struct Fall {
    const char* text;
    double breite;
    Liste report;
    Liste druck;
};

TEST(Umbruch, TextInDerBreite) {
    const std::array<Fall, 10> faelle{{
        {"kurz", 10, {"kurz"}, {"kurz"}},
        {"", 10, {""}, {""}},
        {"eins zwei drei", 11, {"eins zwei ", "drei"}, {"eins zwei ", "drei"}},
        // a line must stay narrower than the width
        {"eins zwei drei", 10, {"eins ", "zwei drei"}, {"eins ", "zwei drei"}},
        // what fits whole is not touched
        {"Aus- legung", 12, {"Aus- legung"}, {"Aus- legung"}},
        {"Wärmedämmverbundsystem", 5, {"Wärmedämmverbundsystem"}, {"Wärmedämmverbundsystem"}},
        {"ab Donaudampfschiff zu", 9, {"ab ", "Donaudampfschiff ", "zu"}, {"ab ", "Donaudampfschiff ", "zu"}},
        {"Aus- legung kurz", 13, {"Auslegung ", "kurz"}, {"Auslegung ", "kurz"}},
        {"Heiz- und Kessel", 15, {"Heiz- und ", "Kessel"}, {"Heizund Kessel"}},
        {"und Aus- legung! weiter hier",
         18,
         {"und Auslegung! ", "weiter hier"},
         {"und Aus- legung! ", "weiter hier"}},
    }};
    for (const Fall& fall : faelle) {
        EXPECT_EQ(schreibeZeile(fall.text, fall.breite, zeichen), fall.report) << fall.text;
        EXPECT_EQ(zeilen_umbrechen(fall.text, fall.breite, zeichen), fall.druck) << fall.text;
    }
}

TEST(Umbruch, ReportschriftIstProportional) {
    EXPECT_LT(reportbreite("iiii"), reportbreite("mmmm"));
    // Times at 10 points: the figure is half an em wide.
    EXPECT_NEAR(reportbreite("0000000000"), 10 * 5 * 96 / 72.0, 0.01);
}

}  // namespace
}  // namespace velmaris
