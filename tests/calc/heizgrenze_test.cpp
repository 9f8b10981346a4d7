#include "calc/heizgrenze.h"

#include "climate/strahlung.h"
#include "toolkit/fehler.h"

#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace velmaris {
namespace {

/// A cube without windows, 10 m on each side: transmission by walls 4 x 100 x 0.5 = 200, roof 100 x 0.3 = 30
/// before the factor of the roof space, floor 100 x 0.4 x 0.6 = 24 W/K, ventilation 0.6 / 3600 x 1290 x 1000
/// = 215 W/K; internal gains 876 kWh/(m2 a) over 10 m2 = 1000 W.
std::unique_ptr<Projekt> wuerfel() {
    auto p = std::make_unique<Projekt>();
    p->kwn = p->kws = p->kwo = p->kww = 0.375F;
    p->kd = 0.175F;
    p->kk = 0.275F;
    p->Waermebruecken = 0.125F;
    p->f_nw = p->f_sw = p->f_ow = p->f_ww = 100;
    p->f_gd = 100;
    p->Fx_ugd = 0.6F;
    p->infiltration = 0.6F;
    p->v_luft = 1000;
    p->f_nutz = 10;
    p->intg = 876;
    p->Troom = 20;
    return p;
}

void tag_setzen(Projekt& p, int m, int d, float ta) {
    for (int h = 1; h <= stunden; ++h)
        p.Wetter(m, d, h).Ta = ta;
}

TEST(Heizgrenze, FolgtAusVerlustenUndInnerenGewinnen) {
    struct Fall {
        std::int16_t Dachraum_typ;
        double temperatur;
    };
    // 20 - 1000 / (215 + 200 + k 30 + 24)
    const std::vector<Fall> faelle{{0, 17.8678}, {1, 17.8402}, {2, 17.8118}, {3, 17.7221}};
    const auto p = wuerfel();
    for (const Fall& fall : faelle) {
        p->Dachraum_typ = fall.Dachraum_typ;
        EXPECT_NEAR(heizgrenze(*p).Temperatur, fall.temperatur, 1e-4) << fall.Dachraum_typ;
    }
    p->lw = 1;
    p->WRG = 0.4F;  // the plant adds 0.6 / 3600 x 1290 x 1000 = 215 W/K
    EXPECT_NEAR(heizgrenze(*p).Temperatur, 20 - 1000.0 / 654, 1e-4);
}

TEST(Heizgrenze, OhneVerlusteGibtEsKeine) {
    const auto p = wuerfel();
    p->f_nw = p->f_sw = p->f_ow = p->f_ww = 0;  // heated neighbours on all sides
    p->Fx_ugd = 0;
    p->Dachraum_typ = 3;
    p->infiltration = 0;
    try {
        static_cast<void>(heizgrenze(*p));
        FAIL() << "a limit without losses";
    } catch (const Laufzeitfehler& fehler) {
        EXPECT_NE(fehler.text("d").find("verliert keine Wärme"), std::string::npos);
        EXPECT_NE(fehler.text("e").find("loses no heat"), std::string::npos);
    }
    p->Fx_ugd = 0.1F;
    EXPECT_LT(heizgrenze(*p).Temperatur, p->Troom);
}

TEST(Heizgrenze, ZaehltTageUndGradtageMitStrengenGrenzen) {
    const auto p = wuerfel();
    p->intg = 0;  // the heating limit is then the room's 20 degC
    fuer_jede_stunde([&](int m, int d, int h, int) { p->Wetter(m, d, h).Ta = 25; });
    tag_setzen(*p, 1, 1, 12);    // no degree day, but a heating day
    tag_setzen(*p, 1, 2, 11.5);  // 8.5 Kd
    tag_setzen(*p, 2, 1, 20);    // exactly the limit: no heating day
    tag_setzen(*p, 3, 1, -10);   // 30 Kd
    tag_setzen(*p, 12, 31, 10);  // 10 Kd, with its hours apart
    p->Wetter(12, 31, 1).Ta = 34;
    p->Wetter(12, 31, 24).Ta = -14;
    station_uebernehmen(*p);
    const Heizgrenze grenze = heizgrenze(*p);
    EXPECT_EQ(grenze.Temperatur, 20);
    EXPECT_EQ(grenze.Heiztage, 4);
    EXPECT_NEAR(grenze.Heizgradtage, 48.5, 1e-9);

    p->intg = 1e6F;
    EXPECT_EQ(heizgrenze(*p).Heiztage, 0) << "gains beyond all losses";
    EXPECT_NEAR(heizgrenze(*p).Heizgradtage, 48.5, 1e-9);
}

}  // namespace
}  // namespace velmaris
