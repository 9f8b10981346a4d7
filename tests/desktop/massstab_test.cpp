#include "desktop/platform/massstab.h"

#include "climate/karten.h"
#include "desktop/widgets/scrollleiste.h"
#include "tests/desktop/programmprobe.h"

#include <QMenuBar>
#include <QMouseEvent>
#include <array>
#include <cmath>

namespace velmaris {
namespace {

/// Width, height and the scale at which 800 x 567 units fit.
struct Fenstergroesse {
    int breite;
    int hoehe;
    double s;
};
constexpr std::array<Fenstergroesse, 4> fenster{
    {{800, 565, 1.0}, {1920, 1080, 1080 / 567.0}, {3840, 2160, 2160 / 567.0}, {1366, 768, 768 / 567.0}}};

class MassstabTest : public test::Programmprobe {
  protected:
    void gib_groesse(QSize groesse) {
        programm->fenster().resize(groesse);
        QApplication::processEvents();
        ASSERT_EQ(programm->fenster().size(), groesse);
    }

    /// The middle of a unit of a widget, in its pixels.
    static QPointF einheit(const QWidget& auf, double x, double y) {
        return QPointF(x + 0.5, y + 0.5) * massstab(auf);
    }
};

TEST_F(MassstabTest, AlleEbenenFuellenJedesFensterInIhremVerhaeltnis) {
    for (const char* sprache : {"d", "e"}) {
        starte(sprache);
        haupt().e_geometrie.Check_Dachgeschoss.setze(1);
        for (const auto& [breite, hoehe, massstab_dann] : fenster) {
            const double s = massstab_dann;
            gib_groesse({breite, hoehe});
            const std::string wo = sprache + std::to_string(breite);
            QWidget& flaeche = *such("Haupt", "E_Menue").parentWidget();
            EXPECT_NEAR(massstab(flaeche), s, 1e-6) << wo;
            EXPECT_EQ(flaeche.size(), QSize(static_cast<int>(800 * s), static_cast<int>(546 * s))) << wo;
            const int rechts = programm->fenster().width() - flaeche.geometry().right() - 1;
            EXPECT_NEAR(flaeche.x(), rechts, 1) << wo << " in the middle";
            EXPECT_GE(programm->fenster().menuBar()->fontMetrics().height(), std::floor(12 * s)) << wo;
            fuer_jede_ebene([&](QWidget& ebene) {
                test::pruefe_platz(ebene, wo);
                EXPECT_EQ(ebene.height(), std::floor((ebene.objectName()[0] == u'E' ? 521 : 502) * s)) << wo;
                for (const char* leiste : {"E_Menue", "A_Menue"})
                    EXPECT_FALSE(such("Haupt", leiste).geometry().intersects(ebene.geometry())) << wo;
                for (const auto* schieber : ebene.findChildren<Scrollleiste*>()) {
                    if (!schieber->isVisible()) continue;
                    EXPECT_EQ(std::min(schieber->width(), schieber->height()), std::floor(17 * s)) << wo;
                }
            });
        }
    }
}

/// The same months, regions and stations lie under the pointer at every scale.
TEST_F(MassstabTest, ZeigerTrifftWasGezeichnetIst) {
    starte("e");
    klicke("E_Menue", "Klima");
    Bildfeld& karte = haupt().e_klima.Picture1;
    karte.zeige(true);
    QWidget& bild = such("E_Klima", "Picture1");
    std::vector<Farbe> farben;
    for (const Kartenpunkt& ort : bezugspunkte)
        farben.push_back(karte.lies_punkt(ort.x, ort.y));
    for (const auto& [breite, hoehe, s] : fenster) {
        gib_groesse({breite, hoehe});
        for (std::size_t i = 0; i < bezugspunkte.size(); ++i)
            EXPECT_EQ(karte.lies_punkt(bezugspunkte[i].x, bezugspunkte[i].y), farben[i])
                << breite << ' ' << i;
        QWidget& stunden = such("A_Uebersicht", "UeberGrafik");
        const auto& tipp = such<QLabel>("A_Uebersicht", "Label_Tooltip");
        for (const auto& [x, monat] : {std::pair{38, "January"}, {314, "December"}}) {
            test::bewege_ueber(stunden, einheit(stunden, x, 114));
            EXPECT_TRUE(tipp.text().contains(monat)) << breite << ' ' << tipp.text().toStdString();
        }
        QPointF gemeldet;
        karte.maus_geklickt = [&](double x, double y) { gemeldet = {x, y}; };
        const QPointF ort = einheit(bild, 228, 306);
        QMouseEvent klick(QEvent::MouseButtonRelease, ort, bild.mapToGlobal(ort), Qt::LeftButton, {}, {});
        QApplication::sendEvent(&bild, &klick);
        EXPECT_EQ(gemeldet, QPointF(228, 306)) << breite;
    }
}

/// A window that the user makes larger scales by itself; room that its proportions leave goes to the chart.
TEST_F(MassstabTest, ZoomWaechstMitSeinemFenster) {
    starte("d");
    haupt().a_zoom.oeffnen();
    QWidget& zoom = such("Haupt", "A_Zoom");
    zoom.resize(2000, 1000);
    QApplication::processEvents();
    EXPECT_NEAR(massstab(zoom), 2, 1e-6);
    EXPECT_EQ(such("A_Zoom", "Command_Schliessen").size(), QSize(272, 50));
    EXPECT_EQ(such("A_Zoom", "Temperaturen").geometry(), QRect(16, 44, 2000 - 32, 1000 - 112));
    EXPECT_EQ(massstab(programm->fenster()), 1) << "each window has its own";
}

TEST_F(MassstabTest, F11FuelltDenBildschirmUndZurueck) {
    starte("d");
    for (const bool voll : {true, false}) {
        QTest::keyClick(&programm->fenster(), Qt::Key_F11);
        EXPECT_EQ(programm->fenster().isFullScreen(), voll);
    }
}

}  // namespace
}  // namespace velmaris
