#include "documents/umbruch.h"

#include "documents/report/reporttext.h"

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
    const std::array<Fall, 11> faelle{{
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
        {"Heiz- und Kessel", 15, {"Heiz- und ", "Kessel"}, {"Heiz- und ", "Kessel"}},
        {"Nah- oder Fernheizung", 12, {"Nah- oder ", "Fernheizung"}, {"Nah- oder ", "Fernheizung"}},
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

TEST(Umbruch, KuerzenBehaeltWasPasst) {
    struct Kuerzung {
        const char* text;
        double breite;
        const char* kurz;
    };
    for (const Kuerzung& fall : {Kuerzung{"genau", 5, "genau"},
                                 {"genauer", 6, "gen…"},
                                 {"ab", 1, "…"},
                                 {"", 0, ""},
                                 {"Müller", 5, "M…"},
                                 {"Müller", 6, "Mü…"},
                                 {"1234567890123456", 15, "123456789012…"}})
        EXPECT_EQ(kuerzen(fall.text, fall.breite, zeichen), fall.kurz) << fall.text;
}

TEST(Umbruch, LangeTexteWerdenKurzGemessen) {
    constexpr std::size_t laenge = 100'000;
    for (const std::string muster : {"x", "x ", "xx-", "ä- "}) {
        std::string text;
        while (text.size() < laenge)
            text += muster;
        std::size_t gemessen = 0;
        const Textmesser messen = [&gemessen](std::string_view teil) {
            gemessen += teil.size();
            return zeichen(teil);
        };
        for (const std::string& zeile : schreibeZeile(text, 40, messen))
            static_cast<void>(kuerzen(zeile, 30, messen));
        static_cast<void>(kuerzen(text, 30, messen));
        static_cast<void>(zeilen_umbrechen(text, 40, messen));
        EXPECT_LT(gemessen, 100 * laenge) << muster;
    }
}

TEST(Umbruch, ReportschriftIstProportional) {
    EXPECT_LT(reportbreite("iiii"), reportbreite("mmmm"));
    // Times at 10 points: the figure is half an em wide.
    EXPECT_NEAR(reportbreite("0000000000"), 10 * 5 * 96 / 72.0, 0.01);
}

}  // namespace
}  // namespace velmaris
