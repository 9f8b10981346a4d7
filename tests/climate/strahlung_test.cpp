#include "climate/strahlung.h"

#include "climate/sonne.h"

#include <gtest/gtest.h>
#include <memory>
#include <tuple>

namespace velmaris {
namespace {

/// The kept factors of a plane must be those worked out one by one, but for the last bit.
void vergleiche(const Projekt& p, const Ebenentabelle& tabelle, double azimut, double neigung) {
    const Standort ort{p.Breite, p.Laengenkorrektur};
    fuer_jede_stunde([&](int m, int d, int h, int n) {
        ASSERT_NEAR(tabelle.faktor(m, d, h), einfallsfaktor_ebene(ort, n, h, p.orient, azimut, neigung), 1e-7)
            << azimut << ": " << m << '/' << d << ' ' << h;
    });
}

std::unique_ptr<Projekt> station(double breite, float Laengenkorrektur, Wetterstunde wetter = {}) {
    auto p = std::make_unique<Projekt>();
    p->Breite = static_cast<float>(breite * 0.01745);
    p->Laengenkorrektur = Laengenkorrektur;
    fuer_jede_stunde([&](int m, int d, int h, int) { p->Wetter(m, d, h) = wetter; });
    station_uebernehmen(*p);
    return p;
}

TEST(Ebenen, StimmenMitDerEinzelnenRechnungUeberein) {
    using Fall = std::tuple<double, float, std::int16_t, float>;
    for (const auto& [breite, laenge, orient, neigung] :
         {Fall{49.75, 8.34F, 0, 21.8F}, Fall{-33.9, -1.2F, -180, 45}, Fall{0, 0, 37, 60},
          Fall{78.2, 0.5F, 180, 5}, Fall{-89.9, 15, 90, 33.3F}, Fall{66.5, -7.5F, -45, 89}}) {
        const auto p = station(breite, laenge);
        p->orient = orient;
        p->Dachneigung = neigung;
        p->f_dach_n = p->f_dach_s = p->f_dach_o = p->f_dach_w = p->f_dach_flach = 1;
        ebenen_bereitstellen(*p);
        const Strahlungstabellen& s = p->Strahlung;
        for (const auto& [wand, geneigt, azimut] :
             {std::tuple(&s.wand_n, &s.dach_n, 180), std::tuple(&s.wand_s, &s.dach_s, 0),
              std::tuple(&s.wand_o, &s.dach_o, -90), std::tuple(&s.wand_w, &s.dach_w, 90)}) {
            vergleiche(*p, *wand, azimut, 90);
            vergleiche(*p, *geneigt, azimut, neigung);
        }
        vergleiche(*p, s.dach_flach, 0, 0);
    }
}

TEST(Ebenen, WerdenNurNeuGerechnetWennSichIhrSchluesselAendert) {
    const auto p = station(50, 0);
    p->f_dach_s = 1;
    p->Dachneigung = 30;
    ebenen_bereitstellen(*p);
    Strahlungstabellen& s = p->Strahlung;
    for (const auto* ohne_flaeche : {&s.dach_n, &s.dach_o, &s.dach_w})
        EXPECT_EQ(ohne_flaeche->station, 0U) << "a roof plane without area is left alone";
    const auto bleibt = [&](auto&& aendern) {
        s.wand_s.faktor(6, 1, 12) = s.dach_s.faktor(6, 1, 12) = 7;
        aendern();
        ebenen_bereitstellen(*p);
        return std::pair(s.wand_s.faktor(6, 1, 12) == 7, s.dach_s.faktor(6, 1, 12) == 7);
    };
    EXPECT_EQ(bleibt([&] { p->l = 99; }), std::pair(true, true));
    EXPECT_EQ(bleibt([&] { p->Dachneigung = 31; }), std::pair(true, false));
    EXPECT_EQ(bleibt([&] { p->orient = 10; }), std::pair(false, false));
    EXPECT_EQ(bleibt([&] { station_uebernehmen(*p); }), std::pair(false, false));
}

TEST(Monatsstrahlung, SummiertStetigesWetterWieVonHand) {
    // No direct light: each plane gets 0.5 + 0.125 of the diffuse, over 744, 672 and 720 hours. 62.5 W/m2 are
    // 167.4, 151.2 and 162.0 MJ/m2, 1369.375 W/m2 are 3667.73, 3312.79 and 3549.42; 1370 W/m2 stay out.
    using Fall = std::tuple<float, int, int, int>;
    for (const auto& [diffus, januar, februar, april] :
         {Fall{100, 167, 151, 162}, Fall{0, 0, 0, 0}, Fall{-100, 0, 0, 0}, Fall{2191, 3667, 3312, 3549},
          Fall{2192, 0, 0, 0}}) {
        const auto p = station(50, 0, {5, 0, diffus});
        monatsstrahlung_berechnen(*p);
        for (const auto feld : {&Monatswerte::Strahlung_N, &Monatswerte::Strahlung_S,
                                &Monatswerte::Strahlung_O, &Monatswerte::Strahlung_W}) {
            EXPECT_EQ(p->Monat(1).*feld, januar) << diffus;
            EXPECT_EQ(p->Monat(2).*feld, februar) << diffus;
            EXPECT_EQ(p->Monat(4).*feld, april) << diffus;
        }
        EXPECT_NEAR(p->Monat(1).Tmittel, 5, 1e-4);
    }
}

TEST(Monatsstrahlung, NimmtDenBodenVomDirektenLicht) {
    // At noon the north wall sees no sun, but an eighth of the direct value comes from the ground.
    const auto p = station(50, 0);
    fuer_jeden_tag([&](int m, int d, int) { p->Wetter(m, d, 12).Direkt = 1200; });
    p->Wetter(7, 3, 8).Direkt = 1200;
    monatsstrahlung_berechnen(*p);
    EXPECT_EQ(p->Monat(1).Strahlung_N, 16);  // 150 W/m2 over 31 hours: 16.74 MJ/m2
    EXPECT_EQ(p->Monat(2).Strahlung_N, 15);  // 28 hours: 15.12
    EXPECT_GT(p->Monat(7).Strahlung_O, p->Monat(7).Strahlung_W + 1) << "one bright morning";
}

TEST(Monatsstrahlung, RundetDieTemperatursummeBeiJedemSchritt) {
    // The first hour of January brings the sum to 2^24, where adding 1 is lost in 32 bits.
    const auto p = station(50, 0, {744, 0, 0});
    p->Wetter(1, 1, 1).Ta = 744.0F * 16777216.0F;
    monatsstrahlung_berechnen(*p);
    EXPECT_EQ(p->Monat(1).Tmittel, 16777216.0F);
}

TEST(Station, KenntTagesmittelUndExtreme) {
    const auto p = station(50, 0, {12, 0, 0});
    EXPECT_EQ(p->Strahlung.werte.Tagesmittel(1), 12) << "exactly";
    p->Wetter(12, 31, 24).Ta = 36;
    p->Wetter(2, 1, 1).Ta = -36;
    station_uebernehmen(*p);
    EXPECT_DOUBLE_EQ(p->Strahlung.werte.Tagesmittel(365), 13);
    EXPECT_DOUBLE_EQ(p->Strahlung.werte.Tagesmittel(32), 10);
}

}  // namespace
}  // namespace velmaris
