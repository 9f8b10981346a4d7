#include "calc/alles_berechnen.h"

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

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

constexpr int boese = FE_DIVBYZERO | FE_OVERFLOW | FE_INVALID;

/// A division that no compiler can work out beforehand.
double durch_null() {
    volatile double null = 0;
    return 1 / null;
}

/// Writes down who was called.
class Mitschrift {
  public:
    Rechenplan plan() {
        return {.geometrie_zeigen = rufer("geometry"),
                .gebaeude_zeigen = rufer("building"),
                .energie = rufer("energy"),
                .energie_zeigen = rufer("energy plane"),
                .tabelle = {zeile("overview", true), zeile("heating", false), zeile("cooling", true)}};
    }

    std::vector<std::string> rufe;

  private:
    std::function<void()> rufer(const std::string& name) {
        return [this, name] { rufe.push_back(name); };
    }

    Auffrischung zeile(const std::string& name, bool sichtbar) {
        return {name,
                [this, name, sichtbar] {
                    rufe.push_back(name + "?");
                    return sichtbar;
                },
                rufer(name)};
    }
};

TEST(AllesBerechnen, RuftInDerReihenfolgeUndFragtVorJederZeile) {
    const auto p = test::musterprojekt();
    Mitschrift mitschrift;
    alles_berechnen(*p, mitschrift.plan());
    EXPECT_THAT(mitschrift.rufe, ElementsAre("geometry", "building", "energy", "energy plane", "overview?",
                                             "overview", "heating?", "cooling?", "cooling"));
    EXPECT_GT(p->qh, 0);
    EXPECT_GT(p->Heizlast_max, 0);
}

TEST(AllesBerechnen, JedeStufeSiehtDieErgebnisseDerVorigen) {
    const auto p = test::musterprojekt();
    float flaeche = 0;
    float tau = 0;
    float last = 0;
    alles_berechnen(*p, {.geometrie_zeigen = [&] { flaeche = p->f_sf; },
                         .gebaeude_zeigen = [&] { tau = p->tau; },
                         .energie = [&] { last = p->Heizlast_max; },
                         .energie_zeigen = {},
                         .tabelle = {}});
    EXPECT_GT(flaeche, 0);
    EXPECT_GT(tau, 0);
    EXPECT_GT(last, 0);
}

TEST(AllesBerechnen, UnterDerLadesperreNurGeometrie) {
    const auto p = test::musterprojekt();
    p->FormLoadGuard = -1;
    p->qh = p->Heizlast_max = 77;
    Mitschrift mitschrift;
    alles_berechnen(*p, mitschrift.plan());
    EXPECT_THAT(mitschrift.rufe, ElementsAre("geometry"));
    EXPECT_FLOAT_EQ(p->f_gf, 28.6F);
    EXPECT_EQ(p->qh, 77);
    EXPECT_EQ(p->Heizlast_max, 77);

    p->l = p->b = 0;
    EXPECT_NO_THROW(alles_berechnen(*p, {}));
    EXPECT_EQ(std::fetestexcept(boese), 0);
}

TEST(AllesBerechnen, RechenfehlerNennenDieStufe) {
    struct Fall {
        std::string name;
        void (*einrichten)(Projekt&);
        std::string de;
        std::string en;
    };
    const std::vector<Fall> faelle{
        {"no ground at all", [](Projekt& p) { p.l = p.b = 0; }, "Die Geometrie des Gebäudes lässt sich",
         "The geometry of the building"},
        {"a volume beyond all numbers", [](Projekt& p) { p.l = p.b = p.h = 1e15F; },
         "Die Geometrie des Gebäudes lässt sich", "overflow"},
        {"no heated floor",
         [](Projekt& p) {
             p.ag = 0;
             p.Aussenwandart = 0;
         },
         "Die Monatsbilanz lässt sich",
         "The monthly balance cannot be calculated from these inputs (division by 0)"},
        {"cooling without any gain",
         [](Projekt& p) {
             test::gleiches_wetter(p, {0, 0, 0});
             p.intg = 0;
             p.Tueber = 19;
         },
         "Das Gebäude wird wärmer als die Überwärmungsgrenze", "although it has no gains of any kind"},
    };
    for (const Fall& fall : faelle) {
        SCOPED_TRACE(fall.name);
        const auto p = test::musterprojekt();
        fall.einrichten(*p);
        try {
            alles_berechnen(*p, {});
            ADD_FAILURE() << "no fault";
        } catch (const Laufzeitfehler& fehler) {
            EXPECT_THAT(fehler.text("d"), StartsWith(fall.de));
            EXPECT_THAT(fehler.text("e"), HasSubstr(fall.en));
        }
        EXPECT_EQ(std::fetestexcept(boese), 0);
    }
}

TEST(AllesBerechnen, WachtUeberDieEnergieNichtUeberDasZeichnen) {
    const auto p = test::musterprojekt();
    double senke = 0;
    const auto teilen = [&] { senke = durch_null(); };
    EXPECT_THROW(alles_berechnen(*p, {.geometrie_zeigen = {},
                                      .gebaeude_zeigen = {},
                                      .energie = teilen,
                                      .energie_zeigen = {},
                                      .tabelle = {}}),
                 Laufzeitfehler);
    EXPECT_NO_THROW(alles_berechnen(*p, {.geometrie_zeigen = teilen,
                                         .gebaeude_zeigen = teilen,
                                         .energie = {},
                                         .energie_zeigen = teilen,
                                         .tabelle = {{"chart", [] { return true; }, teilen}}}));
    EXPECT_EQ(std::fetestexcept(boese), 0);
    EXPECT_EQ(senke, std::numeric_limits<double>::infinity());
}

TEST(AllesBerechnen, FruehereMerkerZaehlenNicht) {
    for (const test::Musterort& ort : test::musterorte()) {
        for (const test::Musterhaus& haus : test::musterhaeuser()) {
            const auto p = test::musterprojekt(ort);
            haus.einrichten(*p);
            std::feraiseexcept(boese);
            EXPECT_NO_THROW(alles_berechnen(*p, {})) << ort.name << ", " << haus.name;
            EXPECT_EQ(std::fetestexcept(boese), 0);
        }
    }
}

}  // namespace
}  // namespace velmaris
