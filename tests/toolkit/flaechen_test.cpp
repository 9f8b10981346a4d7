#include "toolkit/pixel.h"
#include "toolkit/schriftmasse.h"
#include "toolkit/svg_flaeche.h"

#include <array>
#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <numbers>
#include <sstream>
#include <string>

namespace velmaris {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

constexpr double keine_zahl = NAN;

TEST(Pixel, HalbeWerdenGeradeUndWeitesBleibtFern) {
    EXPECT_EQ(pixel(0.5), 0);
    EXPECT_EQ(pixel(1.5), 2);
    EXPECT_EQ(pixel(-2.5), -2);
    EXPECT_EQ(pixel(97.2), 97);
    EXPECT_EQ(pixel(1e30), 30000);
    EXPECT_EQ(pixel(-INFINITY), -30000);
}

TEST(Pixelkasten, HatSeineEckenInJederReihenfolge) {
    EXPECT_EQ(pixelkasten(3.4, 2, 1, 0.6), (Pixelkasten{1, 1, 3, 2}));
    for (const auto& [x1, y1, x2, y2] : {std::array{keine_zahl, 2., 3., 4.},
                                         {1., keine_zahl, 3., 4.},
                                         {1., 2., keine_zahl, 4.},
                                         {1., 2., 3., keine_zahl}})
        EXPECT_FALSE(pixelkasten(x1, y1, x2, y2));
}

TEST(Pixellinie, LaesstIhrLetztesPixelAus) {
    struct Fall {
        double x1, y1, x2, y2;
        int dicke;
        Pixelkasten kasten;
    };
    for (const Fall& f : {Fall{1, 1, 4, 1, 1, {1, 1, 3, 1}}, Fall{4, 1, 1, 1, 1, {2, 1, 4, 1}},
                          Fall{2, 3, 2, 1, 1, {2, 2, 2, 3}}, Fall{2, 1, 2, 3, 4, {1, 1, 4, 2}},
                          Fall{1, 2, 3, 2, 3, {1, 1, 2, 3}}, Fall{1, 2, 3, 2, 2, {1, 2, 2, 3}}}) {
        const auto linie = pixellinie(f.x1, f.y1, f.x2, f.y2, f.dicke);
        ASSERT_TRUE(linie);
        EXPECT_EQ(linie->gerade, f.kasten) << f.x1 << " " << f.y1 << " " << f.dicke;
    }
    const auto schraeg = pixellinie(1, 1, 3, -4.2, 1);
    ASSERT_TRUE(schraeg);
    EXPECT_FALSE(schraeg->gerade);
    EXPECT_EQ(schraeg->y2, -4);
    EXPECT_FALSE(pixellinie(2, 2, 2, 2, 1));
    EXPECT_FALSE(pixellinie(1, 1, 4, keine_zahl, 1));
}

/// The characters of a width in thousandths of the em, as the metrics of Helvetica, Helvetica-Bold and
/// Times-Roman were published.
constexpr std::array<const char*, 3> breitentafeln{
    "191 ' 222 ijl 260 | 278 !,./:;[\\]Ift 333 ()-`r 334 {} 355 \" 389 * 469 ^ 500 Jcksvxyz 556 "
    "#$0123456789?L_"
    "abdeghnopqu 584 +<=>~ 611 FTZ 667 &ABEKPSVXY 722 CDHNRUw 778 GOQ 833 Mm 889 % 944 W 1015 @",
    "238 ' 278 ,./Iijl\\ 280 | 333 !()-:;[]ft` 389 *r{} 474 \" 500 z 556 #$0123456789J_aceksvxy 584 +<=>^~ "
    "611 ?FLTZbdghnopqu 667 EPSVXY 722 &ABCDHKNRU 778 GOQw 833 M 889 %m 944 W 975 @",
    "180 ' 200 | 250 ,. 278 /:;\\ijlt 333 !()-I[]`fr 389 Js 408 \" 444 ?acez 469 ^ 480 {} 500 #$0123456789*_"
    "bdghknopquvxy 541 ~ 556 FPS 564 +<=> 611 ELTZ 667 BCR 722 ADGHKNOQUVXYw 778 &m 833 % 889 M 921 @ 944 W"};

TEST(Schriftmasse, BreitenDerPubliziertenTabellen) {
    const std::array<Schrift, 3> schriften{Schrift{.groesse = 7.5}, Schrift{.groesse = 7.5, .fett = true},
                                           Schrift{.name = "Times New Roman", .groesse = 7.5}};
    for (std::size_t i = 0; i < schriften.size(); ++i) {
        const Schrift& schrift = schriften[i];
        std::istringstream tafel(breitentafeln[i]);
        double tausendstel = 0;
        std::string zeichen;
        std::size_t gezaehlt = 0;
        while (tafel >> tausendstel >> zeichen) {
            gezaehlt += zeichen.size();
            for (const char eines : zeichen)
                EXPECT_NEAR(schriftbreite(std::string(1, eines), schrift), tausendstel / 100, 1e-9) << eines;
        }
        EXPECT_GE(gezaehlt, 94U);
        EXPECT_NEAR(schriftbreite("a b", schrift) - schriftbreite("ab", schrift), i == 2 ? 2.5 : 2.78, 1e-9);
        for (const std::string reihe : {"AÀÁÂÃÄÅ", "EÈÉÊË", "IÌÍÎÏ", "OÒÓÔÕÖ", "UÙÚÛÜ", "aàáâãäå", "eèéêë",
                                        "oòóôõö", "uùúûü", "nñ", "cç", "CÇ", "NÑ", "YÝŸ", "yýÿ"})
            for (std::size_t k = 1; k < reihe.size(); k += 2)
                EXPECT_EQ(schriftbreite(reihe.substr(k, 2), schrift),
                          schriftbreite(reihe.substr(0, 1), schrift));
    }
    EXPECT_NEAR(schriftbreite("°C m²", schriften[0]), 25.66, 1e-9);  // 400 + 722 + 278 + 833 + 333
    EXPECT_EQ(schriftbreite("Ω\n", schriften[0]), schriftbreite("?", schriften[0]));
    EXPECT_EQ(schrifthoehe({}), 13);
}

TEST(SvgFlaeche, GleicheFarbeTeiltEinenPfad) {
    SvgFlaeche bild(20, 10);
    bild.flaeche(7, 7, 8, 8, farben::gelb);
    bild.Cls();
    bild.flaeche(1, 2, 3, 4, farben::rot);
    bild.linie(5, 9, 5, 6, farben::rot, 1);
    bild.flaeche(0, 0, 0, 0.5, farben::blau);
    EXPECT_EQ(bild.svg(),
              "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"20\" height=\"10\" viewBox=\"0 0 20 10\" "
              "font-family=\"'Liberation Sans', Arial, Helvetica, sans-serif\" xml:space=\"preserve\">\n"
              "<path fill=\"#ffffff\" shape-rendering=\"crispEdges\" d=\"M 0 0h 20v 10h-20z\"/>\n"
              "<path fill=\"#ff0000\" shape-rendering=\"crispEdges\" d=\"M 1 2h 3v 3h-3zM 5 7h 1v 3h-1z\"/>\n"
              "<path fill=\"#0000ff\" shape-rendering=\"crispEdges\" d=\"M 0 0h 1v 1h-1z\"/>\n"
              "</svg>\n");
}

TEST(SvgFlaeche, TextWirdMaskiertUndSitztAufDerGrundlinie) {
    SvgFlaeche bild(20, 10);
    bild.schrift({.fett = true});
    bild.text(1.5, 2, "a < b & \"c\"", farben::blau);
    EXPECT_THAT(bild.svg(), HasSubstr("<text x=\"1.5\" y=\"12\" font-size=\"11\" font-weight=\"bold\" "
                                      "fill=\"#0000ff\">a &lt; b &amp; \"c\"</text>"));
    bild.schrift({.hof = farben::weiss});
    bild.text(0, 0, "a", farben::schwarz);
    EXPECT_THAT(bild.svg(), HasSubstr("paint-order=\"stroke\" stroke=\"#ffffff\" stroke-width=\"3\" "
                                      "stroke-linejoin=\"round\">a</text>"));
    bild.Cls();
    EXPECT_THAT(bild.svg(), Not(HasSubstr("<text")));
}

TEST(SvgFlaeche, RundesUndSchraegesUndWasKeineZahlIst) {
    SvgFlaeche bild(20, 20);
    bild.sektor(10, 10, 5, 0, std::numbers::pi / 2, farben::rot);
    EXPECT_THAT(bild.svg(), HasSubstr("d=\"M 10.5 10.5L 15.5 10.5A 5 5 0 0 0 10.5 5.5Z\""));
    bild.kreis(4, 4, 2, farben::schwarz, std::nullopt);
    EXPECT_THAT(bild.svg(),
                HasSubstr("<circle cx=\"4.5\" cy=\"4.5\" r=\"2\" fill=\"none\" stroke=\"#000000\"/>"));
    bild.linie(0, 0, 4, 8, farben::blau, 2);
    EXPECT_THAT(bild.svg(), HasSubstr("stroke-width=\"2\" stroke-linecap=\"square\" d=\"M .5 .5l 3.5 7\""));
    EXPECT_TRUE(bild.umriss({.ecken = {{1, 1}, {4, 1}, {4, 4, 3}, {1, 4, -3}}}, farben::rot));
    EXPECT_THAT(bild.svg(), HasSubstr("d=\"M 1 1L 4 1A 3 3 0 0 0 4 4A 3 3 0 0 1 1 4Z\""));
    bild.sektor(10, 10, 5, 0, -1.5 * std::numbers::pi, farben::rot);
    EXPECT_THAT(bild.svg(), HasSubstr("A 5 5 0 1 1 10.5 5.5Z"));
    bild.sektor(2, 2, 1, 0, 2 * std::numbers::pi, farben::rot);
    EXPECT_THAT(bild.svg(), HasSubstr("cx=\"2.5\" cy=\"2.5\" r=\"1\" fill=\"#ff0000\""));
    bild.kasten(3, 5, 6, 9, farben::gelb);
    EXPECT_THAT(bild.svg(), HasSubstr("M 3 5h 4v 1h-4zM 3 9h 4v 1h-4zM 3 5h 1v 5h-1zM 6 5h 1v 5h-1z"));
    const std::string vorher = bild.svg();
    bild.flaeche(0, 0, 4, keine_zahl, farben::rot);
    bild.kreis(4, keine_zahl, 2, farben::rot, farben::rot);
    bild.kreis(4, 4, 0, farben::rot, farben::rot);
    bild.sektor(4, 4, 2, 0, INFINITY, farben::rot);
    bild.text(keine_zahl, 0, "x", farben::rot);
    EXPECT_EQ(bild.svg(), vorher);
}

}  // namespace
}  // namespace velmaris
