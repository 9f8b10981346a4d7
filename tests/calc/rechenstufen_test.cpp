#include "calc/rechenstufen.h"

#include "energy/energiebilanz.h"
#include "tests/musterprojekt.h"
#include "toolkit/fehler.h"

#include <cfenv>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

namespace velmaris {
namespace {

constexpr int boese = FE_DIVBYZERO | FE_OVERFLOW | FE_INVALID;

void alle_stufen(Projekt& p) {
    geometrie_stufe(p);
    bilanz_stufe(p);
    simulation_stufe(p);
    static_cast<void>(energie_stufe(p));
}

void gleiche_luft(Projekt& p, float Ta) {
    test::gleiches_wetter(p, {Ta, 0, 0});
}

TEST(Rechenstufen, RechenfehlerNennenDieStufe) {
    const struct {
        void (*einrichten)(Projekt&);
        void (*rechnen)(Projekt&);
        const char* meldung;
    } faelle[] = {
        {[](Projekt& p) { p.l = p.b = 0; }, alle_stufen, "The geometry of the building"},
        {[](Projekt& p) { p.l = p.b = p.h = 1e15F; }, alle_stufen, "overflow"},
        // No heated floor; then cooling without any gain, and air too hot for all numbers.
        {[](Projekt& p) { p.ag = 0, p.Aussenwandart = 0; }, alle_stufen,
         "The monthly balance cannot be calculated from these inputs (division by 0)"},
        {[](Projekt& p) { gleiche_luft(p, 0), p.intg = 0, p.Tueber = 19; }, alle_stufen,
         "although it has no gains of any kind"},
        {[](Projekt& p) { gleiche_luft(p, 1e38F); }, simulation_stufe, "The hourly temperature simulation"},
        {[](Projekt& p) { p.qhs_sum = std::numeric_limits<float>::max(); },
         [](Projekt& p) { static_cast<void>(energie_stufe(p)); }, "energy demand cannot be"},
    };
    for (const auto& [einrichten, rechnen, meldung] : faelle) {
        const auto p = test::musterprojekt();
        alle_stufen(*p);
        einrichten(*p);
        try {
            rechnen(*p);
            ADD_FAILURE() << "no fault: " << meldung;
        } catch (const Laufzeitfehler& fehler) {
            EXPECT_THAT(fehler.text("e"), testing::HasSubstr(meldung));
        }
        EXPECT_EQ(std::fetestexcept(boese), 0) << meldung;
    }
}

TEST(Rechenstufen, FruehereMerkerZaehlenNicht) {
    const auto p = test::musterprojekt();
    for (const auto stufe : {geometrie_stufe, bilanz_stufe, simulation_stufe}) {
        std::feraiseexcept(boese);
        EXPECT_NO_THROW(stufe(*p));
        EXPECT_EQ(std::fetestexcept(boese), 0);
    }
    std::feraiseexcept(boese);
    EXPECT_EQ(energie_stufe(*p).e_g, energ_refresh(*p).e_g);
    EXPECT_GT(p->q_HE_Energietraeger, p->qhs_sum);
}

TEST(Rechenstufen, OhnePruefungDarfDieGeometrieDurchNullTeilen) {
    const auto p = test::musterprojekt();
    geometrie_ohne_pruefung(*p);
    EXPECT_FLOAT_EQ(p->f_gf, 28.6F);
    p->l = p->b = 0;
    EXPECT_NO_THROW(geometrie_ohne_pruefung(*p));
    EXPECT_EQ(std::fetestexcept(boese), 0);
}

}  // namespace
}  // namespace velmaris
