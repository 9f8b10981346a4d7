#include "calc/geometrie.h"

#include "project/feldtabelle.h"
#include "tests/musterprojekt.h"

#include <cmath>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace velmaris {
namespace {

void dachgeschoss(Projekt& p, float l, float b, float hd, std::int16_t first) {
    p.Check_Dachgeschoss = 1, p.Option_Dachfirst = first;
    p.l = l, p.b = b, p.hd = hd;
}

void ungleiche_seiten(Projekt& p) {
    p.l = 15, p.b = 8;
    p.fn = 10, p.fo = 20, p.fw = 30, p.ft = 2;
}

TEST(Geometrie, VonHand) {
    const struct {
        void (*einrichten)(Projekt&);
        const char* soll;  ///< names of quantities, each with its value
    } faelle[] = {
        {[](Projekt&) {},
         "f_nfa 52 f_ofa 52 f_gd 100 v_geb 520 f_nutz 160 v_luft 416 AV .784615385 f_dach_flach 100 "
         "Dachneigung 0 f_sf 20.8 f_nf 2.6 f_gf 28.6 f_sw 31.2 f_ww 49.4 f_wand 179.4"},
        {ungleiche_seiten,
         "f_nfa 78 f_sfa 78 f_ofa 41.6 f_wfa 41.6 f_nf 7.8 f_sf 31.2 f_of 8.32 f_wf 12.48 f_gf 59.8 "
         "f_nw 68.2 f_sw 46.8 f_ow 33.28 f_ww 29.12 f_wand 177.4"},
        // The height of a roof without heated attic counts nowhere; without any height the volume is 1.
        {[](Projekt& p) { p.hd = 4; }, "f_nutz 160 v_geb 520 f_giebel_n 0 f_dach_o 0"},
        {[](Projekt& p) { p.h = 0; }, "v_geb 1 v_luft 0.8 AV 200"},
        {[](Projekt& p) { p.awn = 0, p.ft = 2; }, "f_nfa 0 f_nf 0 f_nw -2 f_wand 128"},
        {[](Projekt& p) { p.awn = p.aws = p.awo = p.aww = 0; }, "f_gf 0 f_wand 0 AV .384615385 v_luft 416"},
        // Spans of 8 and 6 m with heights of 3 and 4 m: the rafter is 5 m long.
        {[](Projekt& p) { dachgeschoss(p, 8, 6, 3, 1); },
         "f_dach_o 30 f_dach_w 30 f_dach_n 0 f_dach_s 0 f_giebel_s 12 f_giebel_n 12 f_giebel_o 0 "
         "f_dach_flach 0 Dachneigung 36.869929"},
        {[](Projekt& p) { dachgeschoss(p, 8, 6, 4, 2); },
         "f_dach_n 40 f_dach_s 40 f_dach_o 0 f_dach_w 0 f_giebel_w 12 f_giebel_o 12 f_giebel_s 0 "
         "Dachneigung 53.130147 AV .861111111"},
        // Two floors of 80 m2 in the box; the roof adds to them by its height.
        {[](Projekt& p) { dachgeschoss(p, 10, 10, 1, 1); }, "f_nutz 160 v_geb 570"},
        {[](Projekt& p) { dachgeschoss(p, 10, 10, 1.25F, 1); }, "f_nutz 168 v_geb 582.5"},
        {[](Projekt& p) { dachgeschoss(p, 10, 10, 2, 1); }, "f_nutz 180 v_geb 620"},
        {[](Projekt& p) { dachgeschoss(p, 10, 10, 2.5F, 1); }, "f_nutz 192 v_geb 645"},
        {[](Projekt& p) { dachgeschoss(p, 10, 10, 4, 1); }, "f_nutz 210 v_geb 720"},
    };
    for (const auto& [einrichten, soll] : faelle) {
        const auto p = test::musterprojekt();
        einrichten(*p);
        geometrie_berechnen(*p);
        std::istringstream werte(soll);
        std::string name;
        for (double erwartet = 0; werte >> name >> erwartet;) {
            const float wert = (*p).*std::get<float Projekt::*>(feld_suchen(name)->zeiger);
            EXPECT_NEAR(wert, erwartet, 1e-6 * std::fabs(erwartet)) << name << " of: " << soll;
        }
        EXPECT_TRUE(werte.eof()) << soll;
    }
}

TEST(Geometrie, BodenfaktorNachArtUndGroesse) {
    const struct {
        std::int16_t typ;
        float klein, mittel, gross;
    } zeilen[] = {{0, 0.55F, 0.5F, 0.45F},     {1, 0.7F, 0.65F, 0.55F}, {2, 0.3F, 0.25F, 0.2F},
                  {3, 0.45F, 0.4F, 0.25F},     {4, 0.9F, 0.9F, 0.9F},   {5, 0.123F, 0.123F, 0.123F},
                  {-1, 0.123F, 0.123F, 0.123F}};
    for (const auto& [typ, klein, mittel, gross] : zeilen) {
        for (const auto& [seite, faktor] :
             {std::pair{9.9F, klein}, {10.0F, mittel}, {20.0F, mittel}, {20.1F, gross}}) {
            const auto p = test::musterprojekt();
            p->ugd_typ = typ, p->Fx_ugd = 0.123F;
            p->l = p->b = seite;
            geometrie_berechnen(*p);
            EXPECT_EQ(p->Fx_ugd, faktor) << typ << ", " << seite;
        }
    }
}

}  // namespace
}  // namespace velmaris
