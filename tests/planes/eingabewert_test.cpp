#include "planes/eingabewert.h"

#include <gtest/gtest.h>
#include <map>
#include <vector>

namespace velmaris {
namespace {

std::string gelesen(const char* feld, const char* text) {
    const auto ergebnis = eingabewert(*scrollzeile(feld), text);
    if (const auto* einwand = std::get_if<Zweisprachig>(&ergebnis)) return einwand->de + "|" + einwand->en;
    return std::to_string(std::get<int>(ergebnis));
}

TEST(Eingabewert, NimmtDieNaechsteStellung) {
    const std::map<const char*, std::vector<std::pair<const char*, const char*>>> faelle{
        {"Troom_sb",
         {{"21", "210"}, {"21,0", "210"}, {" 21.04 °C ", "210"}, {"21.06°C", "211"}, {"-9,9C", "-99"}}},
        {"Tueber_sb", {{"\u2009+25.", "250"}, {"39,9\u00A0°c", "399"}, {"40.04", "400"}}},
        {"hd_sb", {{"\u22120.0", "0"}, {",5", "-5"}, {"Dachhöhe: 3.2 m", "-32"}}},
        {"orient_sb", {{"45°", "-45"}, {"-45", "45"}}},
        {"ft_sb", {{"2.2 m2", "22"}}},
        {"kwn_sb", {{"0.24 W/(m²K)", "24"}, {".24W/(m² K)", "24"}, {"0.24 W/m^2*K", "24"}, {"0.246", "25"}}},
        {"intg_sb", {{"16.5 kWh/(m²a)", "33"}, {"16.4", "33"}, {"25 kWh m² a", "50"}}},
        {"infiltration_sb", {{"0.6 1/h", "60"}, {"0.61/h", "61"}, {"10.001/h", "1000"}}},
        {"WRG_Sb", {{"57 %", "57"}, {"29%", "29"}}},
        {"Klimaeffizienz_sb", {{"3.2 kWh kWh", "32"}}}};
    for (const auto& [feld, paare] : faelle) {
        for (const auto& [text, stellung] : paare)
            EXPECT_EQ(gelesen(feld, text), stellung) << text;
    }
}

TEST(Eingabewert, SagtDenBereich) {
    const std::string temperatur =
        "Bitte eine Zahl eingeben: -10.0 bis 40.0 °C"
        "|Please type a number: -10.0 to 40.0 °C";
    for (const char* text : {"", " ", "warm", "-", "1,000.5", "1.2.3", "2 1", "21 K", "21 m", "2e1", "5-3",
                             "°C", "12:30", "+-1", "5 1°C", "inf", "0x10"})
        EXPECT_EQ(gelesen("Troom_sb", text), temperatur) << text;
    for (const char* text : {"40.06", "41", "-10.1", "999999999999999999999"})
        EXPECT_EQ(gelesen("Troom_sb", text),
                  "Außerhalb des Bereichs: -10.0 bis 40.0 °C"
                  "|Out of range: -10.0 to 40.0 °C")
            << text;
    EXPECT_EQ(gelesen("h_sb", "-5"), "Außerhalb des Bereichs: 2.0 bis 50.0 m|Out of range: 2.0 to 50.0 m");
    EXPECT_EQ(gelesen("ag_sb", "21"), "Außerhalb des Bereichs: 1 bis 20|Out of range: 1 to 20");
    EXPECT_EQ(gelesen("orient_sb", "90"), "Außerhalb des Bereichs: -45 bis 45°|Out of range: -45 to 45°");
}

}  // namespace
}  // namespace velmaris
