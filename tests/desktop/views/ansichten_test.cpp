#include "desktop/widgets/bildflaeche.h"
#include "tests/desktop/programmprobe.h"
#include "tests/textlage.h"

#include <QMouseEvent>
#include <gmock/gmock.h>

namespace velmaris {
namespace {

/// Views of the planes in the whole program.
class AnsichtenTest : public test::Programmprobe {
  protected:
    /// Moves every scroll field of the input planes to one of its ends, the horizontal ones and the vertical
    /// ones each to theirs, and calculates the house that comes of it.
    void an_die_enden(bool waagrecht_groesste, bool senkrecht_groesste) {
        Haupt& h = haupt();
        p().FormLoadGuard = 1;
        h.e_geometrie.Check_Dachgeschoss.setze(1);
        h.e_geometrie.Option_Dachfirst.setze(senkrecht_groesste ? 2 : 1);
        h.e_fenster.Option1.setze(1);
        for (const char* ebene : {"E_Geometrie", "E_Fenster", "E_Daemmung", "E_Gebaeude"}) {
            for (auto* leiste : such("Haupt", ebene).findChildren<Scrollleiste*>()) {
                const bool senkrecht = leiste->orientation() == Qt::Vertical;
                // Vertical fields grow upward, through negative positions.
                const bool oberstes = senkrecht ? !senkrecht_groesste : waagrecht_groesste;
                leiste->setValue(oberstes ? leiste->maximum() : leiste->minimum());
            }
        }
        // Without any losses, or cooled without any gains, nothing can be calculated.
        p().infiltration = std::max(p().infiltration, 0.2F);
        p().intg = std::max(p().intg, 1.0F);
        p().FormLoadGuard = 0;
        h.alles_berechnen();
    }
};

TEST_F(AnsichtenTest, KeinTextIstAbgeschnittenUndNichtsRagtHinaus) {
    QtFlaeche masse(QSize(1, 1), 1, farben::weiss);  // the letters of the screen
    for (const char* sprache : {"d", "e"}) {
        for (const bool waagrecht : {false, true}) {
            for (const bool senkrecht : {false, true}) {
                starte(sprache);
                an_die_enden(waagrecht, senkrecht);
                const std::string wo =
                    std::string(sprache) + (waagrecht ? " long" : " short") + (senkrecht ? " high" : " low");
                fuer_jede_ebene([&](QWidget& ebene) { test::pruefe_platz(ebene, wo); });
                for (std::int16_t system = 1; system <= 9; ++system) {
                    p().Heizsystem = system;
                    haupt().alles_berechnen();
                    EXPECT_THAT(test::textfehler(haupt(), masse), testing::IsEmpty()) << wo;
                    test::pruefe_platz(such("Haupt", "E_Energie"), wo + " " + std::to_string(system));
                }
            }
        }
    }
}

/// A tooltip of a plane: the foot of a bar of January.
struct Tooltipfall {
    Ebenenleiste& leiste;
    const char* knopf;
    const Feld& ebene;
    const Bildfeld& bild;
    int fuss;
};

/// However the pointer goes, or the plane, no tooltip stays behind; on each plane that has one.
TEST_F(AnsichtenTest, TooltipKommtWennDerZeigerRuhtUndBleibtNicht) {
    starte("e");
    Haupt& h = haupt();
    QEvent verlassen(QEvent::Leave);
    for (const Tooltipfall& fall :
         {Tooltipfall{h.a_menue, "Uebersicht", h.a_uebersicht.ebene, h.a_uebersicht.UeberGrafik, 114},
          {h.a_menue, "Heizen", h.a_heizen.ebene, h.a_heizen.Heizbilanz, 114},
          {h.e_menue, "Energie", h.e_energie.ebene, h.e_energie.Monatsübersicht_Energieträger, 94}}) {
        fall.leiste.klicke(fall.knopf);
        QApplication::processEvents();
        auto& bild = such<Bildflaeche>(fall.ebene.name.c_str(), fall.bild.name.c_str());
        auto& tip = such(fall.ebene.name.c_str(), "Frame_ToolTip");
        const auto& text = such<QLabel>(fall.ebene.name.c_str(), "Label_Tooltip");
        const QPointF ort(38, fall.fuss);
        QMouseEvent zug(QEvent::MouseMove, ort, bild.mapToGlobal(ort), Qt::NoButton, Qt::NoButton, {});
        QApplication::sendEvent(&bild, &zug);
        EXPECT_FALSE(tip.isVisible());
        ASSERT_TRUE(QTest::qWaitFor([&] { return tip.isVisible(); }, 3000)) << fall.knopf;
        EXPECT_TRUE(text.text().startsWith("month: January\n")) << text.text().toStdString();
        EXPECT_TRUE(tip.parentWidget()->rect().contains(tip.geometry()));
        EXPECT_EQ(tip.size(), text.size() + QSize(14, 10)) << "even room around the text";
        if (*fall.knopf == 'U') {
            QApplication::sendEvent(&tip, &verlassen);
        } else if (*fall.knopf == 'H') {
            QCursor::setPos(programm->fenster().mapToGlobal(QPoint(-50, -50)));
            QApplication::sendEvent(&bild, &verlassen);
        } else {
            h.e_menue.klicke("Klima");
            h.e_menue.klicke("Energie");
        }
        EXPECT_FALSE(tip.isVisible()) << fall.knopf;
    }
}

}  // namespace
}  // namespace velmaris
