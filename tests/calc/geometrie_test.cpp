#include "calc/geometrie.h"

#include "tests/musterprojekt.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace velmaris {
namespace {

/// A house and what its geometry must come to; one value per row of `werte`.
struct Fall {
    std::string name;
    std::function<void(Projekt&)> einrichten;
    std::vector<std::pair<float Projekt::*, double>> werte;
};

void pruefen(const std::vector<Fall>& faelle) {
    for (const Fall& fall : faelle) {
        SCOPED_TRACE(fall.name);
        const auto p = test::musterprojekt();
        fall.einrichten(*p);
        geometrie_berechnen(*p);
        std::size_t nummer = 0;
        for (const auto& [feld, erwartet] : fall.werte)
            EXPECT_NEAR((*p).*feld, erwartet, 1e-6 * std::fabs(erwartet)) << "value " << nummer++;
    }
}

TEST(Geometrie, KastenUndFlachdach) {
    pruefen({
        {"new project",
         [](Projekt&) {},
         {{&Projekt::f_nfa, 52},
          {&Projekt::f_ofa, 52},
          {&Projekt::f_gd, 100},
          {&Projekt::v_geb, 520},
          {&Projekt::f_nutz, 160},
          {&Projekt::v_luft, 416},
          {&Projekt::AV, 408. / 520},
          {&Projekt::f_dach_flach, 100},
          {&Projekt::Dachneigung, 0},
          {&Projekt::f_sf, 20.8},
          {&Projekt::f_nf, 2.6},
          {&Projekt::f_gf, 28.6},
          {&Projekt::f_sw, 31.2},
          {&Projekt::f_ww, 49.4},
          {&Projekt::f_wand, 179.4}}},
        {"roof height without heated attic counts nowhere",
         [](Projekt& p) { p.hd = 4; },
         {{&Projekt::f_nutz, 160},
          {&Projekt::v_geb, 520},
          {&Projekt::f_giebel_n, 0},
          {&Projekt::f_dach_o, 0}}},
        {"longer than wide",
         [](Projekt& p) {
             p.l = 15;
             p.b = 8;
         },
         {{&Projekt::f_nfa, 78}, {&Projekt::f_sfa, 78}, {&Projekt::f_ofa, 41.6}, {&Projekt::f_wfa, 41.6}}},
        {"no height at all keeps the volume divisible",
         [](Projekt& p) { p.h = 0; },
         {{&Projekt::v_geb, 1}, {&Projekt::v_luft, 0.8}, {&Projekt::AV, 200}}},
    });
}

TEST(Geometrie, NachbarnNehmenFassadeUndFensterNichtDieTuer) {
    pruefen({
        {"neighbour in the north, door stays",
         [](Projekt& p) {
             p.awn = 0;
             p.ft = 2;
         },
         {{&Projekt::f_nfa, 0}, {&Projekt::f_nf, 0}, {&Projekt::f_nw, -2}, {&Projekt::f_wand, 128}}},
        {"door larger than the north wall",
         [](Projekt& p) {
             p.h = 2;
             p.ft = 21;
             p.fn = 0;
         },
         {{&Projekt::f_nw, -1}}},
        {"neighbours all around",
         [](Projekt& p) { p.awn = p.aws = p.awo = p.aww = 0; },
         {{&Projekt::f_gf, 0}, {&Projekt::f_wand, 0}, {&Projekt::AV, 200. / 520}, {&Projekt::v_luft, 416}}},
    });
}

void dachgeschoss(Projekt& p, float l, float b, float hd, std::int16_t first) {
    p.Check_Dachgeschoss = 1;
    p.Option_Dachfirst = first;
    p.l = l;
    p.b = b;
    p.hd = hd;
}

TEST(Geometrie, SatteldachNachFirstrichtung) {
    // Spans of 8 and 6 m with heights of 3 and 4 m: the rafter is 5 m long.
    pruefen({
        {"ridge north-south",
         [](Projekt& p) { dachgeschoss(p, 8, 6, 3, 1); },
         {{&Projekt::f_dach_o, 30},
          {&Projekt::f_dach_w, 30},
          {&Projekt::f_dach_n, 0},
          {&Projekt::f_dach_s, 0},
          {&Projekt::f_giebel_s, 12},
          {&Projekt::f_giebel_n, 12},
          {&Projekt::f_giebel_o, 0},
          {&Projekt::f_dach_flach, 0},
          {&Projekt::Dachneigung, 36.869929}}},
        {"ridge east-west",
         [](Projekt& p) { dachgeschoss(p, 8, 6, 4, 2); },
         {{&Projekt::f_dach_n, 40},
          {&Projekt::f_dach_s, 40},
          {&Projekt::f_dach_o, 0},
          {&Projekt::f_dach_w, 0},
          {&Projekt::f_giebel_w, 12},
          {&Projekt::f_giebel_o, 12},
          {&Projekt::f_giebel_s, 0},
          {&Projekt::Dachneigung, 53.130147},
          {&Projekt::AV, (145.6 + 48 + 80 + 24) / (249.6 + 96)}}},
        {"no ridge chosen counts as east-west",
         [](Projekt& p) { dachgeschoss(p, 8, 6, 4, 0); },
         {{&Projekt::f_dach_n, 40}, {&Projekt::f_giebel_n, 0}}},
    });
}

TEST(Geometrie, NutzflaecheDesDachgeschossesFolgtDerDachhoehe) {
    struct Stufe {
        float hd;
        double f_nutz;
        double v_geb;
    };
    // Two floors of 80 m2 in the box; the roof adds by its height.
    for (const Stufe& s : std::vector<Stufe>{{0.5F, 160, 545},
                                             {1, 160, 570},
                                             {1.25F, 168, 582.5},
                                             {2, 180, 620},
                                             {2.5F, 160 + 16 + 16, 645},
                                             {4, 160 + 40 + 10, 720}}) {
        const auto p = test::musterprojekt();
        dachgeschoss(*p, 10, 10, s.hd, 1);
        geometrie_berechnen(*p);
        EXPECT_FLOAT_EQ(p->f_nutz, static_cast<float>(s.f_nutz)) << s.hd;
        EXPECT_FLOAT_EQ(p->v_geb, static_cast<float>(s.v_geb)) << s.hd;
    }
}

TEST(Geometrie, BodenfaktorNachArtUndGroesse) {
    struct Zeile {
        std::int16_t typ;
        float klein, an_5, an_10, gross;
    };
    const std::vector<Zeile> zeilen{{0, 0.55F, 0.5F, 0.5F, 0.45F},       {1, 0.7F, 0.65F, 0.65F, 0.55F},
                                    {2, 0.3F, 0.25F, 0.25F, 0.2F},       {3, 0.45F, 0.4F, 0.4F, 0.25F},
                                    {4, 0.9F, 0.9F, 0.9F, 0.9F},         {5, 0.123F, 0.123F, 0.123F, 0.123F},
                                    {-1, 0.123F, 0.123F, 0.123F, 0.123F}};
    const auto p = test::musterprojekt();
    const auto faktor = [&](std::int16_t typ, float seite) {
        p->ugd_typ = typ;
        p->l = p->b = seite;
        p->Fx_ugd = 0.123F;
        geometrie_berechnen(*p);
        return p->Fx_ugd;
    };
    for (const Zeile& z : zeilen) {
        EXPECT_EQ(faktor(z.typ, 9.9F), z.klein) << z.typ;
        EXPECT_EQ(faktor(z.typ, 10), z.an_5) << z.typ;
        EXPECT_EQ(faktor(z.typ, 20), z.an_10) << z.typ;
        EXPECT_EQ(faktor(z.typ, 20.1F), z.gross) << z.typ;
    }
}

}  // namespace
}  // namespace velmaris
