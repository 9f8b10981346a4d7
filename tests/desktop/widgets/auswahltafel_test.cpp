#include "desktop/widgets/auswahltafel.h"

#include "tests/desktop/programmprobe.h"
#include "toolkit/text.h"

#include <QLabel>
#include <QMenuBar>
#include <QMouseEvent>
#include <QTest>

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

    /// A key where the focus is.
    static void taste(int key, Qt::KeyboardModifiers dazu = {}) {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), dazu);
    }
    static std::string fokus() {
        const QWidget* ort = QApplication::focusWidget();
        return ort == nullptr ? "" : ort->objectName().toStdString();
    }

    std::string wahl() {
        return std::to_string(p().Heizsystem) + std::to_string(p().Uebergabe) +
               std::to_string(p().Energietraeger);
    }
};

TEST_F(AuswahltafelTest, ListenOeffnenUnterIhremFeldMitEintraegenVonDerHoeheIhresTextes) {
    constexpr int systeme = 9;
    for (const char* sprache : {"d", "e"}) {
        beginne(sprache);
        // Back and forth, so that each entry follows longer and shorter texts.
        for (const int system : {4, 8, 1, 9, 6, 7, 5, 2, 3}) {
            programm->haupt().e_energie.Command1.druecke();
            programm->haupt().e_energie.Label_Auswahl_Click(system);
            for (std::size_t n = 0; n < knoepfe.size(); ++n) {
                klicke(knopf(knoepfe[n]));
                if (n == 1 && system >= 8) {
                    EXPECT_FALSE(tafel().isVisible());
                    continue;
                }
                const std::string wo = std::string(sprache) + felder[n] + std::to_string(system);
                ASSERT_TRUE(tafel().isVisible()) << wo;
                const QLabel& unter = feld(felder[n]);
                EXPECT_EQ(tafel().pos(), unter.mapTo(tafel().parentWidget(), QPoint(0, unter.height())))
                    << wo;
                EXPECT_EQ(tafel().width(), unter.width()) << wo;
                EXPECT_TRUE(tafel().parentWidget()->rect().contains(tafel().geometry())) << wo;
                int ende = -8;
                for (int i = 1; i <= systeme; ++i) {
                    if (!eintrag(i).isVisible()) continue;
                    QLabel frisch(eintrag(i).text());
                    frisch.setFont(eintrag(i).font());
                    frisch.setWordWrap(true);
                    EXPECT_EQ(eintrag(i).height(), frisch.heightForWidth(eintrag(i).width())) << wo << i;
                    EXPECT_EQ(eintrag(i).y(), ende + 8) << wo << i;
                    ende = eintrag(i).geometry().bottom() + 1;
                }
                klicke(knopf(knoepfe[n]));
                EXPECT_FALSE(tafel().isVisible()) << wo;
            }
        }
    }
}

/// Moves the mouse onto a widget, which at twice the resolution lies beyond the small screen of the tests.
void ueberfahre(QWidget& feld) {
    const QPointF ort(5, 5);
    QMouseEvent bewegung(QEvent::MouseMove, ort, feld.mapToGlobal(ort), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(&feld, &bewegung);
}

TEST_F(AuswahltafelTest, MausOeffnetWaehltUndSchliesst) {
    beginne();
    for (const char* name : felder) {
        QTest::mouseClick(&feld(name), Qt::LeftButton);
        EXPECT_EQ(programm->haupt().e_energie.Auswahl.feld(), name);
        EXPECT_TRUE(tafel().isVisible()) << name;
    }
    QTest::mouseClick(&feld(felder[2]), Qt::LeftButton);
    EXPECT_FALSE(tafel().isVisible()) << "the same field closes";
    klicke(knopf("Command3"));
    klicke(knopf("Command1"));
    ASSERT_TRUE(tafel().isVisible());
    ueberfahre(eintrag(5));
    ueberfahre(eintrag(6));
    EXPECT_EQ(programm->haupt().e_energie.Auswahl.marke(), 6);
    QTest::mouseClick(&eintrag(6), Qt::LeftButton);
    EXPECT_EQ(wahl(), "611");
    EXPECT_EQ(feld("Label_System").text(), eintrag(6).text());
    EXPECT_FALSE(tafel().isVisible());
    EXPECT_EQ(fokus(), "Command1");
    EXPECT_EQ(p().Geaendert, 0);
}

TEST_F(AuswahltafelTest, TastenOeffnenRueckenWaehlenUndSchliessen) {
    struct Fall {
        const char* knopf;
        std::vector<std::pair<int, Qt::KeyboardModifiers>> tasten;
        const char* wahl;  // after all keys; "" while the list is still open
        const char* fokus;
    };
    const auto alt = Qt::AltModifier;
    for (const Fall& fall :
         {Fall{"Command3", {{Qt::Key_Space, {}}}, "", "Label_Auswahl3"},
          {"Command3", {{Qt::Key_Return, {}}}, "", "Label_Auswahl3"},
          {"Command3", {{Qt::Key_Enter, {}}}, "", "Label_Auswahl3"},
          {"Command3", {{Qt::Key_F4, {}}}, "", "Label_Auswahl3"},
          {"Command3", {{Qt::Key_Down, alt}}, "", "Label_Auswahl3"},
          {"Command3", {{Qt::Key_F4, {}}, {Qt::Key_F4, {}}}, "623", "Command3"},
          {"Command3", {{Qt::Key_Down, alt}, {Qt::Key_Up, alt}}, "623", "Command3"},
          {"Command3", {{Qt::Key_F4, {}}, {Qt::Key_Escape, {}}}, "623", "Command3"},
          {"Command2", {{Qt::Key_F4, {}}, {Qt::Key_Tab, {}}}, "623", "Command3"},
          {"Command2", {{Qt::Key_F4, {}}, {Qt::Key_Backtab, {}}}, "623", "Command1"},
          {"Command3", {{Qt::Key_F4, {}}, {Qt::Key_Up, {}}}, "", "Label_Auswahl2"},
          {"Command1", {{Qt::Key_F4, {}}, {Qt::Key_Home, {}}}, "", "Label_Auswahl1"},
          {"Command1", {{Qt::Key_F4, {}}, {Qt::Key_End, {}}}, "", "Label_Auswahl9"},
          {"Command2", {{Qt::Key_F4, {}}, {Qt::Key_Home, {}}, {Qt::Key_Return, {}}}, "613", "Command2"},
          {"Command3",
           {{Qt::Key_F4, {}}, {Qt::Key_Down, {}}, {Qt::Key_Down, {}}, {Qt::Key_Space, {}}},
           "624",
           "Command3"},
          {"Command1",
           {{Qt::Key_F4, {}}, {Qt::Key_End, {}}, {Qt::Key_Up, {}}, {Qt::Key_Enter, {}}},
           "811",
           "Command1"}}) {
        beginne();
        p().Heizsystem = 6;
        p().Uebergabe = 2;
        p().Energietraeger = 3;
        programm->haupt().alles_berechnen();
        knopf(fall.knopf).setFocus();
        for (const auto& [key, dazu] : fall.tasten)
            taste(key, dazu);
        const std::string wo = std::string(fall.knopf) + " " + std::to_string(fall.tasten.back().first);
        EXPECT_EQ(tafel().isVisible(), *fall.wahl == 0) << wo;
        EXPECT_EQ(wahl(), *fall.wahl == 0 ? "623" : fall.wahl) << wo;
        EXPECT_EQ(fokus(), fall.fokus) << wo;
    }
}

/// Whatever else the user turns to, and whatever exchanges the project.
TEST_F(AuswahltafelTest, SchliesstSobaldEtwasAnderesGeschieht) {
    const auto klick = [this](const char* auf, const char* name) {
        QTest::mouseClick(&such(auf, name), Qt::LeftButton);
    };
    QWidget anderes;
    const std::vector<std::pair<const char*, std::function<void()>>> wege{
        {"a display", [&] { klick("E_Energie", "anz_q_verlust"); }},
        {"the plane",
         [&] {
             QTest::mouseClick(&such("Haupt", "E_Energie"), Qt::LeftButton, {}, {2, 519});
         }},
        {"the edge of the list", [&] { QTest::mouseClick(&tafel(), Qt::LeftButton, {}, QPoint(2, 2)); }},
        {"a chart", [&] { klick("A_Uebersicht", "UeberGrafik"); }},
        {"a month", [&] { klick("A_Uebersicht", "Monatsbutton3"); }},
        {"the menu",
         [&] {
             QTest::mousePress(programm->fenster().menuBar(), Qt::LeftButton, {}, {700, 5});
         }},
        {"the menu by key", [&] { programm->fenster().menuBar()->setFocus(Qt::MenuBarFocusReason); }},
        {"another window",
         [&] {
             anderes.show();
             anderes.activateWindow();
             ASSERT_TRUE(QTest::qWaitForWindowActive(&anderes));
         }},
        {"an output plane", [&] { klicke(such<QAbstractButton>("A_Menue", "Sankey")); }},
        {"the same plane", [&] { menue("mnuWinEnerg").trigger(); }},
        {"another plane", [&] { menue("mnuWinKlima").trigger(); }},
        {"a new project", [&] { menue("mnuFileNeu").trigger(); }},
        {"an opened project",
         [&] { programm->haupt().datei.datei_oeffnen(pfadtext(ordner / "anderes.vel")); }},
    };
    beginne();
    p().Heizsystem = 6;
    p().Datei = pfadtext(ordner / "anderes.vel");
    programm->haupt().datei.projekt_sichern();
    for (const auto& [name, geschieht] : wege) {
        beginne();
        klicke(knopf("Command3"));
        ASSERT_TRUE(tafel().isVisible()) << name;
        geschieht();
        EXPECT_FALSE(programm->haupt().e_energie.Auswahl.offen()) << name;
        EXPECT_FALSE(tafel().isVisible()) << name;
        EXPECT_FALSE(tafel().isAncestorOf(programm->fenster().focusWidget())) << name;
    }
    EXPECT_EQ(wahl(), "611") << "the last way has opened the other project";
}

}  // namespace
}  // namespace velmaris
