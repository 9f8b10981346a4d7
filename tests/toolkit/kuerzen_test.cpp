#include "toolkit/kuerzen.h"

#include "tests/rekorder_flaeche.h"
#include "toolkit/text.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

TEST(Kuerzen, BehaeltWasPasst) {
    const auto zeichen = [](std::string_view text) { return static_cast<double>(zeichenzahl(text)); };
    const auto kurz = [&](const char* text, double breite) { return kuerzen(text, breite, zeichen); };
    EXPECT_EQ(kurz("genau", 5), "genau");
    EXPECT_EQ(kurz("genauer", 6), "genau…");
    EXPECT_EQ(kurz("ab", 1), "…");
    EXPECT_EQ(kurz("", 0), "");
    EXPECT_EQ(kurz("Müller", 5), "Müll…");
    EXPECT_EQ(kurz("Müller", 2), "M…");
    EXPECT_EQ(kurz("1234567890123456", 15), "12345678901234…");
    const RekorderFlaeche bild;
    EXPECT_EQ(kuerzen("Müller", 5 * 6 + 1, bild), kurz("Müller", 5)) << "letters of 6 pixels";
}

}  // namespace
}  // namespace velmaris
