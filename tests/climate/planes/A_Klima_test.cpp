#include "climate/planes/A_Klima.h"

#include "climate/regionen.h"
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

void wetter_setzen(Projekt& p, float ta) {
    fuer_jede_stunde([&](int m, int d, int h, int) { p.Wetter(m, d, h).Ta = ta; });
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
    for (const float gewinn : {0.0F, 876.0F}) {
        p->intg = gewinn;
        try {
            A_Klima().Ausfuellen(*p);
            FAIL() << "shown as a number";
        } catch (const Laufzeitfehler& fehler) {
            EXPECT_NE(fehler.text("d").find("verliert keine Wärme"), std::string::npos);
            EXPECT_NE(fehler.text("e").find("loses no heat"), std::string::npos);
        }
    }
    p->Fx_ugd = 0.1F;
    EXPECT_LT(heizgrenze(*p).Temperatur, p->Troom);
}

TEST(Heizgrenze, ZaehltTageUndGradtageMitStrengenGrenzen) {
    const auto p = wuerfel();
    p->intg = 0;  // the heating limit is then the room's 20 degC
    wetter_setzen(*p, 25);
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

TEST(AKlima, ZeigtLastenUndHeizgrenze) {
    const auto p = wuerfel();
    wetter_setzen(*p, 5);
    station_uebernehmen(*p);
    p->f_nutz = 80;
    p->intg = 0;
    p->Kuehllast_max = 4.25F;
    A_Klima ebene;
    ebene.Ausfuellen(*p);
    EXPECT_EQ(ebene.anz_Heizlast.text(), "0.0");
    EXPECT_EQ(ebene.anz_heizlast_spez.text(), "0.0");
    EXPECT_EQ(ebene.anz_kuehllast.text(), "4.3");
    EXPECT_EQ(ebene.anz_kuehllast_spez.text(), "53.1");
    EXPECT_EQ(ebene.anz_Heizgrenztemp.text(), "20.0");
    EXPECT_EQ(ebene.anz_Heiztage.text(), "365");
    EXPECT_EQ(ebene.anz_Heizgradtage.text(), "5475");
    EXPECT_EQ(ebene.anz_tau.text(), "") << "another writer's label";
}

TEST(AKlima, ZeigtDieKennwerteDesGebaeudes) {
    const auto p = wuerfel();
    p->tau = 36180;
    p->f_giebel_s = 40;  // 20 W/K more with gables
    p->f_dach_flach = 100;
    A_Klima ebene;
    ebene.kennwerte_zeigen(*p);
    EXPECT_EQ(ebene.anz_tau.text(), "10.1");
    EXPECT_EQ(ebene.anz_Vspez.text(), "215.0");
    EXPECT_EQ(ebene.anz_Tspez.text(), "290.0");   // 200 + 20 + 30 + 40
    EXPECT_EQ(ebene.anz_Umittel.text(), "0.45");  // (200 + 30 + 40) / 600
    EXPECT_EQ(ebene.anz_TVspez.text(), "485.0");
}

TEST(AKlima, NenntRegionOderStation) {
    struct Fall {
        std::int16_t Klimaauswahl;
        const char* Klimadatei;
        const char* text;
    };
    const std::vector<Fall> faelle{
        {1, "trier.met", "Region   4: Nördl. und westl. Mittelgebirge ohne Hochlagen"},
        {1, "konstanz.met", "Region 12: Bodensee mit Umgebung"},
        {1, "paris.met", "Region Paris (Frankreich)"},
        {2, "trier.met", "Paris (Frankreich)"},
        {3, "paris.met", "Paris (Frankreich)"},
    };
    const auto p = std::make_unique<Projekt>();
    regionsdateien_setzen(*p);
    p->Stationsname = "Paris (Frankreich)";
    A_Klima ebene;
    for (const Fall& fall : faelle) {
        p->Klimaauswahl = fall.Klimaauswahl;
        p->Klimadatei = fall.Klimadatei;
        ebene.stationswerte_zeigen(*p);
        EXPECT_EQ(ebene.anz_klimaregion.text(), fall.text);
    }
}

TEST(AKlima, ZeigtDieTemperaturenDesJahres) {
    const auto p = std::make_unique<Projekt>();
    const std::vector<float> mittel{-2, -2.5F, 4, 9, 14, 17, 19, 19, 15, 10, -2.5F, 2};  // sum 102
    for (int m = 1; m <= monate; ++m) {
        p->Monat(m).Name = "Monat " + std::to_string(m);
        p->Monat(m).Tmittel = mittel[static_cast<std::size_t>(m - 1)];
    }
    p->Wetter(7, 20, 15).Ta = 35.25F;
    p->Wetter(1, 20, 5).Ta = -18.75F;
    p->Wetter(2, 31, 5).Ta = -99;  // a day that does not exist
    station_uebernehmen(*p);
    A_Klima ebene;
    ebene.stationswerte_zeigen(*p);
    EXPECT_EQ(ebene.anz_MaxMonatName.text(), "Monat 7");
    EXPECT_EQ(ebene.anz_MinMonatName.text(), "Monat 2");
    EXPECT_EQ(ebene.anz_MaxMonatTemp.text(), "19.0");
    EXPECT_EQ(ebene.anz_MinMonatTemp.text(), "-2.5");
    EXPECT_EQ(ebene.anz_MittelJahrTemp.text(), "8.5");
    EXPECT_EQ(ebene.anz_MaxJahrTemp.text(), "35.3");
    EXPECT_EQ(ebene.anz_MinJahrTemp.text(), "-18.8");

    for (int m = 1; m <= monate; ++m)
        p->Monat(m).Tmittel = 5000;  // beyond any limit
    ebene.stationswerte_zeigen(*p);
    EXPECT_EQ(ebene.anz_MinMonatName.text(), "Monat 1");
}

}  // namespace
}  // namespace velmaris
