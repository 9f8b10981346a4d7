#include "studies/empfindlichkeit.h"

#include "studies/empfindlichkeitsseite.h"
#include "studies/tornado.h"
#include "studies/vergleich.h"
#include "tests/rekorder_flaeche.h"
#include "tests/testprogramm.h"
#include "tests/textlage.h"
#include "toolkit/svg_flaeche.h"

#include <algorithm>
#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

/// The words of the steps of an input: direction, value, note.
std::vector<std::string> worte(const Empfindlichkeit& e, const std::string& name) {
    std::vector<std::string> zeilen;
    const auto eingabe = std::ranges::find(e.eingaben, name, &Eingabewirkung::name);
    if (eingabe == e.eingaben.end()) return {"missing"};
    for (const Schritt& schritt : eingabe->schritte)
        zeilen.push_back(std::string(richtungswort(schritt, e.sprache)) + "|" + schritt.nach + "|" +
                         schritt.hinweis);
    return zeilen;
}

TEST(Empfindlichkeit, SagtWarumEinSchrittFehltUndWasErMitbewegt) {
    const test::Testprogramm programm("e");
    Haupt& h = *programm.haupt;
    h.e_gebaeude.awn_cb.setze(1);
    h.e_gebaeude.Troom_sb.setze(260);
    h.e_fenster.sued.versch.sb.setze(98);
    h.p.Heizsystem = 8;
    const Empfindlichkeit e = empfindlichkeit(h.p);
    struct Fall {
        const char* eingabe;
        std::vector<std::string> worte;
    };
    const std::vector<Fall> faelle{
        {"height of roof", {"||locked: only with a heated attic"}},
        {"roof ridge", {"||locked: only with a heated attic"}},
        {"fraction of wall north", {"||locked: the wall adjoins a heated neighbour"}},
        {"wall against heated area north", {"down|no|"}},
        {"mechanical ventilation", {"down||at the lower end of the range", "up|0.20|"}},
        {"shading all facades", {"down|93|", "up|100|"}},
        {"shading north", {"missing"}},
        {"climate station", {"missing"}},
        {"indoor set temperature", {"down|24.0|", "up|26.9|gives way to the overheating limit"}},
        {"overheating", {"down|26.1|gives way to the indoor set temperature", "up|28.0|"}},
        {"upper closure towards", {"down||first entry of the list", "up|partly insulated roof|"}},
        {"g-value all facades",
         {"down|0.53|also changes window type all facades heat protection double glazing (U = 1.4 W/(m² K)) "
          "→ others",
          "up|0.63|also changes window type all facades heat protection double glazing (U = 1.4 W/(m² K)) → "
          "others"}},
        {"heat transfer", {"||no other choice with this heating system"}},
        {"source of energy", {"||no other choice with this heating system"}},
        {"heated roof",
         {"up|yes|also changes height of roof 2.0 → 1.0 m; upper closure towards outside or non-insulated "
          "roof → outside air"}},
    };
    for (const auto& fall : faelle)
        EXPECT_EQ(worte(e, fall.eingabe), fall.worte) << fall.eingabe;
    EXPECT_EQ(e.basis[0], h.p.qhs_sum);
    std::vector<double> wirkungen;
    for (const Eingabewirkung* eingabe : e.nach_wirkung(0)) {
        double& groesste = wirkungen.emplace_back(0);
        for (const Schritt& schritt : eingabe->schritte)
            groesste = std::max(groesste, schritt.werte ? std::abs(schritt.werte->at(0) - e.basis[0]) : 0);
    }
    EXPECT_THAT(wirkungen, testing::SizeIs(testing::Gt(20)));
    for (std::size_t i = 1; i < wirkungen.size(); ++i)
        EXPECT_LT(wirkungen[i], wirkungen[i - 1] + 0.01) << i;
    const std::string seite = empfindlichkeitsseite(e);
    for (const Schritt& schritt : e.nach_wirkung(0).front()->schritte)
        EXPECT_THAT(seite, testing::HasSubstr(
                               ">" + mit_vorzeichen(e.wirkung(schritt, 0).value(), wirkungsstellen) + "<"))
            << "at the end of the longest bar";
    std::vector<std::string> wirkungslos;
    for (const Eingabewirkung* eingabe : e.ohne_wirkung(0))
        wirkungslos.push_back(eingabe->name);
    EXPECT_THAT(wirkungslos,
                testing::IsSupersetOf({"overheating", "heating system", "U-values of the walls north"}));
    EXPECT_THAT(wirkungslos, testing::Not(testing::Contains("height of roof"))) << "its effect is not known";
    EXPECT_THAT(wirkungslos, testing::Not(testing::Contains("indoor set temperature")));
}

/// The longest bar of each side ends a number's width from the edges of its column; the others follow.
TEST(Tornado, BalkenHabenEinenMassstabUeberAlleStuecke) {
    Tornado tornado{{}, "base"};
    for (int i = 0; i < 5; ++i)
        tornado.zeilen.push_back({"name", "1", {{{"a", -10.0 / (i + 1), "x"}, {"b", 30.0 / (i + 1), "y"}}}});
    tornado.zeilen[4].balken[0] = {"why there is none", std::nullopt, ""};
    ASSERT_EQ(tornado_stuecke(tornado), 2U);
    std::vector<double> links, rechts;
    for (std::size_t stueck = 0; stueck < 2; ++stueck) {
        const RekorderFlaeche bild(
            tornado_breite, tornado_hoehe(tornado, stueck),
            [&](Zeichenflaeche& flaeche) { TornadoZeichnen(tornado, stueck, flaeche); });
        const auto linie = bild.alle(RekorderFlaeche::Art::linie).at(0).zahlen;
        EXPECT_EQ(linie[3], bild.hoehe()) << "the base line goes on in the next piece";
        for (const Zeichnung& balken : bild.alle(RekorderFlaeche::Art::flaeche, tornadofarben[0]))
            links.push_back(linie[0] - balken.zahlen[0]);
        for (const Zeichnung& balken : bild.alle(RekorderFlaeche::Art::flaeche, tornadofarben[1]))
            rechts.push_back(balken.zahlen[2] - linie[0]);
    }
    ASSERT_EQ(links.size(), 4U);
    ASSERT_EQ(rechts.size(), 5U);
    EXPECT_GT(links[0] + rechts[0], 250);
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_NEAR(rechts[i], rechts[0] / static_cast<double>(i + 1), 1e-9);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_NEAR(links[i], rechts[i] / 3, 1e-9);
}

/// Long names, notes and numbers at both sides of the base line.
TEST(Tornado, TexteBleibenAufDerFlaecheUndBeruehrenSichNicht) {
    SvgFlaeche masse(1, 1);
    Tornado tornado{{}, "Ausgangsfall 182.3 kWh/(m² a)"};
    for (const double wirkung : {120.5, 0.005, -88.25, -0.01}) {
        for (const char* name : {"Wärmerückgewinnung", "Energiedurchlassgrad (g-Wert) alle Fassaden"})
            tornado.zeilen.push_back(
                {name,
                 "Wärmeschutzverglasung, zweifach",
                 {{{"→ nicht oder nur wenig gedämmter Dachraum", wirkung, mit_vorzeichen(wirkung, 2)},
                   {"→ 18.0 °C", -wirkung, mit_vorzeichen(-wirkung, 2)}}}});
    }
    tornado.zeilen.front().balken[1] = {"letzter Eintrag der Liste", std::nullopt, ""};
    for (std::size_t stueck = 0; stueck < tornado_stuecke(tornado); ++stueck) {
        const auto zeichne = [&](Zeichenflaeche& bild) { TornadoZeichnen(tornado, stueck, bild); };
        EXPECT_THAT(test::textfehler(zeichne, tornado_breite, tornado_hoehe(tornado, stueck), masse),
                    testing::IsEmpty())
            << stueck;
        EXPECT_EQ(std::ranges::count(
                      RekorderFlaeche(tornado_breite, tornado_hoehe(tornado, stueck), zeichne).texte(),
                      tornado.basis),
                  stueck == 0 ? 1 : 0)
            << "once, at the top";
    }
}

}  // namespace
}  // namespace velmaris
