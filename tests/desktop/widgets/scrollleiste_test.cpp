#include "desktop/widgets/scrollleiste.h"

#include "tests/desktop/bedienung.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::Testfenster;

struct Schrittfall {
    const char* name;
    std::function<void(Scrollleiste&)> tu;
    int erwartet;
};

std::function<void(Scrollleiste&)> taste(Qt::Key taste) {
    return [taste](Scrollleiste& leiste) { QTest::keyClick(&leiste, taste); };
}

std::function<void(Scrollleiste&)> klick(QStyle::SubControl stueck) {
    return [stueck](Scrollleiste& leiste) {
        QTest::mouseClick(&leiste, Qt::LeftButton, {}, test::teil(leiste, stueck));
    };
}

std::function<void(Scrollleiste&)> raddreh(int rasten) {
    return [rasten](Scrollleiste& leiste) { test::rad(leiste, rasten); };
}

void pruefe(Qt::Orientation richtung, int minimum, int maximum, int klein, int gross, int anfang,
            const std::vector<Schrittfall>& faelle) {
    for (const Schrittfall& fall : faelle) {
        Testfenster fenster;
        Scrollleiste leiste(richtung, &fenster);
        leiste.setRange(minimum, maximum);
        leiste.schritte(klein, gross);
        leiste.setValue(anfang);
        leiste.resize(richtung == Qt::Horizontal ? QSize(200, 17) : QSize(17, 200));
        leiste.show();
        leiste.setFocus();
        fall.tu(leiste);
        EXPECT_EQ(leiste.value(), fall.erwartet) << fall.name;
    }
}

TEST(Scrollleiste, WaagrechtMitMausRadUndTasten) {
    pruefe(Qt::Horizontal, 20, 500, 10, 20, 100,
           {
               {"arrow on the right", klick(QStyle::SC_ScrollBarAddLine), 110},
               {"arrow on the left", klick(QStyle::SC_ScrollBarSubLine), 90},
               {"beside the thumb on the right", klick(QStyle::SC_ScrollBarAddPage), 120},
               {"beside the thumb on the left", klick(QStyle::SC_ScrollBarSubPage), 80},
               {"right key", taste(Qt::Key_Right), 110},
               {"left key", taste(Qt::Key_Left), 90},
               {"up key", taste(Qt::Key_Up), 110},
               {"page up", taste(Qt::Key_PageUp), 120},
               {"page down", taste(Qt::Key_PageDown), 80},
               {"home", taste(Qt::Key_Home), 20},
               {"end", taste(Qt::Key_End), 500},
               {"wheel away from the user", raddreh(1), 110},
               {"wheel towards the user, beyond the end", raddreh(-20), 20},
           });
}

TEST(Scrollleiste, SenkrechtMitNegativemGrossenSchritt) {
    pruefe(Qt::Vertical, -500, -20, 2, -20, -100,
           {
               {"upper arrow", klick(QStyle::SC_ScrollBarSubLine), -102},
               {"lower arrow", klick(QStyle::SC_ScrollBarAddLine), -98},
               {"above the thumb moves down", klick(QStyle::SC_ScrollBarSubPage), -80},
               {"below the thumb moves up", klick(QStyle::SC_ScrollBarAddPage), -120},
               {"up key", taste(Qt::Key_Up), -102},
               {"page up moves down", taste(Qt::Key_PageUp), -80},
               {"home", taste(Qt::Key_Home), -500},
               {"wheel away from the user", raddreh(1), -102},
               {"wheel towards the user", raddreh(-3), -94},
           });
}

TEST(Scrollleiste, GrosserSchrittKleinerAlsDerKleine) {
    pruefe(Qt::Horizontal, -45, 45, 5, 1, 0,
           {
               {"arrow", klick(QStyle::SC_ScrollBarAddLine), 5},
               {"beside the thumb", klick(QStyle::SC_ScrollBarAddPage), 1},
               {"wheel", raddreh(-2), -10},
           });
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

TEST(Scrollleiste, ZiehenFolgtDemZeiger) {
    Testfenster fenster;
    Scrollleiste leiste(Qt::Horizontal, &fenster);
    leiste.setRange(0, 100);
    leiste.schritte(5, 20);
    leiste.resize(300, 17);
    leiste.show();
    const QSignalSpy werte(&leiste, &QAbstractSlider::valueChanged);
    const QPoint griff = test::teil(leiste, QStyle::SC_ScrollBarSlider);
    QTest::mousePress(&leiste, Qt::LeftButton, {}, griff);
    for (const int weg : {40, 80, 120, 500})
        QTest::mouseMove(&leiste, griff + QPoint(weg, 0));
    EXPECT_EQ(werte.count(), 4) << "one value for each move, while the button is still down";
    EXPECT_LT(werte[0][0].toInt(), werte[1][0].toInt());
    EXPECT_EQ(leiste.value(), 100);
    QTest::mouseRelease(&leiste, Qt::LeftButton, {}, griff + QPoint(500, 0));
    EXPECT_EQ(leiste.value(), 100);
    EXPECT_TRUE(leiste.hasFocus());
}

}  // namespace
}  // namespace velmaris
