#include "charts/kurvenbild.h"
#include "charts/kurvenfarben.h"
#include "charts/rasterbild.h"
#include "tests/charts/probe.h"
#include "tests/textlage.h"
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

/// The middle of the first text of these words.
Ort mitte(const RekorderFlaeche& bild, const std::string& text) {
    const auto texte = bild.alle(Art::text);
    const auto treffer = std::ranges::find(texte, text, &Zeichnung::text);
    if (treffer == texte.end()) {
        ADD_FAILURE() << "no text " << text;
        return {};
    }
    return {treffer->zahlen[0] + bild.textbreite(text) / 2, treffer->zahlen[1] + bild.texthoehe(text) / 2};
}

int abstand(Farbe a, Farbe b) {
    return std::abs(a.r - b.r) + std::abs(a.g - b.g) + std::abs(a.b - b.b);
}

/// Numbers from 0 on, or as many choices.
Bildachse achse(std::size_t n, const std::string& name = "") {
    Bildachse a{.titel = "Größe in kWh/(m² a)"};
    for (std::size_t i = 0; i < n; ++i) {
        if (name.empty()) a.werte.push_back(static_cast<double>(i));
        if (!name.empty()) a.namen.push_back(name + " " + std::to_string(i));
    }
    return a;
}

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

TEST(Kurvenbild, PunkteUndNamenLiegenBeiDenZahlenDerAchsen) {
    const Kurvenbild inhalt{.achse = {.titel = "x", .werte = {100, 104, 110}, .basis = 107},
                            .einheit = "kW",
                            .basisname = "hier",
                            .kurven = {{"Verlauf", {2, 8, 4}, 6}, {"Kurz", {1, 5, luecke}}}};
    const RekorderFlaeche bild(600, kurvenhoehe(inhalt),
                               [&](Zeichenflaeche& b) { KurvenZeichnen(inhalt, b); });
    EXPECT_EQ(bild.zeichnungen.front().art, Art::cls) << "nothing is left of an older picture";
    const auto punkte = bild.alle(Art::kreis, kurvenfarben[0]);
    ASSERT_EQ(punkte.size(), 4U);
    const std::vector<std::pair<const char*, const char*>> zahlen{{"100", "2"}, {"104", "8"}, {"110", "4"}};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(punkte[i].zahlen[0], mitte(bild, zahlen[i].first).x, 1e-9);
        EXPECT_NEAR(punkte[i].zahlen[1], mitte(bild, zahlen[i].second).y, 1e-9);
    }
    EXPECT_NEAR(punkte[3].zahlen[0], mitte(bild, "100").x * 0.3 + mitte(bild, "110").x * 0.7, 1e-9);
    EXPECT_NEAR(punkte[3].zahlen[1], mitte(bild, "6").y, 1e-9);
    EXPECT_NEAR(mitte(bild, "Verlauf").y, mitte(bild, "4").y, 1e-9);
    EXPECT_NEAR(mitte(bild, "Kurz").y, mitte(bild, "5").y, 1e-9) << "at the height of its last point";
    const Ort letzter{mitte(bild, "104").x, mitte(bild, "5").y};
    EXPECT_TRUE(std::ranges::any_of(bild.alle(Art::linie, bildstil::gitter), [&](const Zeichnung& z) {
        return std::fabs(z.zahlen[0] - letzter.x) < 1e-9 && std::fabs(z.zahlen[1] - letzter.y) < 1e-9;
    })) << "led to its name from there";
}

/// However many numbers, names and choices there are, and wherever the base lies.
TEST(Studienbilder, TexteBleibenAufDerFlaecheUndBeruehrenSichNicht) {
    SvgFlaeche masse(1, 1);
    for (const double basis : {0.0, 0.5, 1.0}) {
        for (const std::size_t n : {std::size_t{2}, std::size_t{9}, std::size_t{40}, std::size_t{300}}) {
            for (const char* wahl : {"", "Wärmeschutzverglasung, beschichtet"}) {
                Bildachse a = achse(n, wahl);
                a.basis = std::round(basis * static_cast<double>(n - 1));
                Kurvenbild kurven{
                    .achse = a, .einheit = "kWh/(m² a)", .basisname = "Ausgangsfall", .kurven = {}};
                for (const double steigung : {100.0, 101.0, -20000.0}) {
                    Kurve& kurve = kurven.kurven.emplace_back(Kurve{"Kühlbedarf durch interne Gewinne", {}});
                    for (std::size_t i = 0; i < n; ++i)
                        kurve.werte.push_back(steigung * static_cast<double>(i));
                }
                EXPECT_THAT(test::textfehler([&](Zeichenflaeche& b) { KurvenZeichnen(kurven, b); }, 900,
                                             kurvenhoehe(kurven), masse),
                            testing::IsEmpty())
                    << n << wahl << ", base " << basis;
                Rasterbild raster{.waagerecht = a,
                                  .senkrecht = achse(12),
                                  .werte = {},
                                  .einheit = "kWh/(m² a)",
                                  .basisname = "Ausgangsfall"};
                raster.senkrecht.basis = 11 * basis;
                for (std::size_t i = 0; i < 12 * n; ++i)
                    raster.werte.push_back(static_cast<double>(i % n) * 1000 / static_cast<double>(n));
                EXPECT_THAT(test::textfehler([&](Zeichenflaeche& b) { RasterZeichnen(raster, b); }, 900,
                                             rasterhoehe(raster), masse),
                            testing::IsEmpty())
                    << "raster " << n << wahl << ", base " << basis;
            }
        }
    }
}

TEST(Studienbilder, SindHoeherMitMehrWahlenUndNichtMitMehrZahlen) {
    const auto kurven = [](const Bildachse& a) {
        return kurvenhoehe({.achse = a, .einheit = {}, .basisname = {}, .kurven = {}});
    };
    const auto raster = [](const Bildachse& a) {
        return rasterhoehe({.waagerecht = {}, .senkrecht = a, .werte = {}, .einheit = {}, .basisname = {}});
    };
    EXPECT_EQ(kurven(achse(5)), kurven(achse(40)));
    EXPECT_EQ(raster(achse(5)), raster(achse(40)));
    EXPECT_EQ(kurven(achse(40, "a")) - kurven(achse(5, "a")), 35 * 22);
    EXPECT_GT(raster(achse(40, "a")), raster(achse(5, "a")));
    EXPECT_EQ(raster(achse(1000, "a")), raster(achse(100, "a"))) << "no more than a page";
}

/// A surface that takes outlines.
struct Umrissflaeche : RekorderFlaeche {
    bool umriss(const Umriss& u, Farbe /*farbe*/) override {
        for (const Umriss::Ecke& ecke : u.ecken)
            ecken.push_back({ecke.x - 0.5, ecke.y - 0.5});
        return true;
    }
    std::vector<Ort> ecken;
};

/// Both edges run beside the line at half its width; a corner that turns back is cut off.
TEST(Linienzug, BehaeltSeineBreiteAnDenEcken) {
    Umrissflaeche winkel, spitze;
    linienzug_zeichnen(winkel, std::vector<Ort>{{0, 0}, {10, 0}, {10.1, 0.1}, {10, 10}}, farben::rot, 2);
    linienzug_zeichnen(spitze, std::vector<Ort>{{0, 0}, {10, 0}, {0, 0}}, farben::rot, 2);
    const std::vector<Ort> um_die_ecke{{0, 1}, {9, 1}, {9, 10}, {11, 10}, {11, -1}, {0, -1}};
    ASSERT_EQ(winkel.ecken.size(), um_die_ecke.size()) << "places that are nearer than a pixel are one";
    for (std::size_t i = 0; i < um_die_ecke.size(); ++i) {
        EXPECT_NEAR(winkel.ecken[i].x, um_die_ecke[i].x, 1e-12) << i;
        EXPECT_NEAR(winkel.ecken[i].y, um_die_ecke[i].y, 1e-12) << i;
    }
    EXPECT_EQ(std::ranges::max(spitze.ecken, {}, &Ort::x).x, 10);
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
    EXPECT_EQ((Ort{punkte[0].zahlen[0], punkte[0].zahlen[1]}),
              (Ort{mitte(bild, "10").x, mitte(bild, "Trier").y}));
    EXPECT_EQ((Ort{punkte[1].zahlen[0], punkte[1].zahlen[1]}),
              (Ort{mitte(bild, "20").x, mitte(bild, "Hof").y}));
    EXPECT_EQ(punkte[2].zahlen[1], mitte(bild, "A").y);
    EXPECT_NE(bild.lies_punkt(4, mitte(bild, "Hof").y), bild.lies_punkt(4, mitte(bild, "Trier").y))
        << "the row of the base has a ground of its own";
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

TEST_F(Raster, NamenStehenAnIhrenZellen) {
    Rasterbild inhalt{.waagerecht = {.titel = "x", .namen = {"Ost", "West", "Nord"}, .basis = 1},
                      .senkrecht = {.titel = "y", .namen = {"keine", "halbe", "volle"}},
                      .werte = {0, 1, 2, 3, 4, 5, 6, 7, 8},
                      .einheit = "h",
                      .basisname = "hier"};
    const RekorderFlaeche bild(900, rasterhoehe(inhalt),
                               [&](Zeichenflaeche& b) { RasterZeichnen(inhalt, b); });
    EXPECT_THAT(bild.texte(), Not(testing::Contains("hier"))) << "the base has a place on one axis alone";
    for (std::size_t i = 0; i < inhalt.werte.size(); ++i) {
        const double x = mitte(bild, inhalt.waagerecht.namen[i % 3]).x;
        const double y = mitte(bild, inhalt.senkrecht.namen[i / 3]).y;
        EXPECT_LT(abstand(bild.lies_punkt(x, y), rasterfarbe(inhalt.werte[i] / 8)), 10) << i;
    }
}

TEST_F(Raster, FarbleisteNenntDieFarbenDerWerte) {
    const Rasterbild inhalt = ebene(10);
    const RekorderFlaeche bild(900, rasterhoehe(inhalt),
                               [&](Zeichenflaeche& b) { RasterZeichnen(inhalt, b); });
    int zahlen = 0;
    for (const Zeichnung& z : bild.alle(Art::text)) {
        if (z.zahlen[0] < 850 || z.text == inhalt.einheit) continue;
        ++zahlen;
        const double y = z.zahlen[1] + bild.texthoehe(z.text) / 2;
        const auto striche = bild.alle(Art::linie, bildstil::achse);
        const auto strich = std::ranges::find_if(striche, [&](const Zeichnung& s) {
            return s.zahlen[0] > 800 && std::fabs(s.zahlen[1] - y) < 1e-9;
        });
        ASSERT_NE(strich, striche.end()) << z.text;
        const double innen = y + (bild.hoehe() / 2 - y) / 100;
        EXPECT_LT(abstand(bild.lies_punkt(strich->zahlen[0] - 8, innen), rasterfarbe(std::stod(z.text) / 18)),
                  15)
            << z.text;
    }
    EXPECT_EQ(zahlen, 10) << "0 to 18";
}

/// The lines of a cone are rings; each number stands on its own.
TEST_F(Raster, ZahlenStehenAufIhrenLinien) {
    Rasterbild inhalt = ebene(9);
    for (std::size_t i = 0; i < inhalt.werte.size(); ++i)
        inhalt.werte[i] = std::hypot(static_cast<double>(i % 9) - 4, static_cast<double>(i) / 9 - 4);
    const RekorderFlaeche bild(900, rasterhoehe(inhalt),
                               [&](Zeichenflaeche& b) { RasterZeichnen(inhalt, b); });
    const auto linien = bild.alle(Art::linie, farben::schwarz);
    int zahlen = 0;
    for (const Zeichnung& z : bild.alle(Art::text)) {
        if (!z.schrift.hof) continue;
        ++zahlen;
        const Ort ort{z.zahlen[0] + bild.textbreite(z.text) / 2, z.zahlen[1] + bild.texthoehe(z.text) / 2};
        double naechste = 1000;
        for (const Zeichnung& l : linien) {
            const double dx = l.zahlen[2] - l.zahlen[0], dy = l.zahlen[3] - l.zahlen[1];
            const double teil = std::clamp(
                ((ort.x - l.zahlen[0]) * dx + (ort.y - l.zahlen[1]) * dy) / (dx * dx + dy * dy), 0.0, 1.0);
            naechste = std::min(naechste,
                                std::hypot(l.zahlen[0] + teil * dx - ort.x, l.zahlen[1] + teil * dy - ort.y));
        }
        EXPECT_LT(naechste, 1e-6) << z.text;
    }
    EXPECT_GT(zahlen, 5);
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
