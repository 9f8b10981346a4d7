#include "desktop/platform/qt_flaeche.h"

#include "desktop/platform/qt_schrift.h"

#include <QFontDatabase>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>
#include <string>
#include <vector>

namespace velmaris {
namespace {

constexpr double pi = std::numbers::pi;

/// The device pixels of a surface as rows of characters: "#" black, "o" red, "." background, "?" other.
std::vector<std::string> bild_als_text(QtFlaeche& flaeche) {
    const QImage bild = flaeche.bild();
    std::vector<std::string> zeilen;
    for (int y = 0; y < bild.height(); ++y) {
        std::string zeile;
        for (int x = 0; x < bild.width(); ++x) {
            const QRgb farbe = bild.pixel(x, y);
            zeile += farbe == qRgb(0, 0, 0)         ? '#'
                     : farbe == qRgb(255, 0, 0)     ? 'o'
                     : farbe == qRgb(255, 255, 255) ? '.'
                                                    : '?';
        }
        zeilen.push_back(zeile);
    }
    return zeilen;
}

struct Bildfall {
    const char* name;
    std::function<void(Zeichenflaeche&)> zeichne;
    std::vector<std::string> erwartet;
};

const Farbe s = farben::schwarz;
const Farbe r = farben::rot;

TEST(QtFlaeche, ZeichnetJedenPixelGenau) {
    const std::vector<Bildfall> faelle{
        {"lines leave out their last pixel, in each direction and at 45 degrees; thick ones are even",
         [](Zeichenflaeche& f) {
             f.linie(0, 0, 3, 0, s);
             f.linie(6, 2, 3, 2, s);
             f.linie(0, 2, 0, 5, s);
             f.linie(2, 5, 2, 2, s);
             f.linie(5, 5, 5, 5, s);
             f.linie(7, 0, 10, 3, s);
             f.linie(13, 5, 11, 3, r);
             f.linie(14, 1, 18, 1, s, 3);
             f.linie(19, 2, 19, 5, r, 2);
         },
         {"###....#......####...", "........#.....####...", "#...###..#....####.oo", "#.#................oo",
          "#.#.........o......oo", "..#..........o......."}},
        {"parallel slanted lines close to a solid band with smooth edges",
         [](Zeichenflaeche& f) {
             for (int k = 0; k < 3; ++k)
                 f.linie(0, 5 - k, 7, 3 - k, r);
         },
         {".......", "....???", ".???ooo", "ooooooo", "oooo???", "o???..."}},
        {"halves go to the even pixel; boxes have all their edges, circles reach their radius",
         [](Zeichenflaeche& f) {
             f.punkt(0.5, 0, s);
             f.punkt(1.5, 1, s);
             f.punkt(2.5, 2, s);
             f.punkt(5.51, 3, s);
             f.flaeche(-0.5, 4, 0.5, 4, s);
             f.kasten(7, 0, 10, 2, s);
             f.flaeche(13, 5, 12, 3, r);
             f.flaeche(8, 4, 8, 4, s);
             f.kreis(16, 2, 2, s, r);
             f.kreis(19, 4, 1, r, std::nullopt);
             f.kreis(20, 0, 0, s, s);
             f.kreis(20, 0, -1, s, s);
         },
         {"#......####....###...", "..#....#..#...#ooo#..", "..#....####...#ooo#..", "......#.....oo#oooooo",
          "#.......#...oo.###o.o", "............oo....ooo"}},
        {"a quarter to the upper right and one to the lower left, three quarters, a whole turn",
         [](Zeichenflaeche& f) {
             f.sektor(1, 4, 4, 0, pi / 2, r);
             f.sektor(12, 1, 3, pi, 1.5 * pi, r);
             f.sektor(17, 2, 2, pi / 2, 2 * pi, r);
             f.sektor(24, 2, 2, 0, 2 * pi, r);
             f.sektor(24, 2, 0, 0, 2 * pi, s);
         },
         {".ooo............oo.....ooo..", ".oooo....oooo..ooo....ooooo.", ".ooooo...oooo..ooooo..ooooo.",
          ".ooooo....ooo..ooooo..ooooo.", ".ooooo.....oo...ooo....ooo..", "............................"}},
        {"nothing is drawn outside of the surface, nor what is not a number",
         [](Zeichenflaeche& f) {
             f.flaeche(-10, -10, -1, 100, s);
             f.flaeche(7, 0, 1e12, 5, s);
             f.linie(-50, 5, 1e9, 5, r);
             f.linie(-3, -3, 2, 2, s);
             f.kreis(-10, -10, 2, s, s);
             const double nan = std::numeric_limits<double>::quiet_NaN();
             f.linie(0, 0, nan, 0, s);
             f.flaeche(0, nan, 5, 5, s);
             f.kasten(nan, 0, 5, 5, s);
             f.kreis(3, 3, nan, s, s);
             f.sektor(3, 3, 2, nan, 1, s);
             f.text(nan, 0, "M", s);
         },
         {"#......", ".#.....", ".......", ".......", ".......", "ooooooo"}},
    };
    for (const Bildfall& fall : faelle) {
        const QSize groesse(static_cast<int>(fall.erwartet[0].size()),
                            static_cast<int>(fall.erwartet.size()));
        QtFlaeche flaeche(groesse, 1, farben::weiss);
        fall.zeichne(flaeche);
        EXPECT_EQ(bild_als_text(flaeche), fall.erwartet) << fall.name;
    }
}

TEST(QtFlaeche, LiestLogischePixel) {
    for (const double verhaeltnis : {1.0, 1.5, 2.0}) {
        QtFlaeche f(QSize(6, 4), verhaeltnis, Farbe{240, 240, 240});
        f.flaeche(1, 1, 2, 2, r);
        f.linie(3, 0, 5, 2, farben::blau);
        EXPECT_EQ(f.lies_punkt(1, 1), r) << verhaeltnis;
        EXPECT_EQ(f.lies_punkt(2.4, 1.6), r) << verhaeltnis;
        EXPECT_EQ(f.lies_punkt(3, 2), f.hintergrund()) << verhaeltnis;
        EXPECT_NE(f.lies_punkt(4, 1), f.hintergrund()) << "a pending line is read, at " << verhaeltnis;
        for (const QPoint aussen : {QPoint(-1, 0), QPoint(0, -1), QPoint(6, 0), QPoint(0, 4)})
            EXPECT_EQ(f.lies_punkt(aussen.x(), aussen.y()), f.hintergrund()) << verhaeltnis;
    }
}

/// Each pixel of what is straight becomes a square of four.
TEST(QtFlaeche, IstAufFeinemSchirmGleichGross) {
    QtFlaeche grob(QSize(30, 20), 1, farben::weiss), fein(QSize(30, 20), 2, farben::weiss);
    for (QtFlaeche* f : {&grob, &fein}) {
        f->linie(2, 3, 20, 3, s);
        f->linie(25, 3, 25, 20, s, 3);
        f->kasten(1.5, 5, 9, 9, s);
        f->flaeche(11, 11, 19, 15, r);
    }
    QImage vergleich = fein.bild();
    EXPECT_EQ(vergleich.devicePixelRatio(), 2.0);
    vergleich.setDevicePixelRatio(1);
    EXPECT_EQ(vergleich, grob.bild().scaled(60, 40));
}

/// From (0.5, 0.25) to (1.25, 1), a unit thick: at a ratio of 4 the pixels (2, 1) to (5 + 3, 4 + 3).
TEST(QtFlaeche, EineKurveHatDieStufenDesSchirms) {
    for (const int verhaeltnis : {1, 4}) {
        QtFlaeche kurve(QSize(4, 3), verhaeltnis, farben::weiss);
        QImage erwartet = kurve.bild();
        const QRect feld = verhaeltnis == 1 ? QRect(0, 0, 2, 2) : QRect(2, 1, 7, 7);
        for (int i = 0; i < feld.width() * feld.height(); ++i)
            erwartet.setPixel(feld.left() + i % feld.width(), feld.top() + i / feld.width(), qRgb(0, 0, 0));
        kurve.flaeche(1.25, 0.25, 0.5, 1, s);
        EXPECT_EQ(kurve.bild(), erwartet) << verhaeltnis;
    }
}

TEST(QtFlaeche, TextHatSeineSchriftUndSeinenHof) {
    QtFlaeche bild(QSize(60, 60), 1, farben::schwarz);
    const auto zeilen_mit = [&](char farbe) {
        const auto hat = [=](const auto& zeile) { return zeile.find(farbe) != std::string::npos; };
        return static_cast<int>(std::ranges::count_if(bild_als_text(bild), hat));
    };
    bild.schrift({.name = "Arial", .hof = farben::weiss});
    bild.text(10, 8, "III", farben::schwarz);
    EXPECT_GT(zeilen_mit('.'), 8);
    EXPECT_LE(zeilen_mit('.'), bild.texthoehe("I") + 4) << "nothing beyond the edge";
    bild.schrift({.name = "Arial", .groesse = 30});
    bild.text(30, 0, "H", farben::rot);
    EXPECT_NEAR(zeilen_mit('o'), 40 * 1409 / 2048.0, 1) << "30 points are 40 pixels";
}

/// As the toolkit draws the outline of the whole text with a pen, but for a few levels of 255: it places the
/// letters a 32nd of a pixel to either side, by what it has drawn before.
TEST(QtFlaeche, DerHofIstDerUmrissDesTextesSoDickWieVerlangt) {
    for (const double verhaeltnis : {1.0, 1.9, 2.0, 3.8}) {
        QtFlaeche mit(QSize(90, 30), verhaeltnis, farben::schwarz);
        mit.schrift({.hof = farben::weiss});
        for (const char* text : {"Wo 17", "Tänze: 1 AV/a"})  // the second time with letters that are known
            mit.Cls(), mit.text(10, 8, text, farben::schwarz);
        QtFlaeche ohne(QSize(90, 30), verhaeltnis, farben::schwarz);
        QImage erwartet = ohne.bild();
        const Schriftbild& schrift = schriftbild({});
        QPainterPath umriss;
        umriss.addText(QPointF(10, 8 + schrift.masse.ascent()), schrift.font,
                       QStringLiteral("Tänze: 1 AV/a"));
        QPainter maler(&erwartet);
        maler.setRenderHint(QPainter::Antialiasing);
        maler.strokePath(umriss, QPen(Qt::white, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        maler.setRenderHint(QPainter::Antialiasing, false);
        maler.setFont(schrift.font);
        maler.drawText(QPointF(10, 8 + schrift.masse.ascent()), QStringLiteral("Tänze: 1 AV/a"));
        maler.end();
        int groesste = 0;
        for (int y = 0; y < erwartet.height(); ++y) {
            for (int x = 0; x < erwartet.width(); ++x)
                groesste =
                    std::max(groesste, std::abs(qRed(mit.bild().pixel(x, y)) - qRed(erwartet.pixel(x, y))));
        }
        EXPECT_LE(groesste, 8) << verhaeltnis;
    }
}

/// A device pixel belongs to a sector if its direction lies between the angles; along the radii half a pixel
/// is left open, and at the rim one.
TEST(QtFlaeche, SektorenReichenVonWinkelZuWinkel) {
    constexpr double verhaeltnis = 3.75, mitte = 20.5, radius = 16;
    for (int von = 0; von < 360; von += 15) {
        for (const int weite : {10, 90, 180, 250}) {
            QtFlaeche f(QSize(41, 41), verhaeltnis, farben::weiss);
            f.sektor(20, 20, radius, von * pi / 180, (von + weite) * pi / 180, farben::schwarz);
            int fehler = 0;
            for (int j = 0; j < f.bild().height(); ++j) {
                for (int i = 0; i < f.bild().width(); ++i) {
                    const double x = (i + 0.5) / verhaeltnis - mitte, y = mitte - (j + 0.5) / verhaeltnis;
                    const double abstand = std::hypot(x, y), winkel = std::atan2(y, x) * 180 / pi - von;
                    const double ab_von = winkel - 360 * std::floor(winkel / 360);
                    const double rand = std::asin(std::min(1.0, 0.6 / abstand)) * 180 / pi;
                    const bool innen = abstand < radius && ab_von < weite;
                    const bool aussen =
                        abstand > radius + 1 || (ab_von > weite + rand && ab_von < 360 - rand && abstand > 1);
                    const bool schwarz = f.bild().pixel(i, j) == qRgb(0, 0, 0);
                    fehler += (innen && !schwarz) || (aussen && schwarz);
                }
            }
            EXPECT_EQ(fehler, 0) << von << " + " << weite;
        }
    }
}

TEST(Schrift, GroessenSindGanzePixelUndFamilienVorhanden) {
    const std::vector<std::pair<double, int>> groessen{{8.25, 11}, {8, 11}, {10, 13}, {7.875, 10}, {0.1, 1}};
    for (const auto& [punkte, pixel] : groessen)
        EXPECT_EQ(qschrift({.name = "Arial", .groesse = punkte}).pixelSize(), pixel) << punkte;
    EXPECT_TRUE(QFontDatabase::hasFamily(qschrift({.name = "no such family"}).family()));
    EXPECT_TRUE(qschrift({.fett = true}).bold());
}

}  // namespace
}  // namespace velmaris
