#include "toolkit/zahlen.h"

#include "toolkit/fehler.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace velmaris {
namespace {

TEST(Muster, RundetDenBinaerwertVonNullWeg) {
    struct Fall {
        double wert;
        int stellen;
        std::string text;
    };
    const std::vector<Fall> faelle{
        {0, 1, "0.0"},
        {2.5, 0, "3"},
        {-2.5, 0, "-3"},
        {3.5, 0, "4"},
        {0.125, 2, "0.13"},
        {-0.125, 2, "-0.13"},
        {0.375, 2, "0.38"},
        {0.25, 1, "0.3"},
        {2.675, 2, "2.67"},
        {1.005, 2, "1.00"},
        {-0.04, 1, "0.0"},
        {-0.05, 1, "-0.1"},
        {-0.0, 0, "0"},
        {1234567.0, 1, "1234567.0"},
        {static_cast<double>(0.05F), 1, "0.1"},
        {0.5, 0, "1"},
        {0.49999999999999994, 0, "0"},
        {1e22, 0, "10000000000000000000000"},
    };
    for (const Fall& fall : faelle)
        EXPECT_EQ(muster(fall.wert, fall.stellen), fall.text) << fall.wert;
}

TEST(Muster, NimmtDasDezimalzeichenDerUmgebung) {
    dezimalzeichen_setzen(',');
    EXPECT_EQ(muster(-1.25, 1), "-1,3");
    EXPECT_EQ(zahltext(-1.25), "-1.25");
    dezimalzeichen_setzen('.');
}

TEST(Zahltext, FolgtDerSchreibweiseOhneNullVorDemPunkt) {
    const std::vector<std::pair<double, std::string>> faelle{
        {5.2F, " 5.2"},
        {0.2F, " .2"},
        {10, " 10"},
        {-15, "-15"},
        {0, " 0"},
        {-0.5, "-.5"},
        {1234567, " 1234567"},
        {12345678, " 1.234568E+07"},
        {0.001, " .001"},
        {1e-10, " 1E-10"},
        {123.4567F, " 123.4567"},
        {1.0 / 3, " .3333333"},
        {100, " 100"},
        {0.58F, " .58"},
        {-1e20, "-1E+20"},
    };
    for (const auto& [wert, text] : faelle)
        EXPECT_EQ(zahltext(wert), text);
}

TEST(ZahlLesen, ScheitertNie) {
    const std::vector<std::pair<std::string, double>> faelle{
        {"  12.5", 12.5},
        {" -0.4", -0.4},
        {"", 0},
        {"abc", 0},
        {"1.2.3", 1.2},
        {"7,5", 7},
        {"- 3", -3},
        {"+4", 4},
        {"1 2", 12},
        {".5", 0.5},
        {"5.", 5},
        {"-", 0},
        {"3-4", 3},
        {"1e5", 1},
        {"0.000000000000000000125", 1.25e-19},
        {"123456789012345678", 123456789012345000.0},
    };
    for (const auto& [text, wert] : faelle)
        EXPECT_DOUBLE_EQ(zahl_lesen(text), wert) << '"' << text << '"';
}

TEST(ZahlPruefen, NimmtNurGanzeZahlen) {
    EXPECT_EQ(zahl_pruefen(" .2 "), 0.2);
    EXPECT_EQ(zahl_pruefen("+1E-02"), 0.01);
    for (const char* text : {"", "  ", "abc", "1x", "1 2", "+-1", "nan", "inf", "1e999", "0x10"}) {
        EXPECT_FALSE(zahl_pruefen(text).has_value()) << text;
    }
}

TEST(I16, RundetHalbZurGeradenUndMeldetUeberlauf) {
    EXPECT_EQ(i16(2.5, "x"), 2);
    EXPECT_EQ(i16(3.5, "x"), 4);
    EXPECT_EQ(i16(-32768.4, "x"), -32768);
    for (const double zuviel : {32767.5, -32769.0, 1e300, std::nan("")}) {
        try {
            static_cast<void>(i16(zuviel, "fn"));
            FAIL() << zuviel;
        } catch (const Laufzeitfehler& fehler) {
            EXPECT_EQ(fehler.feld(), "fn");
        }
    }
}

}  // namespace
}  // namespace velmaris
