#include "climate/planes/A_Klima.h"

#include "climate/regionen.h"
#include "climate/strahlung.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <memory>
#include <tuple>
#include <vector>

namespace velmaris {
namespace {

/// A house without windows: walls 50 and a gable 20, roof 30, floor 40 and ventilation 215 W/K over an
/// envelope of 300 m2; no internal gains.
std::unique_ptr<Projekt> haus() {
    auto p = std::make_unique<Projekt>();
    p->kwn = p->kws = 0.375F;
    p->kd = 0.175F;
    p->kk = 0.275F;
    p->Waermebruecken = 0.125F;
    p->f_nw = p->f_gd = p->f_dach_flach = 100;
    p->f_giebel_s = 40;
    p->Fx_ugd = p->infiltration = 0.6F;
    p->v_luft = 1000;
    p->f_nutz = 80;
    p->Troom = 20;
    p->tau = 36180;
    fuer_jede_stunde([&](int m, int d, int h, int) { p->Wetter(m, d, h).Ta = 5; });
    station_uebernehmen(*p);
    return p;
}

std::string texte(std::initializer_list<const Anzeige*> anzeigen) {
    std::string alle;
    for (const Anzeige* anzeige : anzeigen)
        alle += anzeige->text() + " ";
    return alle;
}

std::string kennwerte(const A_Klima& e) {
    return texte({&e.anz_tau, &e.anz_Vspez, &e.anz_Tspez, &e.anz_Umittel, &e.anz_TVspez});
}

TEST(AKlima, ZeigtGebaeudeLastenUndHeizgrenze) {
    const auto p = haus();
    p->Heizlast_max = 2;
    p->Kuehllast_max = 4.25F;
    A_Klima e;
    e.Ausfuellen(*p);
    EXPECT_EQ(texte({&e.anz_Heizlast, &e.anz_heizlast_spez, &e.anz_kuehllast, &e.anz_kuehllast_spez,
                     &e.anz_Heizgrenztemp, &e.anz_Heiztage, &e.anz_Heizgradtage}),
              "2.0 25.0 4.3 53.1 20.0 365 5475 ");
    e.kennwerte_zeigen(*p);
    EXPECT_EQ(kennwerte(e), "10.1 215.0 140.0 0.40 335.0 ");
}

TEST(AKlima, NenntRegionOderStation) {
    const auto p = std::make_unique<Projekt>();
    regionsdateien_setzen(*p);
    p->Stationsname = "Paris (Frankreich)";
    A_Klima ebene;
    using Fall = std::tuple<std::int16_t, const char*, const char*>;
    for (const auto& [auswahl, datei, text] :
         {Fall{1, "bremen.met", "Region   1: Nord- / Ostseeküste, nördliches Schleswig-Holstein"},
          Fall{1, "trier.met", "Region   4: Nördl. und westl. Mittelgebirge ohne Hochlagen"},
          Fall{1, "konstanz.met", "Region 12: Bodensee mit Umgebung"},
          Fall{1, "paris.met", "Region Paris (Frankreich)"}, Fall{2, "trier.met", "Paris (Frankreich)"}}) {
        p->Klimaauswahl = auswahl;
        p->Klimadatei = datei;
        ebene.stationswerte_zeigen(*p);
        EXPECT_EQ(ebene.anz_klimaregion.text(), text);
    }
}

TEST(AKlima, ZeigtDieTemperaturenDesJahres) {
    const auto p = std::make_unique<Projekt>();
    const std::vector<float> mittel{-2, -2.5F, 4, 9, 14, 17, 19, 19, 15, 10, -2.5F, 2};  // sum 102
    for (int m = 1; m <= monate; ++m) {
        p->Monat(m).Name = "Monat" + std::to_string(m);
        p->Monat(m).Tmittel = mittel.at(static_cast<std::size_t>(m - 1));
    }
    p->Wetter(7, 20, 15).Ta = 35.25F;
    p->Wetter(1, 20, 5).Ta = -18.75F;
    p->Wetter(2, 31, 5).Ta = -99;  // a day that does not exist
    station_uebernehmen(*p);
    A_Klima e;
    e.stationswerte_zeigen(*p);
    EXPECT_EQ(texte({&e.anz_MaxMonatName, &e.anz_MinMonatName, &e.anz_MaxMonatTemp, &e.anz_MinMonatTemp,
                     &e.anz_MittelJahrTemp, &e.anz_MaxJahrTemp, &e.anz_MinJahrTemp}),
              "Monat7 Monat2 19.0 -2.5 8.5 35.3 -18.8 ");
}

}  // namespace
}  // namespace velmaris
