#include "planes/geometrietexte.h"

#include "calc/geometrie.h"
#include "tests/musterprojekt.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

TEST(Geometrietexte, ZeigenDieHaelftenWieSieSind) {
    const auto p = test::musterprojekt();
    p->l = 8;
    p->b = 6;
    p->hd = 3;
    p->Check_Dachgeschoss = 1;
    p->Option_Dachfirst = 1;
    p->awn = 0;
    geometrie_berechnen(*p);
    const GeometrieTexte t = geometrie_texte(*p);
    EXPECT_EQ(t.l_anz, "Länge: 8.0 m");
    EXPECT_EQ(t.b_anz, "Breite: 6.0 m");
    EXPECT_EQ(t.h_anz, "5.2 m");
    EXPECT_EQ(t.hd_anz, "3.0 m");
    EXPECT_EQ(t.ag_anz, " 2");
    EXPECT_EQ(t.f_nfa_anz, " 41.6");
    EXPECT_EQ(t.f_wfa_anz, " 31.2");
    EXPECT_EQ(t.Giebel_anz, " 12.0 m²");
    EXPECT_EQ(t.dachfläche_anz, " 30.0 m²");
    EXPECT_EQ(t.f_nutz_anz, " 96.0");
    EXPECT_EQ(t.f_gd_anz, " 48.0");
    EXPECT_EQ(t.v_geb_anz, " 321.6");
    EXPECT_EQ(t.v_luft_anz, " 257.3");

    p->Sprache = "e";
    EXPECT_EQ(geometrie_texte(*p).l_anz, "length: 8.0 m");
    EXPECT_EQ(geometrie_texte(*p).b_anz, "width: 6.0 m");
}

TEST(Fenstertexte, MittelnNachFlaecheUndNachGlas) {
    const auto p = test::musterprojekt();
    p->kfs = 1;
    p->gfs = 0.8F;
    p->ras = 0.5F;
    geometrie_berechnen(*p);
    const FensterTexte t = fenster_texte(*p);
    EXPECT_EQ(t.f_sf_anz, " 20.8");
    EXPECT_EQ(t.f_nf_anz, " 2.6");
    EXPECT_EQ(t.f_wf_anz, " 2.6");
    EXPECT_EQ(t.f_of_anz, " 2.6");
    EXPECT_EQ(t.f_gf_anz, "28.6");
    EXPECT_EQ(t.f_vf_anz, "16.6");  // 0.5 x 20.8 + 0.8 x 7.8
    EXPECT_EQ(t.kf_anz, " 1.11");   // (20.8 + 1.42 x 7.8) / 28.6
    EXPECT_EQ(t.gfm_anz, " 0.72");  // (0.8 x 10.4 + 0.58 x 6.24) / 16.64
}

TEST(Fenstertexte, OhneFensterOderGlasBleibenDieMittelLeer) {
    const auto p = test::musterprojekt();
    p->ran = p->ras = p->rao = p->raw = 1;
    geometrie_berechnen(*p);
    EXPECT_EQ(fenster_texte(*p).kf_anz, " 1.42");
    EXPECT_EQ(fenster_texte(*p).gfm_anz, "");
    p->fn = p->fs = p->fo = p->fw = 0;
    geometrie_berechnen(*p);
    EXPECT_EQ(fenster_texte(*p).f_gf_anz, "0.0");
    EXPECT_EQ(fenster_texte(*p).kf_anz, "");
    EXPECT_EQ(fenster_texte(*p).gfm_anz, "");
}

}  // namespace
}  // namespace velmaris
