#include "charts/traegerbild.h"

#include "tests/testflaeche.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <memory>

namespace velmaris {
namespace {

using test::Testflaeche;
using test::Zeichnung;
using Art = Zeichnung::Art;

std::unique_ptr<Projekt> projekt(int system, int traeger, float energie, float strom) {
    auto p = std::make_unique<Projekt>();
    p->Sprache = "d";
    p->Heizsystem = static_cast<std::int16_t>(system);
    p->Uebergabe = 1;
    p->Energietraeger = static_cast<std::int16_t>(traeger);
    p->f_nutz = 200;
    p->q_HE_Energietraeger = energie;
    p->q_HE_Strom = strom;
    return p;
}

Testflaeche haupttraeger(const Projekt& p) {
    return {80, 52, [&](Zeichenflaeche& bild) { Energietraeger_zeichnen(bild, p); }};
}

Testflaeche hilfsstrom(const Projekt& p) {
    return {80, 52, [&](Zeichenflaeche& bild) { Hilfsstrom_zeichnen(bild, p); }};
}

using Texte = std::vector<std::string>;

TEST(Traegerbild, NameUndMengeInBeidenSprachen) {
    struct Fall {
        int system, traeger;
        float energie, strom;
        std::string de, en, menge;
    };
    for (const Fall& f :
         std::vector<Fall>{{1, 2, 52, 3, "Erdgas:", "natural gas:", "1000 m³/a"},
                           {2, 1, 50.4F, 3, "Heizöl:", "fuel oil:", "1000 l/a"},
                           {4, 2, 46, 3, "Holz:", "wood:", "2000 kg/a"},
                           {6, 4, 12.345F, 3, "Nah-/Fernwärme:", "district heat:", "2469 kWh/a"},
                           {7, 1, 12, 3, "Strom:", "electricity:", "3000 kWh/a"}}) {
        const auto p = projekt(f.system, f.traeger, f.energie, f.strom);
        EXPECT_EQ(haupttraeger(*p).texte(), (Texte{f.de, f.menge}));
        p->Sprache = "e";
        EXPECT_EQ(haupttraeger(*p).texte(), (Texte{f.en, f.menge}));
    }
}

TEST(Traegerbild, TitelStehenMittigUeberDemBild) {
    const Testflaeche bild = haupttraeger(*projekt(4, 1, 46, 0));
    const auto texte = bild.alle(Art::text);
    ASSERT_EQ(texte.size(), 2U);
    EXPECT_EQ(texte[0].zahlen, (std::vector<double>{25, 10}));  // "Holz:" is 30 pixels wide
    EXPECT_EQ(texte[1].zahlen, (std::vector<double>{13, 30}));  // "2000 kg/a" is 54 pixels wide
    EXPECT_EQ(bild.zeichnungen.front().art, Art::cls);
    EXPECT_EQ(bild.zeichnungen.back().art, Art::text);
    EXPECT_EQ(texte[0].schrift, (Schrift{.hof = bild.hintergrund()}));
    // "Nah-/Fernwärme:" is wider than the surface in the letters of the others.
    const auto lange = haupttraeger(*projekt(6, 1, 46, 0)).alle(Art::text);
    EXPECT_LT(lange.at(0).schrift.groesse, Schrift{}.groesse);
    EXPECT_EQ(lange.at(1).schrift.groesse, Schrift{}.groesse);
}

/// Top of the oil in the tank.
double oelstand(float energie) {
    const auto oel = haupttraeger(*projekt(1, 1, energie, 0)).alle(Art::flaeche, {255, 255, 96});
    return oel.empty() ? 44 : oel.at(0).zahlen.at(3);
}

TEST(Traegerbild, OelstandIstGedeckelt) {
    EXPECT_DOUBLE_EQ(oelstand(0), 44);
    EXPECT_DOUBLE_EQ(oelstand(100), 25);
    EXPECT_DOUBLE_EQ(oelstand(200), 6);
    EXPECT_DOUBLE_EQ(oelstand(300), 6);
}

TEST(Traegerbild, HolzstapelWaechstReihenweise) {
    // v = energy / 2; n rows need 0.56 v of n (n + 1).
    struct Fall {
        float energie;
        std::size_t scheite;
    };
    for (const Fall& f :
         std::vector<Fall>{{0, 0}, {7, 0}, {7.2F, 1}, {21.4F, 1}, {21.5F, 3}, {200, 28}, {999, 28}})
        EXPECT_EQ(haupttraeger(*projekt(5, 1, f.energie, 0)).alle(Art::kreis).size(), f.scheite) << f.energie;
    const auto scheite = haupttraeger(*projekt(5, 1, 21.5F, 0)).alle(Art::kreis);
    EXPECT_EQ(scheite[0].zahlen, (std::vector<double>{36, 45, 4}));
    EXPECT_EQ(scheite[1].zahlen, (std::vector<double>{44, 45, 4}));
    EXPECT_EQ(scheite[2].zahlen, (std::vector<double>{40, 38, 4}));
    EXPECT_EQ(scheite[0].fuellung, (Farbe{232, 170, 96}));
}

/// Left, top, right and bottom of all that is drawn but texts.
std::vector<double> umriss(const Testflaeche& bild) {
    std::vector<double> u{1e9, 1e9, -1e9, -1e9};
    const auto nimm = [&](double x, double y) {
        u = {std::min(u[0], x), std::min(u[1], y), std::max(u[2], x), std::max(u[3], y)};
    };
    for (const Zeichnung& z : bild.zeichnungen) {
        if (z.art == Art::kreis) {
            nimm(z.zahlen[0] - z.zahlen[2], z.zahlen[1] - z.zahlen[2]);
            nimm(z.zahlen[0] + z.zahlen[2], z.zahlen[1] + z.zahlen[2]);
        } else if (z.art == Art::linie || z.art == Art::flaeche || z.art == Art::kasten) {
            nimm(z.zahlen[0], z.zahlen[1]);
            nimm(z.zahlen[2], z.zahlen[3]);
        }
    }
    return u;
}

TEST(Traegerbild, GroesseFolgtDerWurzelOderDemBetrag) {
    // Gas grows with the root of the energy, from the foot at 48 and around 40.
    const auto gas_klein = umriss(haupttraeger(*projekt(1, 2, 50, 0)));
    const auto gas_gross = umriss(haupttraeger(*projekt(1, 2, 200, 0)));
    EXPECT_DOUBLE_EQ(gas_gross[3], 48);
    EXPECT_DOUBLE_EQ(48 - gas_gross[1], 2 * (48 - gas_klein[1]));
    EXPECT_DOUBLE_EQ(gas_gross[0] + gas_gross[2], 80);
    EXPECT_GE(gas_gross[1], 0);
    // District heat grows with the energy around (40, 28).
    const auto netz_klein = umriss(haupttraeger(*projekt(6, 1, 50, 0)));
    const auto netz_gross = umriss(haupttraeger(*projekt(6, 1, 100, 0)));
    EXPECT_NEAR(netz_gross[2] - 40, 2 * (netz_klein[2] - 40), 1e-9);
    EXPECT_NEAR(netz_gross[1] + netz_gross[3], 56, 1e-9);
    const auto kasten = haupttraeger(*projekt(6, 1, 100, 0)).alle(Art::flaeche, {255, 153, 153});
    ASSERT_EQ(kasten.size(), 1U);
    EXPECT_EQ(kasten[0].zahlen, (std::vector<double>{30, 18, 50, 38}));
}

TEST(Traegerbild, BlitzNachSeinemMass) {
    // v = (12 + 88) / 2 = 50: multiples of 3 around (40, 25), lines of two pixels.
    const auto linien = haupttraeger(*projekt(8, 1, 12, 88)).alle(Art::linie);
    ASSERT_FALSE(linien.empty());
    for (const Zeichnung& z : linien) {
        EXPECT_EQ(z.farbe, (Farbe{255, 128, 0}));
        EXPECT_EQ(z.dicke, 2);
        for (const double zahl : {z.zahlen[0] - 40, z.zahlen[1] - 25, z.zahlen[2] - 40, z.zahlen[3] - 25})
            EXPECT_DOUBLE_EQ(std::remainder(zahl, 3.0), 0);
    }
    EXPECT_EQ(haupttraeger(*projekt(8, 1, 198, 0)).alle(Art::linie).front().dicke, 2);
    EXPECT_EQ(haupttraeger(*projekt(8, 1, 500, 0)).alle(Art::linie).front().dicke, 3);
}

TEST(Traegerbild, HilfsstromFehltBeiStrom) {
    const Testflaeche leer = hilfsstrom(*projekt(9, 1, 20, 3));
    ASSERT_EQ(leer.zeichnungen.size(), 1U);
    EXPECT_EQ(leer.zeichnungen[0].art, Art::cls);

    const auto p = projekt(3, 1, 20, 2.5F);
    EXPECT_EQ(hilfsstrom(*p).texte(), (Texte{"Strom:", "500 kWh/a"}));
    EXPECT_EQ(hilfsstrom(*p).alle(Art::linie).front().dicke, 2);  // v = 50
    p->Sprache = "e";
    EXPECT_EQ(hilfsstrom(*p).texte(), (Texte{"electricity:", "500 kWh/a"}));
    // v is capped at 100, which 5 kWh/(m2 a) reach.
    EXPECT_EQ(umriss(hilfsstrom(*projekt(3, 1, 20, 5))), umriss(hilfsstrom(*projekt(3, 1, 20, 9))));
}

}  // namespace
}  // namespace velmaris
