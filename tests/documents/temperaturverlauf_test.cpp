#include "documents/temperaturverlauf.h"

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
