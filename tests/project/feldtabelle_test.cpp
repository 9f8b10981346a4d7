#include "project/feldtabelle.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

// The quantities that no project file holds, and those of a month. Name and member come from one word.
#define GROESSEN(X)                                                                                          \
    X(kfn), X(kfs), X(kfo), X(kfw), X(Dachneigung), X(f_sfa), X(f_wfa), X(f_nfa), X(f_ofa), X(f_dach_s),     \
        X(f_dach_w), X(f_dach_n), X(f_dach_o), X(f_dach_flach), X(f_giebel_s), X(f_giebel_w), X(f_giebel_n), \
        X(f_giebel_o), X(v_geb), X(v_luft), X(f_gd), X(f_nutz), X(AV), X(Fx_ugd), X(f_nf), X(f_wf), X(f_sf), \
        X(f_of), X(f_nw), X(f_ww), X(f_sw), X(f_ow), X(f_wand), X(f_gf), X(Cwirk), X(tau), X(Breite),        \
        X(Laengenkorrektur), X(qh), X(qhs_sum), X(qsol), X(qsols), X(qi), X(qis), X(qtr), X(qtrs), X(qinf),  \
        X(qinfs), X(qverl_s), X(Fensterverlust_N), X(Fensterverlust_W), X(Fensterverlust_S),                 \
        X(Fensterverlust_O), X(Fenstergewinn_N), X(Fenstergewinn_W), X(Fenstergewinn_S), X(Fenstergewinn_O), \
        X(qtr_Waende), X(qtr_Dach), X(qtr_Boden), X(qtr_Fenster), X(qtr_Tuer), X(q_HE_Energietraeger),       \
        X(q_HE_Strom), X(q_PE_Energietraeger), X(q_PE_Strom), X(Heizlast_max), X(Kuehllast_max)
#define MONATSGROESSEN(X)                                                                                  \
    X(Name), X(Kurz), X(Tage), X(Strahlung_N), X(Strahlung_S), X(Strahlung_O), X(Strahlung_W), X(Tmittel), \
        X(Nutzgrad), X(Qt), X(Qv), X(Qs_genutzt), X(Qi_genutzt), X(Qs_brutto), X(Qi_brutto), X(Qh),        \
        X(Kuehlbedarf), X(Kuehlgradstunden), X(Stunden_kalt), X(Stunden_heiss), X(Stunden_komfort),        \
        X(Kuehl_solar), X(Kuehl_intern), X(Kuehl_trans), X(Kuehl_lueft)
#define FELD(name) \
    { #name, &Projekt::name }
#define MONATSFELD(name) \
    { #name, &Monatswerte::name }

TEST(Feldtabelle, WasNichtInDerDateiStehtHatSeinenNamen) {
    const std::vector<std::pair<std::string_view, Feldzeiger>> erwartet{GROESSEN(FELD)};
    for (const auto& [name, zeiger] : erwartet) {
        const Feldzeile* feld = feld_suchen(name);
        ASSERT_NE(feld, nullptr) << name;
        EXPECT_EQ(feld->zeiger, zeiger) << name;
        EXPECT_EQ(feld->zeile, 0) << name;
    }
    EXPECT_EQ(felder().size(), erwartet.size() + 68);
    EXPECT_EQ(feld_suchen("k"), nullptr);
}

TEST(Feldtabelle, JedeGroesseDesMonatsStehtUnterIhremNamen) {
    const std::vector<Monatszeile> erwartet{MONATSGROESSEN(MONATSFELD)};
    ASSERT_EQ(monatsfelder().size(), erwartet.size());
    for (std::size_t i = 0; i < erwartet.size(); ++i) {
        EXPECT_EQ(monatsfelder()[i].name, erwartet[i].name);
        EXPECT_EQ(monatsfelder()[i].zeiger, erwartet[i].zeiger) << erwartet[i].name;
    }
}

}  // namespace
}  // namespace velmaris
