#include "energy/energiebilanz.h"

#include "toolkit/fehler.h"

#include <gtest/gtest.h>
#include <memory>
#include <numeric>

namespace velmaris {
namespace {

std::unique_ptr<Projekt> projekt(int system, int uebergabe, int traeger, float f_nutz, float qhs_sum) {
    auto p = std::make_unique<Projekt>();
    p->Heizsystem = static_cast<std::int16_t>(system);
    p->Uebergabe = static_cast<std::int16_t>(uebergabe);
    p->Energietraeger = static_cast<std::int16_t>(traeger);
    p->f_nutz = f_nutz;
    p->qhs_sum = qhs_sum;
    return p;
}

TEST(EnergRefresh, JahresbilanzVonHand) {
    struct Fall {
        int system, uebergabe, traeger;
        float f_nutz, qhs_sum;
        float HE, HE_Strom, PE, PE_Strom;
    };
    const std::vector<Fall> faelle{
        // (50 + 1.1 + 0 + 2.5) * 1.08; 1.24 + 0.66; * 1.1
        {1, 1, 1, 150, 50, 57.888F, 1.90F, 63.6768F, 5.70F},
        // (80 + 1.1 + 0.5) * 0.985 at the middle of 300 and 500; 1.2 + 0.43
        {2, 2, 2, 400, 80, 80.376F, 1.63F, 88.4136F, 4.89F},
        // (30 + 1.1 + 2.3) * 1.75; 0.95 + 0.10; * 0.2
        {4, 1, 2, 200, 30, 58.45F, 1.05F, 11.69F, 3.15F},
        // (60 + 1.1 + 2.9) * 1.01; 1.85; renewable combined heat and power counts 0
        {6, 1, 2, 80, 60, 64.64F, 1.85F, 0, 5.55F},
        // (40 + 1.1 + 1.3 + 0) * 0.27; 0.42 + 0.10 + 1.9 * 10^-0.3; * 3
        {7, 1, 1, 1000, 40, 11.448F, 1.4722557F, 34.344F, 4.4167672F},
        // (20 + 0.7) * 1 and (20 + 4.4) * 1, no auxiliary electricity
        {8, 1, 1, 150, 20, 20.7F, 0, 62.1F, 0},
        {9, 2, 1, 150, 20, 24.4F, 0, 73.2F, 0},
        // no heat demand, no losses
        {1, 1, 1, 150, 0, 0, 0, 0, 0},
        // below 0.1 no losses: 0.0999 * 1.08; at 0.1 all of them: (0.1 + 3.6) * 1.08
        {1, 1, 1, 150, 0.0999F, 0.107892F, 0, 0.1186812F, 0},
        {1, 1, 1, 150, 0.1F, 3.996F, 1.90F, 4.3956F, 5.70F},
    };
    for (const Fall& f : faelle) {
        const auto p = projekt(f.system, f.uebergabe, f.traeger, f.f_nutz, f.qhs_sum);
        energ_refresh(*p);
        SCOPED_TRACE(std::to_string(f.system) + " at " + std::to_string(f.qhs_sum));
        EXPECT_FLOAT_EQ(p->q_HE_Energietraeger, f.HE);
        EXPECT_FLOAT_EQ(p->q_HE_Strom, f.HE_Strom);
        EXPECT_FLOAT_EQ(p->q_PE_Energietraeger, f.PE);
        EXPECT_FLOAT_EQ(p->q_PE_Strom, f.PE_Strom);
    }
}

TEST(EnergRefresh, OhneBedarfBleibtDieDivisionErlaubt) {
    const auto p = projekt(7, 2, 1, 150, 0);
    p->Monat(1).Qh = 1E-9F;
    const Kennwerte k = energ_refresh(*p);
    EXPECT_EQ(p->qhs_sum, 1E-10F);
    EXPECT_EQ(k.q_ce + k.q_d + k.q_s + k.q_d_he + k.q_s_he + k.q_g_he, 0);
    EXPECT_EQ(k.e_g, 0.23F);
    EXPECT_EQ(k.f_p, 3.0F);
    EXPECT_EQ(p->q_HE_Energietraeger, 0);
    energ_refresh(*p);
    EXPECT_EQ(p->qhs_sum, 1E-10F);
    EXPECT_EQ(monatswerte(*p).E(1), 0) << "rounding leaves no share";
    p->qhs_sum = 2E-10F;
    energ_refresh(*p);
    EXPECT_EQ(p->qhs_sum, 2E-10F);
}

TEST(Monatswerte, FolgenDemHeizwaermebedarfUndStromIstEinTraeger) {
    // 7500 kWh of heat in the year: 1500 in January, 6000 in December.
    const auto werte = [](int system, int uebergabe) {
        const auto p = projekt(system, uebergabe, 1, 150, 50);
        p->Monat(1).Qh = 1500;
        p->Monat(12).Qh = 6000;
        energ_refresh(*p);
        return monatswerte(*p);
    };
    const Monatsenergie oel = werte(1, 1);
    EXPECT_FLOAT_EQ(oel.E(1), 11.5776F);
    EXPECT_FLOAT_EQ(oel.H(1), 0.38F);
    EXPECT_FLOAT_EQ(oel.P(1), 12.73536F);
    EXPECT_FLOAT_EQ(oel.Q(1), 1.14F);
    EXPECT_EQ(oel.E(7), 0);
    EXPECT_NEAR(std::accumulate(oel.P.begin(), oel.P.end(), 0.0), 63.6768, 1e-5);
    // Floor heating, 150 m2: (50 + 1.1 + 0.6 + 0.1) * 0.23 = 11.914; 2.40 + 0.43 + 1.9 * 150^-0.1 (1.151183).
    const Monatsenergie strom = werte(7, 2);
    EXPECT_NEAR(strom.E(1), 0.2 * (11.914 + 3.981183), 1e-5);
    EXPECT_NEAR(strom.P(1), 0.6 * (11.914 + 3.981183), 3e-5);
    EXPECT_EQ(strom.H(1) + strom.Q(12), 0);
}

}  // namespace
}  // namespace velmaris
