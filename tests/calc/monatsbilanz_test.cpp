#include "calc/monatsbilanz.h"

#include "calc/geometrie.h"
#include "tests/musterprojekt.h"
#include "toolkit/fehler.h"

#include <cmath>
#include <gtest/gtest.h>
#include <memory>

namespace velmaris {
namespace {

TEST(Nutzungsgrad, FolgtDemVerhaeltnisVonGewinnUndVerlust) {
    constexpr float sechzehn_stunden = 16 * 3600;  // a = 2
    const std::pair<float, double> faelle[] = {{0, 1},      {0.5F, 6. / 7}, {1, 2. / 3}, {1.0000001F, 2. / 3},
                                               {2, 3. / 7}, {1e9F, 1e-9}};
    for (const auto& [gamma, erwartet] : faelle)
        EXPECT_NEAR(nutzungsgrad(sechzehn_stunden, gamma), erwartet, 2e-6 * erwartet + 1e-15) << gamma;
    // Without inertia a is 1 and the factor 1 / (1 + gamma).
    EXPECT_FLOAT_EQ(nutzungsgrad(0, 3), 0.25F);
    EXPECT_FLOAT_EQ(nutzungsgrad(0, 1), 0.5F);
}

TEST(Nutzungsgrad, UeberlaufDerPotenzIstEinFehler) {
    constexpr float monate_traege = 1e8F;
    EXPECT_THROW(static_cast<void>(nutzungsgrad(monate_traege, 2)), Laufzeitfehler);
    EXPECT_NO_THROW(static_cast<void>(nutzungsgrad(monate_traege, 0.5F)));
    // 2 to the power of 1023.5 is a number, to that of 1024.5 it is none.
    EXPECT_THROW(static_cast<void>(nutzungsgrad(1022.5F * 16 * 3600, 2)), Laufzeitfehler);
}

/// A year that is January alone: the other months are warmer than the room.
std::unique_ptr<Projekt> nur_januar() {
    auto p = test::musterprojekt();
    for (Monatswerte& m : p->Monat) {
        m.Tmittel = 25;
        m.Strahlung_N = 20;
        m.Strahlung_S = 100;
        m.Strahlung_O = 40;
        m.Strahlung_W = 60;
    }
    p->Monat(1).Tmittel = 0;
    geometrie_berechnen(*p);
    return p;
}

void alle_seiten_ungleich(Projekt& p) {
    p.kwn = 0.1F, p.kwo = 0.3F, p.kww = 0.4F;
    p.fn = 10, p.fo = 20, p.fw = 30, p.ft = 2;
    p.kfn = 1, p.kfs = 1.2F, p.kfo = 1.4F, p.kfw = 1.6F;
    p.gfn = 0.5F, p.gfs = 0.6F, p.gfo = 0.7F, p.gfw = 0.8F;
    p.ran = 0.1F, p.ras = 0.2F, p.rao = 0.3F, p.raw = 0.4F;
    p.verschn = 0, p.verschs = 0.1F, p.verscho = 0.2F, p.verschw = 0.3F;
    p.lw = 0.5F, p.WRG = 0.4F, p.infiltration = 0.2F;
    p.Dachraum_typ = 1;
}

TEST(Monatsbilanz, EinMonatVonHand) {
    const auto p = nur_januar();
    alle_seiten_ungleich(*p);
    geometrie_berechnen(*p);
    p->qh = p->Fenstergewinn_S = p->qtr_Dach = 1e6F;  // an earlier run's sums must go
    monatsbilanz(*p);
    const Monatswerte& januar = p->Monat(1);
    const struct {
        const char* name;
        float gerechnet;
        double von_hand;
    } werte[] = {
        // 620 Kd are 14.88 kKh; walls 53.16 W/K, roof 24, floor 15, windows 69.68, door 3; 208 m3/h of air.
        {"Qt", januar.Qt, 164.84 * 14.88},
        {"Qv", januar.Qv, 1109.056},
        {"qtr_Waende", p->qtr_Waende, 53.16 * 14.88},
        {"qtr_Dach", p->qtr_Dach, 24 * 14.88},
        {"qtr_Boden", p->qtr_Boden, 15 * 14.88},
        {"qtr_Fenster", p->qtr_Fenster, 69.68 * 14.88},
        {"qtr_Tuer", p->qtr_Tuer, 3 * 14.88},
        {"Fensterverlust_N", p->Fensterverlust_N, 5.2 * 14.88},
        {"Fensterverlust_S", p->Fensterverlust_S, 24.96 * 14.88},
        {"Fensterverlust_O", p->Fensterverlust_O, 14.56 * 14.88},
        {"Fensterverlust_W", p->Fensterverlust_W, 24.96 * 14.88},
        // 57229835 J/K over 260.373 W/K are 61.055 h, so a is 4.81596; gains to losses are 0.206347.
        {"Nutzgrad", januar.Nutzgrad, 0.99960298},
        {"Qi_brutto", januar.Qi_brutto, 339.726027},
        {"Qs_brutto", januar.Qs_brutto, 395.257778},
        {"Fenstergewinn_N", p->Fenstergewinn_N, 13 * 0.99960298},
        {"Fenstergewinn_S", p->Fenstergewinn_S, 249.6 * 0.99960298},
        {"Fenstergewinn_O", p->Fenstergewinn_O, 45.2977778 * 0.99960298},
        {"Fenstergewinn_W", p->Fenstergewinn_W, 87.36 * 0.99960298},
        {"Qh", januar.Qh, 2827.1832},
        {"qhs_sum", p->qhs_sum, 2827.1832 / 160},
        {"qverl_s", p->qverl_s, 3561.8752 / 160},
        // July is warmer than the room: gains, and no demand.
        {"Qt in July", p->Monat(7).Qt, 0},
        {"Nutzgrad in July", p->Monat(7).Nutzgrad, 0},
        {"Qh in July", p->Monat(7).Qh, 0},
        {"Qs_brutto in July", p->Monat(7).Qs_brutto, 395.257778},
    };
    for (const auto& w : werte)
        EXPECT_NEAR(w.gerechnet, w.von_hand, 1e-6 * w.von_hand) << w.name;
    p->Monat(7).Tmittel = 19.99F;  // 0.31 Kd
    monatsbilanz(*p);
    EXPECT_NEAR(p->Monat(7).Qt, 164.84 * 0.024 * 0.31, 1e-3);
}

TEST(Monatsbilanz, DieJahressummenGehenAuf) {
    for (const test::Musterhaus& haus : test::musterhaeuser()) {
        const auto p = test::musterprojekt();
        haus.einrichten(*p);
        geometrie_berechnen(*p);
        monatsbilanz(*p);
        double Qh = 0, Qt = 0, Qv = 0, Qs = 0, Qi = 0;
        for (const Monatswerte& m : p->Monat) {
            Qh += m.Qh, Qt += m.Qt, Qv += m.Qv, Qs += m.Qs_genutzt, Qi += m.Qi_genutzt;
            EXPECT_NEAR(m.Qs_genutzt, static_cast<double>(m.Qs_brutto) * m.Nutzgrad, 1e-3) << haus.name;
        }
        const auto gleich = [&](const char* name, double a, double b) {
            EXPECT_NEAR(a, b, 2e-6 * std::fabs(a)) << haus.name << ", " << name;
        };
        gleich("qh", Qh, p->qh);
        gleich("qtr", Qt, p->qtr);
        gleich("qinf", Qv, p->qinf);
        gleich("qsol", Qs, p->qsol);
        gleich("qi", Qi, p->qi);
        gleich("balance", Qt + Qv - Qs - Qi, p->qh);
        gleich("parts", p->qtr_Waende + p->qtr_Dach + p->qtr_Boden + p->qtr_Fenster + p->qtr_Tuer, Qt);
        gleich("windows",
               p->Fensterverlust_N + p->Fensterverlust_S + p->Fensterverlust_O + p->Fensterverlust_W,
               p->qtr_Fenster);
        gleich("sun", p->Fenstergewinn_N + p->Fenstergewinn_S + p->Fenstergewinn_O + p->Fenstergewinn_W, Qs);
        for (const auto& [summe, je_m2] : {std::pair{p->qh, p->qhs_sum},
                                           {p->qsol, p->qsols},
                                           {p->qi, p->qis},
                                           {p->qtr, p->qtrs},
                                           {p->qinf, p->qinfs}})
            gleich("per m2", static_cast<double>(summe) / p->f_nutz, je_m2);
    }
}

TEST(Monatsbilanz, DachraumZaehltNurOhneDachgeschoss) {
    // 100 m2 flat, or two planes of 10 x sqrt(25 + 4) m2, at 0.3 W/(m2 K).
    const double schraeg = 20 * std::sqrt(29.0) * 0.3 * 14.88;
    const struct {
        std::int16_t dachgeschoss, typ;
        double dach;  ///< kWh in January
    } faelle[] = {{0, 0, 446.4}, {0, 1, 357.12}, {0, 2, 223.2}, {0, 3, 0}, {1, 0, schraeg}, {1, 2, schraeg}};
    for (const auto& [dachgeschoss, typ, dach] : faelle) {
        const auto p = nur_januar();
        p->awn = p->aws = p->awo = p->aww = 0;
        p->Check_Dachgeschoss = dachgeschoss, p->Dachraum_typ = typ;
        geometrie_berechnen(*p);
        monatsbilanz(*p);
        EXPECT_NEAR(p->qtr_Dach, dach, 1e-3) << dachgeschoss << ' ' << typ;
        // Gables of 10 m2 stand above the neighbours.
        EXPECT_NEAR(p->qtr_Waende, dachgeschoss * 0.3 * 20 * 14.88, 1e-3);
    }
}

}  // namespace
}  // namespace velmaris
