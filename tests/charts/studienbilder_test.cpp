#include "charts/kurvenbild.h"
#include "charts/rasterbild.h"
#include "tests/charts/probe.h"
#include "toolkit/svg_flaeche.h"

#include <algorithm>
#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>

namespace velmaris {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using Art = Zeichnung::Art;

constexpr double luecke = std::numeric_limits<double>::quiet_NaN();

TEST(Achsenteilung, HatRundeSchritteUmDenBereich) {
    struct Fall {
        double von, bis;
        int hoechstens;
        double schritt, unten, oben;
        std::string zahl;  // of the upper end
    };
    for (const Fall& f :
         {Fall{0, 8760, 8, 2000, 0, 10000, "10000"}, Fall{0.1, 1.4, 8, 0.2, 0, 1.4, "1.4"},
          Fall{0, 0.3, 6, 0.05, 0, 0.3, "0.30"}, Fall{-7, 12, 5, 5, -10, 15, "15"},
          Fall{268.8, 314, 10, 5, 265, 315, "315"}, Fall{0, 0, 8, 0.2, -0.6, 0.6, "0.6"},
          Fall{20, 20, 4, 5, 10, 30, "30"}, Fall{1e-5, 3e-5, 4, 5e-6, 1e-5, 3e-5, "0.000030"}}) {
        const Achsenteilung t(f.von, f.bis, f.hoechstens);
        EXPECT_DOUBLE_EQ(t.schritt(), f.schritt) << f.von << ' ' << f.bis;
        EXPECT_NEAR(t.unten(), f.unten, 1e-12) << f.von << ' ' << f.bis;
        EXPECT_NEAR(t.oben(), f.oben, 1e-12) << f.von << ' ' << f.bis;
        EXPECT_EQ(t.zahl(t.oben()), f.zahl);
    }
    EXPECT_THAT(Achsenteilung(0.15, 0.55, 5).striche(), ElementsAre(0.2, 0.3, 0.4, 0.5))
        << "no rounding error";
}

TEST(Kurventeilung, BeginntBeiNullAusserWennAllesDichtBeieinanderLiegt) {
    EXPECT_EQ(kurventeilung({{"a", {5, luecke, 20}}}).unten(), 0);
    EXPECT_EQ(kurventeilung({{"a", {95, 100}}}).unten(), 95);
    EXPECT_EQ(kurventeilung({{"a", {-20, -5}}}).oben(), 0);
    EXPECT_EQ(kurventeilung({{"a", {luecke}}}).oben(), 1) << "nothing to draw is drawn on an axis";
}

/// Gaps interrupt a curve; a single point between two of them is marked.
TEST(Kurvenbild, LueckenUnterbrechenDieKurve) {
    const Kurvenbild inhalt{.achse = {.titel = "x", .werte = {0, 1, 2, 3, 4, 5}, .basis = 4.5},
                            .einheit = "kW",
                            .basisname = "hier",
                            .kurven = {{"A", {10, 20, luecke, 20, luecke, 10}, 15}}};
    RekorderFlaeche bild(600, 300, [&](Zeichenflaeche& b) { KurvenZeichnen(inhalt, b); });
    EXPECT_EQ(bild.alle(Art::linie, farben::schwarz).size(), 1U + 1U)
        << "one piece, and the leader of the name";
    EXPECT_EQ(bild.alle(Art::kreis, farben::schwarz).size(), 4U + 1U) << "four points and the base";
    EXPECT_THAT(bild.texte(), testing::IsSupersetOf({"A", "kW", "x", "hier", "0", "20", "5"}));

    SvgFlaeche svg(600, 300);
    KurvenZeichnen(inhalt, svg);
    EXPECT_THAT(svg.svg(), Not(HasSubstr("nan")));
}

/// Names beside the curves keep a line's distance, and stay inside of the picture, however close the ends.
TEST(Kurvenbild, NamenUeberdeckenSichNicht) {
    Kurvenbild inhalt{
        .achse = {.titel = "x", .werte = {0, 1}}, .einheit = "h", .basisname = {}, .kurven = {}};
    for (int i = 0; i < 12; ++i)
        inhalt.kurven.push_back({"Kurve " + std::to_string(i), {0, i < 6 ? 100.0 : 0.5}});
    RekorderFlaeche bild(600, kurvenhoehe(inhalt), [&](Zeichenflaeche& b) { KurvenZeichnen(inhalt, b); });
    std::vector<double> hoehen;
    for (const Zeichnung& z : bild.alle(Art::text)) {
        if (z.text.starts_with("Kurve")) hoehen.push_back(z.zahlen[1]);
    }
    std::ranges::sort(hoehen);
    ASSERT_EQ(hoehen.size(), 12U);
    for (std::size_t i = 1; i < hoehen.size(); ++i)
        EXPECT_GE(hoehen[i] - hoehen[i - 1], 13);
    EXPECT_GE(hoehen.front(), 0);
    EXPECT_LT(hoehen.back() + 13, bild.hoehe());
}

TEST(Kurvenbild, WahlenStehenInZeilen) {
    const Kurvenbild inhalt{.achse = {.titel = "Ort", .namen = {"Trier", "Hof"}, .basis = 1},
                            .einheit = "kW",
                            .basisname = {},
                            .kurven = {{"A", {10, 20}}, {"B", {luecke, 5}}}};
    RekorderFlaeche bild(600, kurvenhoehe(inhalt), [&](Zeichenflaeche& b) { KurvenZeichnen(inhalt, b); });
    const auto punkte = bild.alle(Art::kreis);
    ASSERT_EQ(punkte.size(), 2U + 1U) << "and one beside the name";
    EXPECT_EQ(punkte[1].zahlen[1] - punkte[0].zahlen[1], 22);
    EXPECT_GT(punkte[1].zahlen[0], punkte[0].zahlen[0]);
    EXPECT_THAT(bild.texte(), testing::IsSupersetOf({"Ort", "Trier", "Hof", "A", "B", "kW"}));
}

/// Seen in grey, and by eyes that lack one of the two longer waves, each colour is darker than the one
/// before.
TEST(Rasterfarbe, WirdStetigDunkler) {
    const auto helligkeit = [](Farbe f) { return 0.2126 * f.r + 0.7152 * f.g + 0.0722 * f.b; };
    const auto gruenblind = [](Farbe f) { return 0.625 * f.r + 0.375 * f.g; };
    for (int i = 1; i <= 32; ++i) {
        const Farbe heller = rasterfarbe((i - 1) / 32.0), dunkler = rasterfarbe(i / 32.0);
        EXPECT_GT(helligkeit(heller) - helligkeit(dunkler), 2.5) << i;
        EXPECT_GT(gruenblind(heller) - gruenblind(dunkler), 1) << i;
    }
}

class Raster : public ::testing::Test {
  protected:
    static Rasterbild ebene(std::size_t n) {
        Rasterbild r{.waagerecht = {.titel = "x"},
                     .senkrecht = {.titel = "y"},
                     .werte = {},
                     .einheit = "h",
                     .basisname = "hier"};
        for (std::size_t i = 0; i < n; ++i) {
            r.waagerecht.werte.push_back(static_cast<double>(i));
            r.senkrecht.werte.push_back(static_cast<double>(i));
        }
        for (const double y : r.senkrecht.werte) {
            for (const double x : r.waagerecht.werte)
                r.werte.push_back(x + y);
        }
        return r;
    }

    static std::string svg(const Rasterbild& inhalt) {
        SvgFlaeche bild(900, rasterhoehe(inhalt));
        RasterZeichnen(inhalt, bild);
        return bild.svg();
    }
};

TEST_F(Raster, ZellenHabenFarbeIhresWertesUndLueckenKreuze) {
    Rasterbild inhalt = ebene(2);
    inhalt.werte[1] = luecke;  // right below
    inhalt.waagerecht.basis = inhalt.senkrecht.basis = 0;
    RekorderFlaeche bild(900, rasterhoehe(inhalt), [&](Zeichenflaeche& b) { RasterZeichnen(inhalt, b); });
    EXPECT_EQ(bild.lies_punkt(100, bild.hoehe() - 60), rasterfarbe(0));
    EXPECT_EQ(bild.lies_punkt(700, 60), rasterfarbe(1));
    EXPECT_EQ(bild.lies_punkt(600, bild.hoehe() - 60), (Farbe{215, 215, 215}));
    EXPECT_THAT(bild.texte(), testing::IsSupersetOf({"x", "y", "h", "hier", "0", "1"}));
    for (double& wert : inhalt.werte)
        wert = luecke;
    EXPECT_TRUE(ist_eben(inhalt.werte));
    EXPECT_TRUE(ist_eben({5, luecke, 5.00001}));
    EXPECT_FALSE(ist_eben({5, 5.1}));
}

/// Of the values 0 to 18 the lines of 2, 4 ... 16 are straight; each has its number.
TEST_F(Raster, LinienTragenIhreWerte) {
    const std::string bild = svg(ebene(10));
    const std::regex marke(R"re(stroke-linejoin="round"[^>]*>(\d+)</text>)re");
    const std::vector<std::string> zahlen(std::sregex_token_iterator(bild.begin(), bild.end(), marke, 1), {});
    EXPECT_THAT(zahlen, ElementsAre("2", "4", "6", "8", "10", "12", "14", "16"));
    Rasterbild wahlen = ebene(10);
    wahlen.senkrecht.werte.clear();
    wahlen.senkrecht.namen.assign(10, "Stufe");
    EXPECT_FALSE(std::regex_search(svg(wahlen), marke)) << "nothing lies between choices";
}

TEST_F(Raster, DateiBleibtKleinSoVieleZellenEsSind) {
    const std::string bild = svg(ebene(1000));
    EXPECT_LT(bild.size(), std::size_t{1} << 20U);
    EXPECT_THAT(bild, Not(HasSubstr("nan")));
    for (const std::size_t zeilen : {std::size_t{1}, std::size_t{2}}) {
        Rasterbild flach = ebene(3);
        flach.senkrecht.werte.resize(zeilen);
        flach.werte.resize(3 * zeilen);
        EXPECT_THAT(svg(flach), Not(HasSubstr("nan"))) << zeilen;
    }
}

}  // namespace
}  // namespace velmaris
