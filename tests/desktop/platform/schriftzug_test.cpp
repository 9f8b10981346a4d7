#include "desktop/platform/bruch.h"
#include "desktop/platform/meldungstext.h"
#include "desktop/platform/stil.h"
#include "tests/desktop/bedienung.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

TEST(Bruch, HatEinenStrichUeberDieBreiteDesLaengerenWorts) {
    test::Testfenster fenster;
    Bruch bruch(&fenster);
    bruch.setText("W  m²K");
    const QFontMetrics masse = bruch.fontMetrics();
    EXPECT_EQ(bruch.sizeHint(), QSize(masse.horizontalAdvance("m²K") + 2 + 2, 2 * masse.height() + 1));
    bruch.resize(bruch.sizeHint() + QSize(9, 20));
    bruch.show();
    const int strich = 10 + masse.height(), ende = bruch.sizeHint().width();
    for (const auto& [bedienbar, farbe] : {std::pair{true, stilfarben::schrift}, {false, 0xFF8C9094}}) {
        bruch.setEnabled(bedienbar);
        const QImage bild = bruch.grab().toImage();
        EXPECT_EQ(bild.pixel(0, strich), farbe);
        EXPECT_EQ(bild.pixel(ende - 1, strich), farbe);
        for (const QPoint aussen : {QPoint(0, strich - 1), QPoint(0, strich + 1), QPoint(ende, strich)})
            EXPECT_EQ(bild.pixel(aussen), stilfarben::fenster);
        for (const int wort : {0, strich + 1})
            EXPECT_NE(bild.copy(0, wort, ende, strich), bild.copy(0, wort, 1, strich).scaled(ende, strich));
    }
}

TEST(Meldungstext, BrichtNurWoerterDieNichtInDieZeilePassen) {
    const QFontMetrics schrift(QApplication::font());
    const int breite = schrift.horizontalAdvance("Haus");
    const QChar stelle(0x200B);
    EXPECT_EQ(brechbar("ab Haus ", schrift, breite), "ab Haus ");
    const QString gebrochen = QString("ab H") + stelle + 'a' + stelle + 'u' + stelle + 's' + stelle;
    EXPECT_EQ(brechbar("ab Haus", schrift, breite - 1), gebrochen);
}

}  // namespace
}  // namespace velmaris
