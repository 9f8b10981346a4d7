#include "charts/traegerbild.h"

#include "tests/charts/probe.h"
#include "tests/rekorder_flaeche.h"

#include <gtest/gtest.h>
#include <tuple>

namespace velmaris {
namespace {

using test::formen;
using Art = Zeichnung::Art;

std::unique_ptr<Projekt> projekt(int system, int traeger, float energie, float strom = 0) {
    auto p = test::leeres_projekt();
    p->Heizsystem = static_cast<std::int16_t>(system);
    p->Uebergabe = 1;
    p->Energietraeger = static_cast<std::int16_t>(traeger);
    p->f_nutz = 200;
    p->q_HE_Energietraeger = energie;
    p->q_HE_Strom = strom;
    return p;
}

RekorderFlaeche haupttraeger(const Projekt& p) {
    return {80, 52, [&](Zeichenflaeche& bild) { Energietraeger_zeichnen(bild, p); }};
}

RekorderFlaeche hilfsstrom(const Projekt& p) {
    return {80, 52, [&](Zeichenflaeche& bild) { Hilfsstrom_zeichnen(bild, p); }};
}

using Texte = std::vector<std::string>;

TEST(Traegerbild, NameUndMenge) {
    const auto texte = [](int system, int traeger, float energie) {
        return haupttraeger(*projekt(system, traeger, energie, 3)).texte();
    };
    EXPECT_EQ(texte(1, 2, 52), (Texte{"Erdgas:", "1000 m³/a"}));
    EXPECT_EQ(texte(2, 1, 50.4F), (Texte{"Heizöl:", "1000 l/a"}));
    EXPECT_EQ(texte(4, 2, 46), (Texte{"Holz:", "2000 kg/a"}));
    EXPECT_EQ(texte(6, 4, 12.345F), (Texte{"Nah-/Fernwärme:", "2469 kWh/a"}));
    EXPECT_EQ(texte(7, 1, 12), (Texte{"Strom:", "3000 kWh/a"})) << "its auxiliary electricity included";
}

TEST(Traegerbild, FormenNachDerEnergie) {
    using Fall = std::tuple<int, int, float, const char*>;
    for (const auto& [system, traeger, energie, bild] : std::vector<Fall>{
             // The bottle grows with the root of the energy: at 200 its unit is 5 pixels, at 50 half of it.
             {1, 2, 200, "30 23 50 48|40 23 10|37.5 8 42.5 18|40 8 4"},
             {1, 2, 50, "35 35.5 45 48|40 35.5 5|38.75 28 41.25 33|40 28 2"},
             {1, 1, 0, "24 4 56 46|26 6 54 44"},
             {1, 1, 100, "24 4 56 46|26 6 54 44|26 44 54 25"},
             // n rows of logs need an energy of n (n + 1) / 0.28.
             {5, 1, 7.1F, ""},
             {5, 1, 7.2F, "40 45 4"},
             {5, 1, 21.4F, "40 45 4"},
             {5, 1, 21.5F, "36 45 4|44 45 4|40 38 4"},
             // A house of 20 pixels around (40, 28), with lines from its sides and corners half as far again.
             {6, 1, 100,
              "30 18 25 13|30 28 25 28|30 38 25 43|40 18 40 13|40 28 40 28|40 38 40 43|"
              "50 18 55 13|50 28 55 28|50 38 55 43|30 18 50 38|30 18 50 38"},
             // Corners of the flash in units of 3 pixels around (40, 25).
             {8, 1, 100, "43 13 34 28|34 28 46 22|46 22 37 37|37 37 37 31|37 37 43 34"}}) {
        EXPECT_EQ(formen(haupttraeger(*projekt(system, traeger, energie))), bild);
        EXPECT_EQ(formen(haupttraeger(*projekt(system, traeger, 200))),
                  formen(haupttraeger(*projekt(system, traeger, 999))))
            << "no picture grows beyond its surface";
    }
    EXPECT_EQ(haupttraeger(*projekt(8, 1, 99)).alle(Art::linie).front().dicke, 1);
    EXPECT_EQ(haupttraeger(*projekt(8, 1, 60, 40)).alle(Art::linie).front().dicke, 2);
    EXPECT_EQ(haupttraeger(*projekt(8, 1, 500)).alle(Art::linie).front().dicke, 3);
}

TEST(Traegerbild, HilfsstromFehltBeiStrom) {
    const RekorderFlaeche leer = hilfsstrom(*projekt(9, 1, 20, 3));
    ASSERT_EQ(leer.zeichnungen.size(), 1U);
    EXPECT_EQ(leer.zeichnungen[0].art, Art::cls);

    const auto p = projekt(3, 1, 20, 2.5F);
    p->Sprache = "e";
    EXPECT_EQ(hilfsstrom(*p).texte(), (Texte{"electricity:", "500 kWh/a"}));
    EXPECT_EQ(formen(hilfsstrom(*p)), formen(haupttraeger(*projekt(8, 1, 100)))) << "20 times the energy";
    EXPECT_EQ(formen(hilfsstrom(*projekt(3, 1, 20, 5))), formen(hilfsstrom(*projekt(3, 1, 20, 9))));
}

}  // namespace
}  // namespace velmaris
