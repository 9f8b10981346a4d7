#include "desktop/widgets/auswahltafel.h"

#include "desktop/platform/massstab.h"
#include "tests/desktop/programmprobe.h"

#include <QMenuBar>

namespace velmaris {
namespace {

constexpr std::array knoepfe{"Command1", "Command2", "Command3"};
constexpr std::array felder{"Label_System", "Label_Übergabe", "Label_Energieträger"};

/// The lists of the energy plane behave as drop-down lists.
class AuswahltafelTest : public test::Programmprobe {
  protected:
    void beginne(const char* sprache = "d") {
        starte(sprache);
        klicke(such<QAbstractButton>("E_Menue", "Energie"));
    }

    QAbstractButton& knopf(const char* name) { return such<QAbstractButton>("E_Energie", name); }
    QLabel& feld(const char* name) { return such<QLabel>("E_Energie", name); }
    QLabel& eintrag(int i) {
        return such<QLabel>("E_Energie", ("Label_Auswahl" + std::to_string(i)).c_str());
    }
    QWidget& tafel() { return such("E_Energie", "Frame_Auswahl"); }

    std::string wahl() {
        return std::to_string(p().Heizsystem) + std::to_string(p().Uebergabe) +
               std::to_string(p().Energietraeger);
    }
};

TEST_F(AuswahltafelTest, ListenOeffnenUnterIhremFeldMitEintraegenVonDerHoeheIhresTextes) {
    beginne("e");
    // Back and forth, so that each entry follows longer and shorter texts; the last two in a larger window.
    for (const int system : {4, 7, 1, 6, 3}) {
        if (system == 6) programm->fenster().resize(1366, 768);
        QApplication::processEvents();
        const double s = massstab(tafel()), spiel = s > 1 ? 1 : 0;
        haupt().e_energie.Command1.druecke();
        haupt().e_energie.Label_Auswahl_Click(system);
        for (std::size_t n = 0; n < knoepfe.size(); ++n) {
            klicke(knopf(knoepfe[n]));
            const std::string wo = felder[n] + std::to_string(system);
            const QLabel& unter = feld(felder[n]);
            EXPECT_EQ(tafel().pos(), unter.mapTo(tafel().parentWidget(), QPoint(0, unter.height()))) << wo;
            EXPECT_EQ(tafel().width(), unter.width()) << wo;
            double ende = -8 * s;
            for (int i = 1; i <= 9 && eintrag(i).isVisible(); ++i) {
                QLabel frisch(eintrag(i).text());
                frisch.setFont(eintrag(i).font());
                frisch.setWordWrap(true);
                EXPECT_NEAR(eintrag(i).height(), frisch.heightForWidth(eintrag(i).width()), spiel) << wo << i;
                EXPECT_NEAR(eintrag(i).y(), ende + 8 * s, spiel) << wo << i;
                EXPECT_GE(eintrag(i).width(), tafel().width() - 14 * s) << wo << i;
                ende = eintrag(i).geometry().bottom() + 1;
                const bool gewaehlt = eintrag(i).backgroundRole() == QPalette::Highlight;
                EXPECT_EQ(gewaehlt, i == haupt().e_energie.Auswahl.marke()) << wo << i;
            }
            EXPECT_NEAR(tafel().height(), eintrag(1).parentWidget()->y() + ende + 8 * s, 2 * spiel) << wo;
            klicke(knopf(knoepfe[n]));
        }
    }
}

TEST_F(AuswahltafelTest, MausOeffnetWaehltUndSchliesst) {
    beginne();
    for (const char* name : felder) {
        QTest::mouseClick(&feld(name), Qt::LeftButton);
        EXPECT_EQ(haupt().e_energie.Auswahl.feld(), name);
    }
    QTest::mouseClick(&feld(felder[2]), Qt::LeftButton);
    EXPECT_FALSE(tafel().isVisible()) << "the same field closes";
    klicke(knopf("Command1"));
    test::bewege_ueber(eintrag(6));
    EXPECT_EQ(haupt().e_energie.Auswahl.marke(), 6);
    QTest::mouseClick(&eintrag(7), Qt::RightButton);
    QTest::mouseClick(&eintrag(6), Qt::LeftButton);
    EXPECT_EQ(wahl(), "611");
    EXPECT_EQ(feld("Label_System").text(), eintrag(6).text());
    EXPECT_FALSE(tafel().isVisible());
    EXPECT_EQ(fokus(), "Command1");
}

TEST_F(AuswahltafelTest, TastenOeffnenRueckenWaehlenUndSchliessen) {
    beginne();
    const QKeyCombination f4 = Qt::Key_F4, alt_ab = Qt::ALT | Qt::Key_Down, alt_auf = Qt::ALT | Qt::Key_Up;
    const QKeyCombination ab = Qt::Key_Down, auf = Qt::Key_Up, ende = Qt::Key_End, erste = Qt::Key_Home;
    // A button, keys pressed from there, the choice after them ("" while the list is open), the focus then.
    using Fall = std::tuple<const char*, std::vector<QKeyCombination>, std::string, const char*>;
    for (const auto& [von, tasten, gewaehlt, danach] :
         {Fall{"Command3", {Qt::Key_Space}, "", "Label_Auswahl3"},
          {"Command3", {alt_ab, alt_auf}, "623", "Command3"},
          {"Command3", {f4, Qt::Key_Escape}, "623", "Command3"},
          {"Command2", {f4, Qt::Key_Tab}, "623", "Command3"},
          {"Command3", {f4, auf}, "", "Label_Auswahl2"},
          {"Command1", {f4, Qt::Key_PageDown}, "", "Label_Auswahl9"},
          {"Command2", {f4, erste, Qt::Key_Return}, "613", "Command2"},
          {"Command3", {f4, ab, ab, Qt::Key_Space}, "624", "Command3"},
          {"Command1", {f4, ende, auf, Qt::Key_Enter}, "811", "Command1"}}) {
        haupt().e_energie.Auswahl.schliesse();
        p().Heizsystem = 6;
        p().Uebergabe = 2;
        p().Energietraeger = 3;
        haupt().alles_berechnen();
        knopf(von).setFocus();
        for (const QKeyCombination& eine : tasten)
            taste(eine.key(), eine.keyboardModifiers());
        const std::string wo = von + QKeySequence(tasten.back()).toString().toStdString();
        EXPECT_EQ(tafel().isVisible(), gewaehlt.empty()) << wo;
        EXPECT_EQ(wahl(), gewaehlt.empty() ? "623" : gewaehlt) << wo;
        EXPECT_EQ(fokus(), danach) << wo;
    }
}

/// Whatever else the user turns to, and whatever exchanges the project.
TEST_F(AuswahltafelTest, SchliesstSobaldEtwasAnderesGeschieht) {
    QWidget anderes;
    const std::vector<std::function<void()>> wege{
        [&] { QTest::mouseClick(&such("E_Energie", "anz_q_verlust"), Qt::LeftButton); },
        [&] { QTest::mouseClick(&such("A_Uebersicht", "UeberGrafik"), Qt::LeftButton); },
        [&] { programm->fenster().menuBar()->setFocus(Qt::MenuBarFocusReason); },
        [&] {
            anderes.show();
            anderes.activateWindow();
            ASSERT_TRUE(QTest::qWaitForWindowActive(&anderes));
        },
        [&] { menue("mnuWinKlima").trigger(); },
    };
    for (std::size_t i = 0; i < wege.size(); ++i) {
        beginne();
        klicke(knopf("Command3"));
        ASSERT_TRUE(tafel().isVisible()) << i;
        wege[i]();
        EXPECT_FALSE(tafel().isVisible()) << i;
        EXPECT_FALSE(tafel().isAncestorOf(programm->fenster().focusWidget())) << i;
    }
}

}  // namespace
}  // namespace velmaris
