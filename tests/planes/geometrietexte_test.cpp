#include "planes/geometrietexte.h"

#include "calc/geometrie.h"
#include "tests/musterprojekt.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

TEST(Geometrietexte, SprechenEnglisch) {
    const auto p = test::musterprojekt();
    p->Sprache = "e";
    EXPECT_EQ(geometrie_texte(*p).l_anz, "length: 10.0 m");
    EXPECT_EQ(geometrie_texte(*p).b_anz, "width: 10.0 m");
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
