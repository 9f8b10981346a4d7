#include "energy/katalog_werte.h"

#include "energy/Heizsysteme.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

namespace velmaris {
namespace {

struct Punkt {
    double flaeche;
    double wert;
};

/// "100:2.9 150:2.5" as points; a single number is a constant.
std::vector<Punkt> punkte(const std::string& text) {
    std::vector<Punkt> ergebnis;
    std::istringstream teile(text);
    for (std::string teil; teile >> teil;) {
        const std::size_t trenner = teil.find(':');
        if (trenner == std::string::npos) return {{1, std::stod(teil)}};
        ergebnis.push_back({std::stod(teil.substr(0, trenner)), std::stod(teil.substr(trenner + 1))});
    }
    return ergebnis;
}

/// What one quantity is for the systems, transfers and carriers listed by their digits.
struct Kurve {
    float Kennwerte::*groesse;
    std::string systeme, uebergaben, energietraeger, punkte;

    [[nodiscard]] bool gilt(int s, int u, int t) const {
        const auto nennt = [](const std::string& liste, int wert) {
            return liste.find(std::to_string(wert)) != std::string::npos;
        };
        return nennt(systeme, s) && nennt(uebergaben, u) && nennt(energietraeger, t);
    }
};

using K = Kennwerte;

const std::vector<Kurve> kurven{
    {&K::q_ce, "1234567", "12", "1234", "1.1"},
    {&K::q_ce, "8", "12", "1", "0.7"},
    {&K::q_ce, "9", "12", "1", "4.4"},
    {&K::q_d, "123456", "1", "1234",
     "100:2.9 150:2.5 200:2.3 300:2.1 500:2.0 750:1.9 1000:1.8 1500:1.8 2500:1.8 5000:1.7 10000:1.7"},
    {&K::q_d, "7", "1", "1",
     "100:2.1 150:1.8 200:1.6 300:1.5 500:1.4 750:1.3 1000:1.3 1500:1.3 2500:1.2 5000:1.2 10000:1.2"},
    {&K::q_d, "1234567", "2", "1234",
     "100:0.7 150:0.6 200:0.6 300:0.5 500:0.5 750:0.5 1000:0.5 1500:0.4 2500:0.4 5000:0.4 10000:0.4"},
    {&K::q_d, "89", "12", "1", "0"},
    {&K::q_d_he, "123456", "1", "1234",
     "100:1.85 150:1.24 200:0.95 300:0.68 500:0.48 750:0.38 1000:0.33 1500:0.28 2500:0.24 5000:0.22 "
     "10000:0.20"},
    {&K::q_d_he, "7", "1", "1",
     "100:1.98 150:1.35 200:1.06 300:0.78 500:0.57 750:0.47 1000:0.42 1500:0.37 2500:0.33 5000:0.30 "
     "10000:0.28"},
    {&K::q_d_he, "1234567", "2", "1234",
     "100:3.52 150:2.40 200:1.88 300:1.39 500:1.01 750:0.83 1000:0.74 1500:0.65 2500:0.58 5000:0.53 "
     "10000:0.50"},
    {&K::q_d_he, "89", "12", "1", "0"},
    {&K::q_s, "12345689", "12", "1234", "0"},
    {&K::q_s, "7", "1", "1", "100:0.3 150:0.2 200:0.2 300:0.1 500:0.1 750:0.1 1000:0"},
    {&K::q_s, "7", "2", "1", "100:0.1 150:0.1 200:0.1 300:0"},
    {&K::q_s_he, "12345689", "12", "1234", "0"},
    {&K::q_s_he, "7", "12", "1",
     "100:0.63 150:0.43 200:0.34 300:0.24 500:0.16 750:0.12 1000:0.10 1500:0.08 2500:0.07 5000:0.06 "
     "10000:0.05"},
    {&K::e_g, "1", "1", "12", "1.08"},
    {&K::e_g, "1", "2", "12", "150:1.10 200:1.09"},
    {&K::e_g, "2", "1", "12", "1.03"},
    {&K::e_g, "2", "2", "12", "300:0.99 500:0.98"},
    {&K::e_g, "3", "1", "12", "0.98"},
    {&K::e_g, "3", "2", "12", "0.94"},
    {&K::e_g, "4", "12", "1", "100:1.48 150:1.49 200:1.49 300:1.47 500:1.45"},
    {&K::e_g, "4", "12", "2", "100:1.75 150:1.76 200:1.75 300:1.74 500:1.71"},
    {&K::e_g, "5", "12", "1", "100:1.37 150:1.37 200:1.38 300:1.37 500:1.36"},
    {&K::e_g, "6", "12", "1234", "1.01"},
    {&K::e_g, "7", "1", "1", "0.27"},
    {&K::e_g, "7", "2", "1", "0.23"},
    {&K::e_g, "89", "12", "1", "1"},
    {&K::q_g_he, "123", "12", "12",
     "100:0.79 150:0.66 200:0.58 300:0.48 500:0.38 750:0.31 1000:0.27 1500:0.23 2500:0.18 5000:0.13 "
     "10000:0.09"},
    {&K::q_g_he, "4", "12", "1", "100:1.96 150:1.84 200:1.78 300:1.71 500:1.65"},
    {&K::q_g_he, "4", "12", "2", "100:0.19 150:0.13 200:0.10 300:0.07 500:0.04"},
    {&K::q_g_he, "5", "12", "1", "100:2.05 150:1.92 200:1.86 300:1.79 500:1.73"},
    {&K::q_g_he, "689", "12", "1234", "0"},
    {&K::f_p, "123", "12", "12", "1.1"},
    {&K::f_p, "45", "12", "12", "0.2"},
    {&K::f_p, "6", "12", "1", "0.7"},
    {&K::f_p, "6", "12", "2", "0"},
    {&K::f_p, "6", "12", "3", "1.3"},
    {&K::f_p, "6", "12", "4", "0.1"},
    {&K::f_p, "789", "12", "1", "3.0"},
};

/// Area and value pairs that follow from a curve: its points, a quarter and the middle of the way between
/// two, and places below the first and above the last.
std::vector<Punkt> proben(const std::vector<Punkt>& kurve) {
    std::vector<Punkt> ergebnis{{kurve.front().flaeche * 0.99, kurve.front().wert},
                                {kurve.back().flaeche * 1.25, kurve.back().wert}};
    for (std::size_t i = 0; i < kurve.size(); ++i) {
        const Punkt& vorher = kurve[i == 0 ? 0 : i - 1];
        for (const double anteil : {0.25, 0.5, 1.0}) {
            ergebnis.push_back({vorher.flaeche + (kurve[i].flaeche - vorher.flaeche) * anteil,
                                vorher.wert * (1 - anteil) + kurve[i].wert * anteil});
        }
    }
    return ergebnis;
}

TEST(KatalogWerte, AlleKurvenAllerKombinationen) {
    // By system the highest carrier on offer; all eight quantities but q_g_he of the heat pump have a curve.
    const std::string traeger = "222214111";
    for (int s = 1; s <= heizsysteme; ++s) {
        for (const int u : {1, 2}) {
            for (int t = 1; t <= traeger[static_cast<std::size_t>(s - 1)] - '0'; ++t) {
                int gefunden = 0;
                for (const Kurve& kurve : kurven) {
                    if (!kurve.gilt(s, u, t)) continue;
                    ++gefunden;
                    for (const Punkt& probe : proben(punkte(kurve.punkte))) {
                        const Kennwerte k = katalog_werte(s, u, t, static_cast<float>(probe.flaeche));
                        EXPECT_FLOAT_EQ(k.*kurve.groesse, static_cast<float>(probe.wert))
                            << s << u << t << " at " << probe.flaeche << ", points " << kurve.punkte;
                    }
                }
                EXPECT_EQ(gefunden, s == 7 ? 7 : 8);
            }
        }
    }
    // The heat pump follows a power law: 1.9 at 1 m2, half of it at 2^10 m2.
    EXPECT_EQ(katalog_werte(7, 1, 1, 1).q_g_he, 1.9F);
    EXPECT_FLOAT_EQ(katalog_werte(7, 2, 1, 1024).q_g_he, 0.95F);
}

TEST(Kurznamen, JeKombination) {
    using Fall = std::tuple<int, int, const char*, const char*>;
    for (const auto& [system, traeger, de, en] :
         {Fall{1, 1, "Heizöl", "fuel oil"}, Fall{3, 1, "Heizöl", "fuel oil"},
          Fall{3, 2, "Erdgas", "natural gas"}, Fall{4, 1, "Holz", "wood"}, Fall{5, 1, "Holz", "wood"},
          Fall{6, 4, "Nah-/Fernwärme", "district heat"}, Fall{7, 1, "Strom", "electricity"},
          Fall{9, 1, "Strom", "electricity"}}) {
        EXPECT_EQ(kurzname(system, traeger).in("d"), de);
        EXPECT_EQ(kurzname(system, traeger).in("e"), en);
        EXPECT_EQ(kurzname(system, traeger).elektrisch(), system >= 7);
    }
}

}  // namespace
}  // namespace velmaris
