#include "toolkit/zahlen.h"

#include "toolkit/fehler.h"

#include <cmath>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <tuple>
#include <utility>

namespace velmaris {
namespace {

using testing::StartsWith;
using testing::ThrowsMessage;

TEST(Muster, RundetDenBinaerwertVonNullWegUndNimmtDasDezimalzeichen) {
    using Fall = std::tuple<double, int, const char*>;
    for (const auto& [wert, stellen, text] :
         {Fall{2.5, 0, "3"}, Fall{-2.5, 0, "-3"}, Fall{0.125, 2, "0.13"}, Fall{-0.125, 2, "-0.13"},
          Fall{0.25, 1, "0.3"}, Fall{2.675, 2, "2.67"}, Fall{-0.04, 1, "0.0"}, Fall{-0.05, 1, "-0.1"},
          Fall{-0.0, 0, "0"}, Fall{0.05F, 1, "0.1"}, Fall{0.49999999999999994, 0, "0"},
          Fall{1e22, 0, "10000000000000000000000"}})
        EXPECT_EQ(muster(wert, stellen), text) << wert;
    dezimalzeichen_setzen(',');
    EXPECT_EQ(muster(-1.25, 1), "-1,3");
    EXPECT_EQ(zahltext(-1.25), "-1.25");
    dezimalzeichen_setzen('.');
#ifdef __linux__
    ::setenv("LC_ALL", "C", 1);
    EXPECT_EQ(dezimalzeichen_der_umgebung(), '.');
#endif
}

TEST(MitEinheit, TrenntNurWoEtwasZuTrennenIst) {
    EXPECT_EQ(mit_einheit("2.5", "W/(m² K)"), "2.5 W/(m² K)");
    EXPECT_EQ(mit_einheit("-45", "°"), "-45°");
    EXPECT_EQ(mit_einheit("10.3", "°C"), "10.3 °C");
    EXPECT_EQ(mit_einheit("0.78", ""), "0.78");
}

TEST(Zahltext, FolgtDerSchreibweiseOhneNullVorDemPunkt) {
    using Fall = std::pair<double, const char*>;
    for (const auto& [wert, text] :
         {Fall{5.2F, " 5.2"}, Fall{10, " 10"}, Fall{-15, "-15"}, Fall{0, " 0"}, Fall{-0.5, "-.5"},
          Fall{1234567, " 1234567"}, Fall{12345678, " 1.234568E+07"}, Fall{0.001, " .001"},
          Fall{1e-10, " 1E-10"}, Fall{123.4567F, " 123.4567"}, Fall{1.0 / 3, " .3333333"},
          Fall{-1e20, "-1E+20"}})
        EXPECT_EQ(zahltext(wert), text);
}

TEST(Kuerzeste, GibtDieZahlMitDenWenigstenZiffernZurueck) {
    using Fall = std::pair<float, const char*>;
    for (const auto& [wert, text] :
         {Fall{0.1F, "0.1"}, Fall{0, "0"}, Fall{-8760, "-8760"}, Fall{16777216, "16777216"},
          Fall{1.0F / 3, "0.33333334"}, Fall{2.1016145F, "2.1016145"}, Fall{1e-4F, "0.0001"},
          Fall{1e-5F, "1e-05"}, Fall{3.4e38F, "3.4e+38"}, Fall{999999936.0F, "999999936"}})
        EXPECT_EQ(kuerzeste(wert), text);
}

TEST(ZahlLesen, ScheitertNie) {
    using Fall = std::pair<const char*, double>;
    for (const auto& [text, wert] :
         {Fall{"  12.5", 12.5}, Fall{" -0.4", -0.4}, Fall{"", 0}, Fall{"1.2.3", 1.2}, Fall{"7,5", 7},
          Fall{"- 3", -3}, Fall{"+4", 4}, Fall{"1 2", 12}, Fall{".5", 0.5}, Fall{"5.", 5}, Fall{"-", 0},
          Fall{"3-4", 3}, Fall{"1e5", 1}, Fall{"123456789012345678", 123456789012345000.0}})
        EXPECT_DOUBLE_EQ(zahl_lesen(text), wert) << '"' << text << '"';
    for (int stellen = 1; stellen < 20; ++stellen) {
        const std::string nullen(static_cast<std::size_t>(stellen - 1), '0');
        EXPECT_DOUBLE_EQ(zahl_lesen("0." + nullen + "7"), std::stod("7e-" + std::to_string(stellen)))
            << stellen;
    }
}

TEST(ZahlPruefen, NimmtNurGanzeZahlen) {
    EXPECT_EQ(zahl_pruefen(" .2 "), 0.2);
    EXPECT_EQ(zahl_pruefen("+1E-02"), 0.01);
    for (const char* text : {"", "  ", "abc", "1x", "1 2", "+-1", "nan", "inf", "1e999", "0x10"})
        EXPECT_FALSE(zahl_pruefen(text).has_value()) << text;
}

TEST(I16, RundetHalbZurGeradenUndMeldetUeberlauf) {
    EXPECT_EQ(i16(2.5, "x"), 2);
    EXPECT_EQ(i16(3.5, "x"), 4);
    EXPECT_EQ(i16(-32768.4, "x"), -32768);
    EXPECT_EQ(i16(32767, "x"), 32767);
    for (const double zuviel : {32767.5, -32769.0, 1e300, std::nan("")})
        EXPECT_THAT([=] { return i16(zuviel, "fn"); }, ThrowsMessage<Laufzeitfehler>(StartsWith("fn: ")));
}

}  // namespace
}  // namespace velmaris
