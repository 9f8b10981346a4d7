#include "calc/heizgrenze.h"

#include "climate/strahlung.h"
#include "toolkit/fehler.h"

#include <gtest/gtest.h>
#include <memory>
#include <tuple>

namespace velmaris {
namespace {

/// A cube without windows, 10 m on each side: transmission by walls 4 x 100 x 0.5 = 200, roof 100 x 0.3 = 30
/// before the factor of the roof space, floor 100 x 0.4 x 0.6 = 24 W/K, ventilation 0.6 / 3600 x 1290 x 1000
/// = 215 W/K; internal gains 876 kWh/(m2 a) over 10 m2 = 1000 W.
std::unique_ptr<Projekt> wuerfel() {
    auto p = std::make_unique<Projekt>();
    p->kwn = p->kws = p->kwo = p->kww = 0.5F;
    p->kd = 0.3F;
    p->kk = 0.4F;
    p->f_nw = p->f_sw = p->f_ow = p->f_ww = p->f_gd = 100;
    p->Fx_ugd = p->infiltration = 0.6F;
    p->v_luft = 1000;
    p->f_nutz = 10;
    p->intg = 876;
    p->Troom = 20;
    return p;
}

TEST(Heizgrenze, FolgtAusVerlustenUndInnerenGewinnen) {
    const auto p = wuerfel();
    // 20 - 1000 / (215 + 200 + k 30 + 24)
    for (const double temperatur : {17.8678, 17.8402, 17.8118, 17.7221}) {
        EXPECT_NEAR(heizgrenze(*p).Temperatur, temperatur, 1e-4) << p->Dachraum_typ;
        ++p->Dachraum_typ;
    }
    p->Dachraum_typ = 3;
    p->lw = 1;
    p->WRG = 0.4F;  // the plant adds 0.6 / 3600 x 1290 x 1000 = 215 W/K
    EXPECT_NEAR(heizgrenze(*p).Temperatur, 20 - 1000.0 / 654, 1e-4);
    p->f_nw = p->f_sw = p->f_ow = p->f_ww = p->f_gd = p->infiltration = p->lw = 0;  // no losses at all
    EXPECT_THROW(static_cast<void>(heizgrenze(*p)), Laufzeitfehler);
}

TEST(Heizgrenze, ZaehltTageUndGradtageMitStrengenGrenzen) {
    const auto p = wuerfel();
    p->intg = 0;  // the heating limit is then the room's 20 degC
    fuer_jede_stunde([&](int m, int d, int h, int) { p->Wetter(m, d, h).Ta = 25; });
    // A heating day without degree days, one of 8.5 Kd, exactly the limit (none), then 30 and 10 Kd.
    for (const auto& [m, d, Ta] :
         {std::tuple{1, 1, 12.0F}, {1, 2, 11.5F}, {2, 1, 20}, {3, 1, -10}, {12, 31, 10}}) {
        for (int h = 1; h <= stunden; ++h)
            p->Wetter(m, d, h).Ta = Ta;
    }
    station_uebernehmen(*p);
    EXPECT_EQ(heizgrenze(*p).Heiztage, 4);
    EXPECT_NEAR(heizgrenze(*p).Heizgradtage, 48.5, 1e-9);
}

}  // namespace
}  // namespace velmaris
