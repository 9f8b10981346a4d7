#include "desktop/widgets/scrollleiste.h"

#include "desktop/platform/stil.h"
#include "tests/desktop/bedienung.h"

#include <QApplication>
#include <QImage>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::Testfenster;

using Zug = std::function<void(Scrollleiste&)>;

Zug taste(Qt::Key taste, Qt::KeyboardModifiers dazu = {}) {
    return [=](Scrollleiste& leiste) { QTest::keyClick(&leiste, taste, dazu); };
}

Zug klick(QStyle::SubControl stueck, Qt::KeyboardModifiers dazu = {}) {
    return [=](Scrollleiste& leiste) {
        QTest::mouseClick(&leiste, Qt::LeftButton, dazu, test::teil(leiste, stueck));
    };
}

/// Turns the wheel by notches, halves of which count together; away from the user if positive.
Zug rasten(int zahl, Qt::KeyboardModifiers dazu = {}) {
    return [=](Scrollleiste& leiste) {
        for (int i = 0; i < 2 * std::abs(zahl); ++i) {
            QWheelEvent halb({5, 5}, leiste.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, zahl < 0 ? -60 : 60),
                             {}, dazu, Qt::NoScrollPhase, false);
            QApplication::sendEvent(&leiste, &halb);
        }
    };
}

/// A field: its direction, its range, its small and large step and where it begins.
struct Leistenfall {
    Qt::Orientation richtung;
    int minimum, maximum, klein, gross, anfang;
};

/// Moves from the beginning, and where each leads.
void pruefe(const Leistenfall& fall, const std::vector<std::pair<Zug, int>>& zuege) {
    Testfenster fenster;
    for (std::size_t i = 0; i < zuege.size(); ++i) {
        Scrollleiste leiste(fall.richtung, &fenster);
        leiste.setRange(fall.minimum, fall.maximum);
        leiste.schritte(fall.klein, fall.gross);
        leiste.setValue(fall.anfang);
        leiste.resize(fall.richtung == Qt::Horizontal ? QSize(200, 17) : QSize(17, 200));
        leiste.show();
        zuege[i].first(leiste);
        EXPECT_EQ(leiste.value(), zuege[i].second) << fall.minimum << " move " << i;
    }
}

TEST(Scrollleiste, GehtMitMausRadUndTasten) {
    const Zug weiter = klick(QStyle::SC_ScrollBarAddLine), zurueck = klick(QStyle::SC_ScrollBarSubLine);
    const Zug seite = klick(QStyle::SC_ScrollBarAddPage), seite_zurueck = klick(QStyle::SC_ScrollBarSubPage);
    const Zug auf = taste(Qt::Key_Up), seite_auf = taste(Qt::Key_PageUp), anfang = taste(Qt::Key_Home);
    const std::vector<std::pair<Zug, int>> laenge{
        {weiter, 110},    {zurueck, 90},    {seite, 120},
        {auf, 110},       {seite_auf, 120}, {taste(Qt::Key_Left), 90},
        {anfang, 20},     {rasten(1), 110}, {taste(Qt::Key_End), 500},
        {rasten(-20), 20}};
    pruefe({Qt::Horizontal, 20, 500, 10, 20, 100}, laenge);
    // negative large steps move against the click
    const std::vector<std::pair<Zug, int>> hoehe{{zurueck, -102},  {seite_zurueck, -80}, {seite, -120},
                                                 {auf, -102},      {seite_auf, -80},     {anfang, -500},
                                                 {rasten(-3), -94}};
    pruefe({Qt::Vertical, -500, -20, 2, -20, -100}, hoehe);
    // a large step less than the small one
    pruefe({Qt::Horizontal, -45, 45, 5, 1, 0}, {{weiter, 5}, {seite, 1}, {rasten(-2), -10}});
}

/// With Shift and Ctrl by one position; what has no such meaning keeps its step, and so do the next moves.
TEST(Scrollleiste, GehtUmEineStellung) {
    const Qt::KeyboardModifier um = Qt::ShiftModifier, strg = Qt::ControlModifier;
    const Zug hin = klick(QStyle::SC_ScrollBarAddLine, um), her = klick(QStyle::SC_ScrollBarSubLine, um);
    const Zug auf = taste(Qt::Key_Up, um), rechts = taste(Qt::Key_Right, um), ende = taste(Qt::Key_End, um);
    const Zug danach = [&](Scrollleiste& leiste) { hin(leiste), klick(QStyle::SC_ScrollBarAddLine)(leiste); };
    const Zug rechts_zweimal = [&](Scrollleiste& leiste) { rechts(leiste), taste(Qt::Key_Right)(leiste); };
    const Zug seite = klick(QStyle::SC_ScrollBarAddPage, um), seite_ab = taste(Qt::Key_PageDown, um);
    const std::vector<std::pair<Zug, int>> laenge{
        {hin, 101},    {her, 99},     {rechts, 101},         {auf, 101},   {rasten(-3, strg), 97},
        {ende, 500},   {danach, 111}, {rechts_zweimal, 111}, {seite, 120}, {rasten(1, um), 110},
        {seite_ab, 80}};
    pruefe({Qt::Horizontal, 20, 500, 10, 20, 100}, laenge);
    const Zug ab = taste(Qt::Key_Down, um);
    pruefe({Qt::Vertical, -500, -20, 2, -20, -100},
           {{her, -101}, {auf, -101}, {ab, -99}, {seite, -120}, {rasten(2, strg), -102}});
}

/// Escape gives back the position from before the drag, and the pointer has let go of the thumb.
TEST(Scrollleiste, EscBrichtDenZugAb) {
    const Zug zug = [](Scrollleiste& leiste) {
        const QPoint griff = test::teil(leiste, QStyle::SC_ScrollBarSlider), weiter(20, 0);
        QTest::mousePress(&leiste, Qt::LeftButton, {}, griff);
        QTest::mouseMove(&leiste, griff + weiter);
        EXPECT_NE(leiste.value(), 100);
        QTest::keyClick(&leiste, Qt::Key_Escape);
        EXPECT_EQ(leiste.value(), 100);
        QTest::mouseMove(&leiste, griff + 2 * weiter);
        QTest::mouseRelease(&leiste, Qt::LeftButton, {}, griff + 2 * weiter);
    };
    pruefe({Qt::Horizontal, 20, 500, 10, 20, 100}, {{zug, 100}});
}

/// Both arrows point away from the thumb, which is drawn only where it can be moved.
TEST(Scrollleiste, ZeigtGriffPfeileUndFokus) {
    Testfenster fenster;
    for (const bool liegt : {true, false}) {
        Scrollleiste leiste(liegt ? Qt::Horizontal : Qt::Vertical, &fenster);
        leiste.setRange(0, 100);
        leiste.setValue(50);
        leiste.resize(liegt ? QSize(200, 17) : QSize(17, 200));
        leiste.show();
        const auto zahl = [&](QRgb farbe) {
            const QImage b = leiste.grab().toImage().convertToFormat(QImage::Format_RGB32);
            const auto* anfang = reinterpret_cast<const QRgb*>(b.constBits());
            return std::count(anfang, anfang + b.width() * b.height(), farbe);
        };
        const QImage ruhig = leiste.grab().toImage();
        EXPECT_EQ(ruhig.pixel(test::teil(leiste, QStyle::SC_ScrollBarSlider)), stilfarben::griff);
        const auto pixel = [&](int l, int q) { return liegt ? ruhig.pixel(l, q) : ruhig.pixel(q, l); };
        EXPECT_EQ(pixel(60, 8), stilfarben::rille);
        EXPECT_LT(qGray(pixel(7, 8)), qGray(pixel(7, 4))) << "the first arrow begins as a point";
        EXPECT_LT(qGray(pixel(199 - 7, 8)), qGray(pixel(199 - 7, 4)));
        leiste.setFocus();
        EXPECT_GT(zahl(stilfarben::betonung), 50);
        leiste.setEnabled(false);
        EXPECT_EQ(zahl(stilfarben::griff), 0);
    }
}

}  // namespace
}  // namespace velmaris
