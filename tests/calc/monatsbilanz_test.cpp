#include "calc/monatsbilanz.h"

#include "calc/geometrie.h"
#include "tests/musterprojekt.h"
#include "toolkit/fehler.h"

#include <cmath>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace velmaris {
namespace {

TEST(Nutzungsgrad, FolgtDemVerhaeltnisVonGewinnUndVerlust) {
    constexpr float sechzehn_stunden = 16 * 3600;  // a = 2
    struct Fall {
        float gamma;
        double erwartet;
    };
    for (const Fall& fall : std::vector<Fall>{{0, 1},
                                              {0.5F, 6. / 7},
                                              {1, 2. / 3},
                                              {std::nextafter(1.0F, 2.0F), 2. / 3},
                                              {2, 3. / 7},
                                              {1000, 1e-3},
                                              {1e9F, 1e-9}})
        EXPECT_NEAR(nutzungsgrad(sechzehn_stunden, fall.gamma), fall.erwartet, 2e-6 * fall.erwartet + 1e-15)
            << fall.gamma;
    // Without inertia a is 1 and the factor 1 / (1 + gamma).
    EXPECT_FLOAT_EQ(nutzungsgrad(0, 3), 0.25F);
    EXPECT_FLOAT_EQ(nutzungsgrad(0, 1), 0.5F);
}

TEST(Nutzungsgrad, UeberlaufDerPotenzIstEinFehler) {
    constexpr float monate_traege = 1e8F;
    EXPECT_THROW(static_cast<void>(nutzungsgrad(monate_traege, 2)), Laufzeitfehler);
    EXPECT_NO_THROW(static_cast<void>(nutzungsgrad(monate_traege, 0.5F)));
}

/// A year that is January alone: the other months are warmer than the room.
std::unique_ptr<Projekt> nur_januar() {
    auto p = test::musterprojekt();
    for (Monatswerte& m : p->Monat) {
        m.Tmittel = 25;
        m.Strahlung_N = 20;
        m.Strahlung_S = 100;
        m.Strahlung_O = m.Strahlung_W = 40;
    }
    p->Monat(1).Tmittel = 0;
    geometrie_berechnen(*p);
    return p;
}

TEST(Monatsbilanz, EinMonatVonHand) {
    const auto p = nur_januar();
    p->qh = p->Fenstergewinn_S = p->qtr_Dach = 1e6F;  // an earlier run's sums must go
    monatsbilanz(*p);
    const Monatswerte& januar = p->Monat(1);
    struct Wert {
        const char* name;
        float gerechnet;
        double von_hand;
        float bisher;  ///< what this program gave when the value was first checked
    };
    // 620 Kd; 139.432 W/K through the envelope (walls 53.82, roof 30, floor 15, windows 40.612).
    const std::vector<Wert> werte{
        {"Qt", januar.Qt, 2074.748, 2074.74805F},
        {"Qv", januar.Qv, 1330.867, 1330.86731F},
        {"Qi_brutto", januar.Qi_brutto, 339.726, 339.726013F},
        {"Qs_brutto", januar.Qs_brutto, 241.280, 241.279984F},
        {"Nutzgrad", januar.Nutzgrad, 0.9999146, 0.999914587F},
        {"Qh", januar.Qh, 2824.659, 2824.65894F},
        {"qh", p->qh, 2824.659, 2824.65894F},
        {"qhs_sum", p->qhs_sum, 2824.659 / 160, 17.6541176F},
        {"qtr_Waende", p->qtr_Waende, 800.8416, 800.841614F},
        {"qtr_Dach", p->qtr_Dach, 446.4, 446.399994F},
        {"qtr_Boden", p->qtr_Boden, 223.2, 223.199997F},
        {"qtr_Fenster", p->qtr_Fenster, 604.3066, 604.306519F},
        {"Fensterverlust_S", p->Fensterverlust_S, 439.4957, 439.495636F},
        {"Fenstergewinn_S", p->Fenstergewinn_S, 214.4711 * 0.9999146, 214.452774F},
        {"Fenstergewinn_N", p->Fenstergewinn_N, 5.361778 * 0.9999146, 5.36131954F},
        {"Fenstergewinn_W", p->Fenstergewinn_W, 10.723556 * 0.9999146, 10.7226391F},
        {"qverl_s", p->qverl_s, 3405.615 / 160, 21.2850952F},
    };
    for (const Wert& w : werte) {
        EXPECT_NEAR(w.gerechnet, w.von_hand, 1e-6 * w.von_hand) << w.name;
        EXPECT_FLOAT_EQ(w.gerechnet, w.bisher) << w.name;
    }
}

TEST(Monatsbilanz, WarmerMonatHatGewinneAberKeinenBedarf) {
    const auto p = nur_januar();
    monatsbilanz(*p);
    const Monatswerte& juli = p->Monat(7);
    EXPECT_EQ(juli.Qt, 0);
    EXPECT_EQ(juli.Qv, 0);
    EXPECT_EQ(juli.Nutzgrad, 0);
    EXPECT_EQ(juli.Qs_genutzt, 0);
    EXPECT_EQ(juli.Qi_genutzt, 0);
    EXPECT_EQ(juli.Qh, 0);
    EXPECT_NEAR(juli.Qs_brutto, 241.28, 1e-3);
    EXPECT_NEAR(juli.Qi_brutto, 339.726, 1e-3);
}

TEST(Monatsbilanz, DachraumZaehltNurOhneDachgeschoss) {
    struct Fall {
        std::int16_t dachgeschoss, typ;
        double dach;  ///< kWh in January
    };
    // 100 m2 flat, or two planes of 10 x sqrt(25 + 4) m2, at 0.3 W/(m2 K).
    const double schraeg = 20 * std::sqrt(29.0) * 0.3 * 14.88;
    for (const Fall& fall : std::vector<Fall>{
             {0, 0, 446.4}, {0, 1, 357.12}, {0, 2, 223.2}, {0, 3, 0}, {1, 0, schraeg}, {1, 2, schraeg}}) {
        const auto p = nur_januar();
        p->Check_Dachgeschoss = fall.dachgeschoss;
        p->Dachraum_typ = fall.typ;
        geometrie_berechnen(*p);
        monatsbilanz(*p);
        EXPECT_NEAR(p->qtr_Dach, fall.dach, 1e-3) << fall.dachgeschoss << ' ' << fall.typ;
    }
}

TEST(Monatsbilanz, GiebelUeberDemNachbarnBleibtAussenwand) {
    const auto p = nur_januar();
    p->awn = p->aws = p->awo = p->aww = 0;
    p->Check_Dachgeschoss = 1;
    p->Option_Dachfirst = 1;
    p->hd = 3;
    geometrie_berechnen(*p);
    monatsbilanz(*p);
    EXPECT_NEAR(p->qtr_Waende, 0.3 * 30 * 14.88, 1e-3);  // two gables of 15 m2
    EXPECT_EQ(p->qtr_Fenster, 0);
}

}  // namespace
}  // namespace velmaris
