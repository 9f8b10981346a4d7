#include "studies/vergleich.h"

#include "charts/c_sankey.h"
#include "charts/sankey_heizen.h"
#include "charts/sankey_kuehlen.h"
#include "studies/vergleichsseite.h"
#include "tests/testprogramm.h"
#include "toolkit/svg_flaeche.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>

namespace velmaris {
namespace {

/// The new project, and what becomes of it by changes.
class VergleichTest : public testing::Test {
  protected:
    void nimm(const std::string& datei, const std::function<void(Haupt&)>& aendere,
              const std::string& sprache = "d") {
        auto& probe = *proben.emplace_back(std::make_unique<test::Testprogramm>(sprache));
        aendere(*probe.haupt);
        probe.haupt->p.Datei = datei;
        projekte.push_back(std::move(probe.haupt));
    }

    /// All groups of a pattern in a text, one after the other.
    static std::vector<std::string> funde(const std::string& text, const std::string& muster) {
        const std::regex regel(muster);
        return {std::sregex_token_iterator(text.begin(), text.end(), regel, 1), {}};
    }

    std::vector<std::unique_ptr<test::Testprogramm>> proben;
    std::vector<std::unique_ptr<Haupt>> projekte;
};

TEST_F(VergleichTest, NenntUngleicheEingabenUndIhreWirkung) {
    nimm("/x/haus.vel", [](Haupt&) {});
    nimm("/x/sued.vel", [](Haupt& h) {
        h.e_fenster.sued.f.sb.setze(45);
        h.e_fenster.sued.versch.sb.setze(25);
        h.e_gebaeude.Troom_sb.setze(213);
        h.e_gebaeude.awn_cb.setze(1 - h.e_gebaeude.awn_cb.wert());
        h.e_daemmung.ugd.setze(2);
    });
    nimm("/x/gleich.vel", [](Haupt&) {});
    const Projekt &basis = projekte[0]->p, &sued = projekte[1]->p;
    const Vergleich v = vergleichen(projekte);
    EXPECT_EQ(v.projekte, (std::vector<std::string>{"haus", "sued", "gleich"}));
    std::vector<std::string> zeilen;
    for (const Eingabevergleich& e : v.eingaben)
        zeilen.push_back(e.name + "|" + e.werte[0] + "|" + e.werte[1] + "|" + e.werte[2] + "|" + e.einheit);
    EXPECT_THAT(zeilen,
                testing::ElementsAre("Wandanteil Süd|40|45|40|%", "Verschattung alle Fassaden|20|25|20|%",
                                     testing::StartsWith("Untere Geschoßdecke gegen|"),
                                     "Soll-Raumlufttemperatur|20.0|21.3|20.0|°C",
                                     "Wand gegen beheizt Nord|nein|ja|nein|"));
    const Ergebnisvergleich& heizen = v.ergebnisse[0];
    EXPECT_DOUBLE_EQ(heizen.abweichung(1), double{sued.qhs_sum} - basis.qhs_sum);
    EXPECT_NEAR(heizen.prozent(1), 100 * (double{sued.qhs_sum} / basis.qhs_sum - 1), 1e-9);
    EXPECT_EQ(heizen.abweichung(2), 0);
    EXPECT_THAT(v.saetze[0], testing::AllOf(testing::HasSubstr("Wandanteil Süd 40 → 45 %; "),
                                            testing::HasSubstr("Wand gegen beheizt Nord nein → ja: "),
                                            testing::HasSubstr("Heizwärmebedarf " +
                                                               mit_vorzeichen(heizen.abweichung(1), 1) +
                                                               " kWh/(m² a), Kühlbedarf ")));
    EXPECT_THAT(v.saetze[1], testing::StartsWith("gleiche Eingaben: Heizwärmebedarf +0.0 "));
}

/// Cells of a row by column: a row for each input and each result, empty where a number has no meaning.
TEST_F(VergleichTest, TabelleHatFuerJedeZeileAlleSpalten) {
    nimm(
        "a.vel", [](Haupt& h) { h.e_gebaeude.Troom_sb.setze(-100); }, "e");
    nimm(
        "b,c.vel", [](Haupt&) {}, "e");
    const Vergleich v = vergleichen(projekte);
    EXPECT_EQ(v.ergebnisse[0].werte[0], 0) << "no heat is needed at -10 degC";
    const std::string csv = vergleich_csv(v, "e");
    EXPECT_THAT(
        csv, testing::StartsWith(
                 "kind,quantity,unit,a,\"b,c\",\"difference b,c\",\"per cent b,c\"\r\n"
                 "input,indoor set temperature,°C,-10.0,20.0,,\r\nresult,heat energy demand,kWh/(m² a),0,"));
    const std::vector<std::string> zeilen = funde(csv, "result,([^\r]*)\r\n");
    EXPECT_EQ(zeilen.size(), v.ergebnisse.size());
    for (const std::string& zeile : zeilen)
        EXPECT_EQ(std::ranges::count(zeile, ','), 5) << zeile;
    EXPECT_THAT(zeilen[0], testing::EndsWith(",")) << "no per cent of nothing";
}

/// The axes of a row of charts have the same numbers, and a pixel of all energy flows stands for the same.
TEST_F(VergleichTest, SeiteZeichnetAllesInEinemMassstab) {
    nimm("klein & <fein>.vel", [](Haupt& h) { h.e_gebaeude.Troom_sb.setze(150); });
    nimm("gross.vel", [](Haupt& h) {
        h.e_gebaeude.Tueber_sb.setze(200);
        h.e_gebaeude.Troom_sb.setze(280);
    });
    const std::string seite = vergleichsseite(projekte, vergleichen(projekte), 1);
    EXPECT_THAT(seite, testing::HasSubstr("klein &amp; &lt;fein&gt;"));
    EXPECT_THAT(seite, testing::Not(testing::HasSubstr("<fein>")));
    EXPECT_THAT(seite, testing::Not(testing::ContainsRegex("(href|src|url)[=(]")));
    EXPECT_THAT(seite, testing::HasSubstr("Januar</h2>"));
    const auto mittel = funde(seite, "Mittlere geregelte Raumtemperatur</td>(.*)</tr>");
    ASSERT_EQ(mittel.size(), 1U);
    EXPECT_EQ(funde(mittel[0], "<td>([^]*?)</td>").size(), 2U);
    EXPECT_THAT(mittel[0],
                testing::ContainsRegex("<td>[0-9.]+</td><td>[0-9.]+<small>\\+[0-9.]+ \\(\\+[0-9]+ %"));
    const std::vector<std::string> bilder = funde(seite, "<figure>([^]*?)</figure>");
    ASSERT_EQ(bilder.size(), 6U);
    for (std::size_t i = 0; i < bilder.size(); i += 2)
        EXPECT_EQ(funde(bilder[i], "<text[^>]*>(\\d+)</text>"),
                  funde(bilder[i + 1], "<text[^>]*>(\\d+)</text>"))
            << i;
    const SvgFlaeche masse(sankey_breite, sankey_hoehe);
    const Projekt &klein = projekte[0]->p, &gross = projekte[1]->p;
    const double S = sankey_heizmasse(gross, masse).S;
    const Sankey_Heizmasse geteilt = sankey_heizmasse(klein, masse, S);
    EXPECT_LT(sankey_heizmasse(klein, masse).S, S);
    EXPECT_NEAR(geteilt.bQT * S, klein.qtrs, S);
    EXPECT_NEAR(geteilt.bPE * S, double{klein.q_PE_Energietraeger} + klein.q_PE_Strom, S);
    const Sankey_Kuehlwerte kuehl = sankey_kuehlwerte(gross);
    const double K = 2 * sankey_kuehlmassstab(gross, masse);
    ASSERT_GT(K, 0);
    EXPECT_NEAR(sankey_kuehlmasse(kuehl, masse, K).C * K, kuehl.C, 4 * K) << "four parts, each cut off";
}

}  // namespace
}  // namespace velmaris
