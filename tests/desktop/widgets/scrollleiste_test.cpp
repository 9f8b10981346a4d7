#include "desktop/widgets/scrollleiste.h"

#include "desktop/platform/stil.h"
#include "tests/desktop/bedienung.h"

#include <QImage>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::Testfenster;

using Zug = std::function<void(Scrollleiste&)>;

Zug taste(Qt::Key taste) {
    return [taste](Scrollleiste& leiste) { QTest::keyClick(&leiste, taste); };
}

Zug klick(QStyle::SubControl stueck) {
    return [stueck](Scrollleiste& leiste) {
        QTest::mouseClick(&leiste, Qt::LeftButton, {}, test::teil(leiste, stueck));
    };
}

Zug raddreh(int rasten) {
    return [rasten](Scrollleiste& leiste) { test::rad(leiste, rasten); };
}

/// A field with its range and steps, and the moves from its beginning with what they lead to.
struct Leistenfall {
    Qt::Orientation richtung;
    int minimum, maximum, klein, gross, anfang;
    std::vector<std::pair<Zug, int>> zuege;
};

TEST(Scrollleiste, GehtMitMausRadUndTasten) {
    const Zug weiter = klick(QStyle::SC_ScrollBarAddLine), zurueck = klick(QStyle::SC_ScrollBarSubLine);
    const Zug seite_weiter = klick(QStyle::SC_ScrollBarAddPage);
    const Zug seite_zurueck = klick(QStyle::SC_ScrollBarSubPage);
    const std::vector<Leistenfall> faelle{
        {Qt::Horizontal,
         20,
         500,
         10,
         20,
         100,
         {{weiter, 110},
          {zurueck, 90},
          {seite_weiter, 120},
          {seite_zurueck, 80},
          {taste(Qt::Key_Right), 110},
          {taste(Qt::Key_Left), 90},
          {taste(Qt::Key_Up), 110},
          {taste(Qt::Key_PageUp), 120},
          {taste(Qt::Key_PageDown), 80},
          {taste(Qt::Key_Home), 20},
          {taste(Qt::Key_End), 500},
          {raddreh(1), 110},
          {raddreh(-20), 20}}},
        // negative large steps move against the click
        {Qt::Vertical,
         -500,
         -20,
         2,
         -20,
         -100,
         {{zurueck, -102},
          {weiter, -98},
          {seite_zurueck, -80},
          {seite_weiter, -120},
          {taste(Qt::Key_Up), -102},
          {taste(Qt::Key_PageUp), -80},
          {taste(Qt::Key_Home), -500},
          {raddreh(1), -102},
          {raddreh(-3), -94}}},
        // a large step less than the small one
        {Qt::Horizontal, -45, 45, 5, 1, 0, {{weiter, 5}, {seite_weiter, 1}, {raddreh(-2), -10}}},
    };
    Testfenster fenster;
    for (const Leistenfall& fall : faelle) {
        for (std::size_t i = 0; i < fall.zuege.size(); ++i) {
            Scrollleiste leiste(fall.richtung, &fenster);
            leiste.setRange(fall.minimum, fall.maximum);
            leiste.schritte(fall.klein, fall.gross);
            leiste.setValue(fall.anfang);
            leiste.resize(fall.richtung == Qt::Horizontal ? QSize(200, 17) : QSize(17, 200));
            leiste.show();
            leiste.setFocus();
            fall.zuege[i].first(leiste);
            EXPECT_EQ(leiste.value(), fall.zuege[i].second) << fall.minimum << " move " << i;
        }
    }
}

/// Both arrows point away from the thumb, which is drawn only where it can be moved.
TEST(Scrollleiste, ZeigtGriffPfeileUndFokus) {
    Testfenster fenster;
    Scrollleiste leiste(Qt::Horizontal, &fenster);
    QLineEdit anderes(&fenster);
    leiste.setRange(0, 100);
    leiste.setValue(50);
    leiste.resize(200, 17);
    leiste.show();
    anderes.move(0, 50);
    anderes.show();
    const auto bild = [&] { return leiste.grab().toImage(); };
    const auto zahl = [&](QRgb farbe) {
        int n = 0;
        const QImage b = bild();
        for (int y = 0; y < b.height(); ++y) {
            for (int x = 0; x < b.width(); ++x)
                n += b.pixel(x, y) == farbe ? 1 : 0;
        }
        return n;
    };
    anderes.setFocus();
    const QImage ruhig = bild();
    EXPECT_EQ(ruhig.pixel(test::teil(leiste, QStyle::SC_ScrollBarSlider)), stilfarben::griff);
    EXPECT_EQ(ruhig.pixel(60, 8), stilfarben::rille);
    EXPECT_GT(zahl(stilfarben::griffrand), 20);
    EXPECT_EQ(zahl(stilfarben::betonung), 0);
    EXPECT_GT(zahl(stilfarben::nebenschrift), 8) << "the arrows";
    const auto dunkler = [&](int x, int y) { return qGray(ruhig.pixel(x, y)); };
    EXPECT_LT(dunkler(7, 8), dunkler(7, 4)) << "the left arrow begins as a point";
    EXPECT_LT(dunkler(199 - 7, 8), dunkler(199 - 7, 4));
    leiste.setFocus();
    EXPECT_GT(zahl(stilfarben::betonung), 50);
    leiste.setEnabled(false);
    EXPECT_EQ(zahl(stilfarben::griff), 0);
    EXPECT_EQ(zahl(stilfarben::nebenschrift), 0);
    leiste.setEnabled(true);
    leiste.setRange(0, 0);
    EXPECT_EQ(zahl(stilfarben::griff), 0);
}

TEST(Scrollleiste, HalbeRastenDesRadsZaehlenZusammen) {
    Testfenster fenster;
    Scrollleiste leiste(Qt::Horizontal, &fenster);
    leiste.show();
    for (const int erwartet : {0, 1, 1, 2}) {
        QWheelEvent halb(QPointF(5, 5), leiste.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, 60), Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&leiste, &halb);
        EXPECT_EQ(leiste.value(), erwartet);
    }
}

}  // namespace
}  // namespace velmaris
