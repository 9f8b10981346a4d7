#include "toolkit/pixel.h"
#include "toolkit/schriftmasse.h"
#include "toolkit/svg_flaeche.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <sstream>
#include <string>

namespace velmaris {
namespace {

TEST(Pixel, WerdenGerundetUndKaestenHabenIhreEckenInJederReihenfolge) {
    EXPECT_EQ(pixel(0.5), 0);
    EXPECT_EQ(pixel(1.5), 2);
    EXPECT_EQ(pixel(1e30), 30000);
    EXPECT_EQ(pixel(-INFINITY), -30000);
    EXPECT_EQ(pixelkasten(3.4, 2, 1, 0.6), (Pixelkasten{1, 1, 3, 2}));
    for (std::size_t i = 0; i < 4; ++i) {
        std::array<double, 4> ecken{1, 2, 3, 4};
        ecken[i] = NAN;
        EXPECT_FALSE(pixelkasten(ecken[0], ecken[1], ecken[2], ecken[3]));
    }
}

TEST(Pixellinie, LaesstIhrLetztesPixelAus) {
    const auto gerade = [](double x1, double y1, double x2, double y2, int dicke) {
        return pixellinie(x1, y1, x2, y2, dicke).value().gerade;
    };
    EXPECT_EQ(gerade(1, 1, 4, 1, 1), (Pixelkasten{1, 1, 3, 1}));
    EXPECT_EQ(gerade(4, 1, 1, 1, 1), (Pixelkasten{2, 1, 4, 1}));
    EXPECT_EQ(gerade(2, 1, 2, 3, 4), (Pixelkasten{1, 1, 4, 2}));
    EXPECT_EQ(gerade(1, 2, 3, 2, 3), (Pixelkasten{1, 1, 2, 3}));
    EXPECT_EQ(gerade(1, 2, 3, 2, 2), (Pixelkasten{1, 2, 2, 3}));
    EXPECT_FALSE(gerade(1, 1, 3, -4.2, 1));
    EXPECT_EQ(pixellinie(1, 1, 3, -4.2, 1)->y2, -4);
    EXPECT_FALSE(pixellinie(2, 2, 2, 2, 1) || pixellinie(1, 1, 4, NAN, 1));
}

/// The characters of a width in thousandths of the em, as the metrics of Helvetica, Helvetica-Bold and
/// Times-Roman were published.
constexpr std::array<const char*, 3> breitentafeln{
    "191 ' 222 ijl 260 | 278 !,./:;[\\]Ift 333 ()-`r 334 {} 355 \" 389 * 469 ^ 500 Jcksvxyz 556 "
    "#$0123456789?L_abdeghnopqu 584 +<=>~ 611 FTZ 667 &ABEKPSVXY 722 CDHNRUw 778 GOQ 833 Mm 889 % 944 W 1015 "
    "@",
    "238 ' 278 ,./Iijl\\ 280 | 333 !()-:;[]ft` 389 *r{} 474 \" 500 z 556 #$0123456789J_aceksvxy 584 +<=>^~ "
    "611 ?FLTZbdghnopqu 667 EPSVXY 722 &ABCDHKNRU 778 GOQw 833 M 889 %m 944 W 975 @",
    "180 ' 200 | 250 ,. 278 /:;\\ijlt 333 !()-I[]`fr 389 Js 408 \" 444 ?acez 469 ^ 480 {} 500 #$0123456789*_"
    "bdghknopquvxy 541 ~ 556 FPS 564 +<=> 611 ELTZ 667 BCR 722 ADGHKNOQUVXYw 778 &m 833 % 889 M 921 @ 944 W"};

TEST(Schriftmasse, BreitenDerPubliziertenTabellen) {
    const std::array<Schrift, 3> schriften{Schrift{.groesse = 7.5}, Schrift{.groesse = 7.5, .fett = true},
                                           Schrift{.name = "Times New Roman", .groesse = 7.5}};
    for (std::size_t i = 0; i < schriften.size(); ++i) {
        std::istringstream tafel(breitentafeln[i]);
        double tausendstel = 0;
        std::string zeichen;
        while (tafel >> tausendstel >> zeichen) {
            for (const char eines : zeichen)
                EXPECT_NEAR(schriftbreite(std::string(1, eines), schriften[i]), tausendstel / 100, 1e-9)
                    << eines;
        }
        EXPECT_NEAR(schriftbreite("a b", schriften[i]) - schriftbreite("ab", schriften[i]),
                    i == 2 ? 2.5 : 2.78, 1e-9);
        for (const std::string reihe : {"AÀÁÂÃÄÅ", "EÈÉÊË", "IÌÍÎÏ", "OÒÓÔÕÖ", "UÙÚÛÜ", "aàáâãäå", "eèéêë",
                                        "oòóôõö", "uùúûü", "nñ", "cç", "CÇ", "NÑ", "YÝŸ", "yýÿ"})
            for (std::size_t k = 1; k < reihe.size(); k += 2)
                EXPECT_EQ(schriftbreite(reihe.substr(k, 2), schriften[i]),
                          schriftbreite(reihe.substr(0, 1), schriften[i]));
    }
    EXPECT_NEAR(schriftbreite("°C m²", schriften[0]), 25.66, 1e-9);  // 400 + 722 + 278 + 833 + 333
    EXPECT_EQ(schriftbreite("Ω\n", schriften[0]), schriftbreite("?", schriften[0]));
    EXPECT_EQ(schrifthoehe({}), 13);
}

TEST(SvgFlaeche, SchreibtElementeUndTeiltPfadeGleicherFarbe) {
    SvgFlaeche bild(20, 10);
    bild.flaeche(7, 7, 8, 8, farben::gelb);
    bild.Cls();
    bild.flaeche(1, 2, 3, 4, farben::rot);
    bild.linie(5, 9, 5, 6, farben::rot, 1);
    bild.flaeche(0, 0, 0, 0.5, farben::blau);
    bild.linie(0, 0, 4, 8, farben::blau, 2);
    bild.kasten(3, 5, 6, 9, farben::gelb);
    bild.kreis(4, 4, 2, farben::schwarz, std::nullopt);
    EXPECT_TRUE(bild.umriss({.ecken = {{1, 1}, {4, 1}, {4, 4, 3}, {1, 4, -3}}}, farben::rot));
    bild.sektor(10, 10, 5, 0, std::numbers::pi / 2, farben::rot);
    bild.sektor(10, 10, 5, 0, -1.5 * std::numbers::pi, farben::blau);
    bild.sektor(2, 2, 1, 0, 2 * std::numbers::pi, farben::rot);
    bild.schrift({.fett = true});
    bild.text(1.5, 2, "a < b > \"c\" &", farben::blau);
    bild.schrift({.hof = farben::weiss});
    bild.text(0, 0, "a", farben::schwarz);
    const std::string ganz =
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"20\" height=\"10\" viewBox=\"0 0 20 10\" "
        "font-family=\"'Liberation Sans', Arial, Helvetica, sans-serif\" xml:space=\"preserve\">\n"
        R"(<path fill="#ffffff" shape-rendering="crispEdges" d="M 0 0h 20v 10h-20z"/>
<path fill="#ff0000" shape-rendering="crispEdges" d="M 1 2h 3v 3h-3zM 5 7h 1v 3h-1z"/>
<path fill="#0000ff" shape-rendering="crispEdges" d="M 0 0h 1v 1h-1z"/>
<path fill="none" stroke="#0000ff" stroke-width="2" stroke-linecap="square" d="M .5 .5l 3.5 7"/>
<path fill="#ffff00" shape-rendering="crispEdges" d="M 3 5h 4v 1h-4zM 3 9h 4v 1h-4zM 3 5h 1v 5h-1zM 6 5h 1v 5h-1z"/>
<circle cx="4.5" cy="4.5" r="2" fill="none" stroke="#000000"/>
<path fill="#ff0000" d="M 1 1L 4 1A 3 3 0 0 0 4 4A 3 3 0 0 1 1 4Z"/>
<path fill="#ff0000" stroke="#ff0000" stroke-linejoin="round" d="M 10.5 10.5L 15.5 10.5A 5 5 0 0 0 10.5 5.5Z"/>
<path fill="#0000ff" stroke="#0000ff" stroke-linejoin="round" d="M 10.5 10.5L 15.5 10.5A 5 5 0 1 1 10.5 5.5Z"/>
<circle cx="2.5" cy="2.5" r="1" fill="#ff0000" stroke="#ff0000"/>
<text x="1.5" y="12" font-size="11" font-weight="bold" fill="#0000ff">a &lt; b &gt; &quot;c&quot; &amp;</text>
)"
        "<text x=\"0\" y=\"10\" font-size=\"11\" paint-order=\"stroke\" stroke=\"#ffffff\" "
        "stroke-width=\"3\" stroke-linejoin=\"round\">a</text>\n</svg>\n";
    EXPECT_EQ(bild.svg(), ganz);
    bild.flaeche(0, 0, 4, NAN, farben::rot);
    bild.kreis(4, NAN, 2, farben::rot, farben::rot);
    bild.kreis(4, 4, 0, farben::rot, farben::rot);
    bild.sektor(4, 4, 2, 0, INFINITY, farben::rot);
    bild.text(NAN, 0, "x", farben::rot);
    EXPECT_EQ(bild.svg(), ganz) << "nothing where there is no place";
}

}  // namespace
}  // namespace velmaris
