#include "documents/report/temperaturverlauf.h"

#include "tests/hilfen.h"
#include "toolkit/textdatei.h"

#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace velmaris {
namespace {

std::vector<std::string> zeilen(const std::string& text) {
    Zeilenleser leser(text);
    std::vector<std::string> alle;
    while (const auto zeile = leser.naechste())
        alle.emplace_back(*zeile);
    return alle;
}

std::unique_ptr<Projekt> projekt(const std::string& sprache) {
    auto p = std::make_unique<Projekt>();
    p->Sprache = sprache;
    p->Wetter(1, 1, 1).Ta = -10.5F;
    p->T_frei(1, 1, 1) = 19.96F;
    p->T_regel(1, 1, 1) = 20;
    p->T_regel(12, 31, 24) = 123456789.0F;
    return p;
}

TEST(Temperaturverlauf, JahresdateiHatKopfUndAlleStunden) {
    const auto alle = zeilen(jahrestemperaturen(*projekt("d")));
    ASSERT_EQ(alle.size(), 20U + 8760U);
    EXPECT_EQ(alle[0], "                          Velmaris");
    EXPECT_EQ(alle[1], std::string(60, '_'));
    EXPECT_EQ(alle[3], "             Jahres-Temperaturverläufe");
    EXPECT_EQ(alle[17], "                                   in °C     in °C     in kW");
    EXPECT_EQ(alle[18], std::string(60, '_'));
    EXPECT_EQ(alle[19], "");
    EXPECT_EQ(alle[20], "         1         1         1     -10.5      20.0      20.0");
    EXPECT_EQ(alle[21].substr(0, 30), "         1         1         2");
    EXPECT_EQ(alle[20 + 31 * 24].substr(0, 30), "         1         2         1");
    EXPECT_EQ(alle.back(), "        31        12        24       0.0       0.0123456792.0");
}

TEST(Temperaturverlauf, EnglischerKopf) {
    const auto alle = zeilen(jahrestemperaturen(*projekt("e")));
    EXPECT_EQ(alle[3], "             Yearly temperature courses");
    EXPECT_EQ(alle[5], "Legend:");
    EXPECT_EQ(alle[14], "Temperaturdaten:");
    EXPECT_EQ(alle[16], "       day     Month      hour     T out    T free      T HC");
}

TEST(Temperaturverlauf, DerSchirmZeigtEinenMonat) {
    const auto p = projekt("e");
    p->Monat(2).Name = "February";
    p->Wetter(2, 1, 1).Ta = -3.04F;
    const auto alle = zeilen(temperaturverlauf_schreiben(*p, 2));
    ASSERT_EQ(alle.size(), 23U + 28U * 24U);
    EXPECT_EQ(alle[0], "      ");
    EXPECT_EQ(alle[4], "                      Temperature courses");
    EXPECT_EQ(alle[6], "Month:      February");
    EXPECT_EQ(alle[7], "");
    EXPECT_EQ(alle[8], "Legend:");
    EXPECT_EQ(alle[19], "       day     month      hour     T out    T fret      T HC");
    EXPECT_EQ(alle[20], "                                   in °C     in °C     in °C");
    EXPECT_EQ(alle[23], "         1         2         1      -3.0       0.0       0.0");
    EXPECT_EQ(alle.back().substr(0, 30), "        28         2        24");
}

TEST(Temperaturverlauf, DerSchirmZeigtAlleMonateOhneMonatszeile) {
    const auto alle = zeilen(temperaturverlauf_schreiben(*projekt("d"), 0));
    ASSERT_EQ(alle.size(), 21U + 8760U);
    EXPECT_EQ(alle[0], "");
    EXPECT_EQ(alle[4], "                      Temperaturverläufe");
    EXPECT_EQ(alle[6], "Legende:");
    EXPECT_EQ(alle[17], "       Tag     Monat    Stunde   T außen    T frei      T HK");
    EXPECT_EQ(alle[21], "         1         1         1     -10.5      20.0      20.0");
}

TEST(Temperaturverlauf, DieDateiIstWindows1252) {
    const test::Testordner ordner;
    temperaturverlauf_exportieren(*projekt("d"), ordner / "jahr.txt");
    const std::string bytes = test::inhalt(ordner / "jahr.txt");
    EXPECT_NE(bytes.find("Jahres-Temperaturverl\xE4ufe\r\n"), std::string::npos);
    EXPECT_NE(bytes.find("in \xB0"
                         "C"),
              std::string::npos);
    EXPECT_TRUE(bytes.ends_with("\r\n"));
}

}  // namespace
}  // namespace velmaris
