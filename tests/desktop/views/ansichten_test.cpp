#include "desktop/platform/qt_flaeche.h"
#include "tests/desktop/programmprobe.h"
#include "tests/textlage.h"

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

/// However the pointer goes, or the plane, no tooltip stays behind; on each plane that has one.
TEST_F(AnsichtenTest, TooltipKommtWennDerZeigerRuhtUndBleibtNicht) {
    starte("e");
    QEvent verlassen(QEvent::Leave);
    for (const auto& [leiste, ebene, name, fuss_im_januar] :
         {std::tuple{"A_Menue", "A_Uebersicht", "UeberGrafik", 114},
          {"A_Menue", "A_Heizen", "Heizbilanz", 114},
          {"E_Menue", "E_Energie", "Monatsübersicht_Energieträger", 94}}) {
        klicke(leiste, ebene + 2);
        QApplication::processEvents();
        QWidget &bild = such(ebene, name), &tip = such(ebene, "Frame_ToolTip");
        test::bewege_ueber(bild, QPointF(38, fuss_im_januar));
        EXPECT_FALSE(tip.isVisible());
        ASSERT_TRUE(QTest::qWaitFor([&] { return tip.isVisible(); }, 3000)) << ebene;
        const auto& text = such<QLabel>(ebene, "Label_Tooltip");
        EXPECT_TRUE(text.text().startsWith("month: January\n")) << text.text().toStdString();
        EXPECT_TRUE(tip.parentWidget()->rect().contains(tip.geometry()));
        EXPECT_EQ(tip.size(), text.size() + QSize(14, 10)) << "even room around the text";
        if (ebene[2] == 'E') {
            klicke("E_Menue", "Klima");
        } else {
            QCursor::setPos(programm->fenster().mapToGlobal(QPoint(-50, -50)));
            QApplication::sendEvent(ebene[2] == 'U' ? &tip : &bild, &verlassen);
        }
        EXPECT_FALSE(tip.isVisible()) << ebene;
    }
}

}  // namespace
}  // namespace velmaris
