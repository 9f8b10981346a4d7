#include "calc/rechenstufen.h"

#include "energy/energiebilanz.h"
#include "tests/musterprojekt.h"
#include "toolkit/fehler.h"

#include <cfenv>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace velmaris {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr int boese = FE_DIVBYZERO | FE_OVERFLOW | FE_INVALID;

void alle_stufen(Projekt& p) {
    geometrie_stufe(p);
    bilanz_stufe(p);
    simulation_stufe(p);
    static_cast<void>(energie_stufe(p));
}

TEST(Rechenstufen, RechenfehlerNennenDieStufe) {
    struct Fall {
        std::string name;
        void (*einrichten)(Projekt&);
        void (*rechnen)(Projekt&);
        std::string de;
        std::string en;
    };
    const std::vector<Fall> faelle{
        {"no ground at all", [](Projekt& p) { p.l = p.b = 0; }, alle_stufen,
         "Die Geometrie des Gebäudes lässt sich", "The geometry of the building"},
        {"a volume beyond all numbers", [](Projekt& p) { p.l = p.b = p.h = 1e15F; }, alle_stufen,
         "Die Geometrie des Gebäudes lässt sich", "overflow"},
        {"no heated floor",
         [](Projekt& p) {
             p.ag = 0;
             p.Aussenwandart = 0;
         },
         alle_stufen, "Die Monatsbilanz lässt sich",
         "The monthly balance cannot be calculated from these inputs (division by 0)"},
        {"cooling without any gain",
         [](Projekt& p) {
             test::gleiches_wetter(p, {0, 0, 0});
             p.intg = 0;
             p.Tueber = 19;
         },
         alle_stufen, "Das Gebäude wird wärmer als die Überwärmungsgrenze",
         "although it has no gains of any kind"},
        {"air too hot for all numbers",
         [](Projekt& p) {
             test::gleiches_wetter(p, {1e38F, 0, 0});
         },
         simulation_stufe, "Die stündliche Temperatursimulation lässt sich",
         "The hourly temperature simulation cannot"},
        {"a demand beyond all numbers", [](Projekt& p) { p.qhs_sum = std::numeric_limits<float>::max(); },
         [](Projekt& p) { static_cast<void>(energie_stufe(p)); },
         "Der End- und Primärenergiebedarf lässt sich", "energy demand cannot be"},
    };
    for (const Fall& fall : faelle) {
        SCOPED_TRACE(fall.name);
        const auto p = test::musterprojekt();
        alle_stufen(*p);
        fall.einrichten(*p);
        try {
            fall.rechnen(*p);
            ADD_FAILURE() << "no fault";
        } catch (const Laufzeitfehler& fehler) {
            EXPECT_THAT(fehler.text("d"), StartsWith(fall.de));
            EXPECT_THAT(fehler.text("e"), HasSubstr(fall.en));
        }
        EXPECT_EQ(std::fetestexcept(boese), 0);
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
