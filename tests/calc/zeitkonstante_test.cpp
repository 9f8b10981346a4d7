#include "calc/zeitkonstante.h"

#include "calc/gebaeudekennwerte.h"
#include "calc/geometrie.h"
#include "tests/musterprojekt.h"
#include "toolkit/fehler.h"

#include <gtest/gtest.h>
#include <string>

namespace velmaris {
namespace {

// By hand for the new project: 179.4 m2 of net walls; 16 rooms of 32.88769 m2 wall each less 208 m2 outer
// wall leave 318.2030 m2 inside; 400 m2 of ceilings and floors; 416 m3 of air at 1290 J/(m3 K).
constexpr double aussen = 179.4;
constexpr double innen = 318.2030027;
constexpr double decken = 400;
constexpr double luft = 416 * 1290.0;

TEST(Zeitkonstante, KapazitaetNachBauweiseUndNachbarn) {
    const struct {
        const char* name;
        void (*einrichten)(Projekt&);
        double Cwirk;
    } faelle[] = {
        {"new project", [](Projekt&) {}, (aussen + innen + decken) * 65000 + luft},
        {"heavy outside, light inside", [](Projekt& p) { p.Aussenwandart = 0, p.Innenwandart = 2; },
         aussen * 105000 + (innen + decken) * 25000 + luft},
        {"no row inside takes the outer one", [](Projekt& p) { p.Aussenwandart = 0, p.Innenwandart = -1; },
         (aussen + innen + decken) * 105000 + luft},
        {"no row at all leaves the air", [](Projekt& p) { p.Aussenwandart = p.Innenwandart = 3; }, luft},
        {"neighbours all around", [](Projekt& p) { p.awn = p.aws = p.awo = p.aww = 0; },
         (innen + decken + 208) * 65000 + luft},
        {"one neighbour, other construction inside", [](Projekt& p) { p.awn = 0, p.Innenwandart = 0; },
         130 * 65000 + (innen + decken + 52) * 105000 + luft},
    };
    for (const auto& [name, einrichten, Cwirk] : faelle) {
        const auto p = test::musterprojekt();
        einrichten(*p);
        geometrie_berechnen(*p);
        zeitkonstante_berechnen(*p);
        EXPECT_NEAR(p->Cwirk, Cwirk, 2e-7 * Cwirk) << name;
    }
}

void ohne_verluste(Projekt& p) {
    p.kwn = p.kws = p.kwo = p.kww = p.kd = p.kk = p.Waermebruecken = p.infiltration = 0;
    p.kfn = p.kfs = p.kfo = p.kfw = 0;
}

TEST(Zeitkonstante, FehlerNennenWasAmGebaeudeNichtStimmt) {
    const struct {
        void (*einrichten)(Projekt&);
        const char *feld, *meldung;
    } faelle[] = {
        {[](Projekt& p) { p.l = p.b = 2, p.h = 5, p.ag = 1, p.Innenwandart = 0, p.Aussenwandart = 2; }, "",
         "interior is too small"},
        {ohne_verluste, "", "loses no heat"},
        {[](Projekt& p) { p.awn = -32768; }, "awn", "16-bit"},
    };
    for (const auto& [einrichten, feld, meldung] : faelle) {
        const auto p = test::musterprojekt();
        einrichten(*p);
        geometrie_berechnen(*p);
        try {
            zeitkonstante_berechnen(*p);
            ADD_FAILURE() << "no fault: " << meldung;
        } catch (const Laufzeitfehler& fehler) {
            EXPECT_EQ(fehler.feld(), feld);
            EXPECT_NE(fehler.text("e").find(meldung), std::string::npos) << fehler.text("e");
        }
    }
}

TEST(Gebaeudekennwerte, ZaehlenDieHuelleAufZweiArten) {
    const auto p = test::musterprojekt();
    p->Check_Dachgeschoss = 1, p->Option_Dachfirst = 2;
    p->l = 8, p->b = 6, p->hd = 4;
    p->fn = p->fs = p->fo = p->fw = 0, p->ft = 2;
    geometrie_berechnen(*p);
    p->tau = 7200;
    p->f_sf = 20, p->f_sw -= 20, p->kfs = 1.3F;  // a window that loses 20 W/K more than its wall
    const Gebaeudekennwerte k = gebaeudekennwerte(*p);
    // Walls of 145.6 m2 less the door, 20 m2 of them window, gables of 24 m2, roof planes of 80 m2, 48 m2 of
    // floor at 0.3 W/(m2 K).
    EXPECT_DOUBLE_EQ(k.tau, 2);
    EXPECT_NEAR(k.Tspez, 0.3 * (143.6 + 24 + 80 + 48) + 20 + 3, 1e-4);
    EXPECT_NEAR(k.Umittel, (0.3 * (143.6 + 96) + 20 + 3) / (145.6 + 96), 1e-6);
    EXPECT_NEAR(k.Vspez, 0.6 * 276.48 * 1290 / 3600, 1e-4);
    EXPECT_NEAR(k.TVspez, 0.3 * (143.6 + 96) + 20 + 3 + k.Vspez, 1e-4);
}

}  // namespace
}  // namespace velmaris
