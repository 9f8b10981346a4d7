#include "desktop/platform/qt_text.h"
#include "desktop/platform/stil.h"
#include "tests/desktop/programmprobe.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QMenu>

namespace velmaris {
namespace {

/// What people expect of the windows beside what the program does: keys, the way of the focus, names.
class BedienbarkeitTest : public test::Programmprobe {
  protected:
    /// The widgets of a plane that the tabulator key visits, in its order.
    static std::vector<QWidget*> tabulatorweg(QWidget& ebene) {
        std::vector<QWidget*> weg;
        ebene.setFocus();
        taste(Qt::Key_Tab);
        while (ebene.isAncestorOf(QApplication::focusWidget()) && weg.size() < 100) {
            weg.push_back(QApplication::focusWidget());
            taste(Qt::Key_Tab);
        }
        return weg;
    }

    /// The page that F1 opens where the focus is.
    std::string f1() {
        std::string seite;
        programm->plattform().hilfe_zeigen = [&](const std::filesystem::path&, const std::string& s) {
            seite = s;
        };
        taste(Qt::Key_F1);
        return seite;
    }
};

/// Never back to what lies wholly above; side by side from left to right.
TEST_F(BedienbarkeitTest, TabulatorGehtVonObenNachUnten) {
    starte("d");
    haupt().e_geometrie.Check_Dachgeschoss.setze(1);
    haupt().e_fenster.Option1.setze(1);
    std::size_t besucht = 0;
    fuer_jede_ebene([&](QWidget& ebene) {
        const std::vector<QWidget*> weg = tabulatorweg(ebene);
        besucht += weg.size();
        for (std::size_t i = 1; i < weg.size(); ++i) {
            const QRect eins(weg[i - 1]->mapTo(&ebene, QPoint(0, 0)), weg[i - 1]->size());
            const QRect zwei(weg[i]->mapTo(&ebene, QPoint(0, 0)), weg[i]->size());
            const bool daneben = std::abs(eins.top() - zwei.top()) < 8;
            EXPECT_TRUE(daneben ? zwei.left() > eins.left() : zwei.bottom() > eins.top())
                << utf8(weg[i - 1]->objectName()) << " to " << utf8(weg[i]->objectName());
        }
    });
    // geometry 8, windows 14, insulation 13, building 13, climate 2, energy 3, overview: chart and 12 months
    EXPECT_EQ(besucht, 66U);
}

TEST_F(BedienbarkeitTest, WasDenFokusNimmtHatEinenNamenFuerVorleser) {
    for (const char* sprache : {"d", "e"}) {
        starte(sprache);
        for (QWidget* teil : programm->fenster().findChildren<QWidget*>()) {
            const bool innen = teil->objectName().startsWith("qt_") ||
                               qobject_cast<QAbstractItemView*>(teil) != nullptr ||
                               qobject_cast<QMenu*>(teil) != nullptr;
            if (teil->focusPolicy() == Qt::NoFocus || innen) continue;
            const bool leer = teil->objectName().startsWith("Label_Auswahl");  // filled when the list opens
            const QString name = QAccessible::queryAccessibleInterface(teil)->text(QAccessible::Name);
            EXPECT_TRUE(leer || !name.isEmpty()) << sprache << " " << utf8(teil->objectName());
        }
        const QStringList namen{
            such("Haupt", "E_Daemmung").accessibleName(), such("E_Geometrie", "l_sb").accessibleName(),
            such("E_Daemmung", "kwn_sb").accessibleName(), such("E_Klima", "Image1").accessibleName()};
        EXPECT_EQ(utf8(namen.join('|')), *sprache == 'd'
                                             ? "Dämmung|Länge|U-Werte der Wände Nord:|Klimastationen - Welt"
                                             : "Insulation|length|U-values of the walls north|"
                                               "Climate stations - World");
    }
}

/// The ways to a plane: the button of its bar by mouse or by key, or the menu.
enum class Weg { maus, menue, leertaste, eingabe };

/// A plane, how it is reached, and the control that gets the focus then, the plane itself where it has none.
struct Ebenenfall {
    const char* leiste;
    const char* knopf;
    const char* menue;  ///< "" for output planes
    const char* ebene;
    const char* erstes;
};

constexpr std::array eingabefaelle{
    Ebenenfall{"E_Menue", "Fenster", "mnuWinFens", "E_Fenster", "fn_sb"},
    Ebenenfall{"E_Menue", "Daemmung", "mnuWinDaem", "E_Daemmung", "kwn_sb"},
    Ebenenfall{"E_Menue", "Gebaeude", "mnuWinGeb", "E_Gebaeude", "Troom_sb"},
    Ebenenfall{"E_Menue", "Klima", "mnuWinKlima", "E_Klima", "Option1"},
    Ebenenfall{"E_Menue", "Energie", "mnuWinEnerg", "E_Energie", "Command1"},
    Ebenenfall{"E_Menue", "Geometrie", "mnuWinGeo", "E_Geometrie", "h_sb"},
};
constexpr std::array ausgabefaelle{
    Ebenenfall{"A_Menue", "Klima", "", "A_Klima", "A_Klima"},
    Ebenenfall{"A_Menue", "Heizen", "", "A_Heizen", "A_Heizen"},
    Ebenenfall{"A_Menue", "Kuehlen", "", "A_Kuehlen", "A_Kuehlen"},
    Ebenenfall{"A_Menue", "Sankey", "", "A_Sankey", "A_Sankey"},
    Ebenenfall{"A_Menue", "Uebersicht", "", "A_Uebersicht", "Temperaturen"},
};

class EbenenfokusTest : public BedienbarkeitTest {
  protected:
    void gehe(const Ebenenfall& fall, Weg weg) {
        auto& knopf = such<QAbstractButton>(fall.leiste, fall.knopf);
        if (weg == Weg::maus) klicke(knopf);
        if (weg == Weg::menue) menue(fall.menue).trigger();
        if (weg != Weg::leertaste && weg != Weg::eingabe) return;
        knopf.setFocus(Qt::TabFocusReason);
        taste(weg == Weg::leertaste ? Qt::Key_Space : Qt::Key_Return);
    }

    /// Goes to a plane, and looks which one is seen, where the focus is and where F1 and other keys lead.
    void pruefe(const Ebenenfall& fall, Weg weg, const std::string& davor) {
        const std::string wo = davor + " > " + fall.ebene + " " + std::to_string(static_cast<int>(weg));
        gehe(fall, weg);
        int sichtbare = 0;
        for (const QWidget* teil :
             such("Haupt", fall.ebene)
                 .parentWidget()
                 ->findChildren<QWidget*>(QRegularExpression("^[EA]_(?!Menue)"), Qt::FindDirectChildrenOnly))
            sichtbare += teil->isVisible() ? 1 : 0;
        EXPECT_TRUE(such("Haupt", fall.ebene).isVisible()) << wo;
        EXPECT_EQ(sichtbare, 2) << wo;
        EXPECT_FALSE(such(fall.leiste, fall.knopf).isEnabled()) << "marks the plane on show, " << wo;
        const bool getastet = weg == Weg::leertaste || weg == Weg::eingabe;
        EXPECT_EQ(fokus(), getastet ? fall.leiste : fall.erstes) << wo;
        EXPECT_EQ(f1(), fall.ebene) << wo;
        if (getastet) pruefe_nachbarn(fall, weg == Weg::leertaste ? Qt::Key_Tab : Qt::Key_Left);
    }

    /// A key leads from the button that was used to its neighbour in the bar, or out of the bar.
    void pruefe_nachbarn(const Ebenenfall& fall, Qt::Key key) {
        const QWidget& leiste = such("Haupt", fall.leiste);
        const QImage bild = such(fall.leiste, fall.knopf).grab().toImage();
        EXPECT_EQ(bild.pixelColor(bild.width() / 2, 2), QColor(Qt::white)) << "shows the focus";
        const auto knoepfe = leiste.findChildren<QAbstractButton*>();
        const auto ziel =
            knoepfe.indexOf(&such<QAbstractButton>(fall.leiste, fall.knopf)) + (key == Qt::Key_Tab ? 1 : -1);
        taste(key);
        if (ziel >= 0 && ziel < knoepfe.size()) {
            EXPECT_EQ(fokus(), utf8(knoepfe[ziel]->objectName())) << fall.ebene;
        } else {
            EXPECT_FALSE(leiste.isAncestorOf(QApplication::focusWidget())) << fall.ebene;
        }
    }
};

/// Each input plane and an output plane, one after the other in both orders, by every way.
TEST_F(EbenenfokusTest, LiegtInDerGewaehltenEbeneUndBleibtBeiTastenInDerLeiste) {
    starte("d");
    EXPECT_EQ(fokus(), "h_sb");
    EXPECT_EQ(f1(), "E_Geometrie");
    for (std::size_t i = 0; i < eingabefaelle.size(); ++i) {
        const Ebenenfall& eingabe = eingabefaelle.at(i);
        const Ebenenfall& ausgabe = ausgabefaelle.at(i % ausgabefaelle.size());
        for (const Weg weg : {Weg::maus, Weg::leertaste, Weg::eingabe}) {
            haupt().e_menue.klicke(i == 0 ? "Klima" : "Fenster");
            haupt().a_menue.klicke(i % ausgabefaelle.size() == 0 ? "Sankey" : "Klima");
            pruefe(eingabe, weg, ausgabe.ebene);
            pruefe(ausgabe, weg, eingabe.ebene);
            pruefe(eingabe, Weg::menue, ausgabe.ebene);
        }
    }
}

/// Also where the bar or a chart is clicked.
TEST_F(EbenenfokusTest, MerktSichDieEbeneInGebrauch) {
    starte("e");
    for (const auto& [leiste, knopf, ebene] :
         {std::tuple{"A_Menue", "Uebersicht", "A_Uebersicht"}, {"E_Menue", "Geometrie", "E_Geometrie"}}) {
        const QWidget& gewaehlter = such(leiste, knopf);
        QTest::mouseClick(programm->fenster().windowHandle(), Qt::LeftButton, {},
                          gewaehlter.mapTo(&programm->fenster(), gewaehlter.rect().center()));
        EXPECT_EQ(f1(), ebene) << "a click on the button of the plane on show";
    }
    such("A_Uebersicht", "Monatsbutton4").setFocus(Qt::TabFocusReason);
    such("E_Menue", "Energie").setFocus(Qt::TabFocusReason);
    EXPECT_EQ(f1(), "A_Uebersicht") << "the plane that had the focus last";
    QTest::mouseClick(&such("A_Uebersicht", "UeberGrafik"), Qt::LeftButton);
    EXPECT_EQ(fokus(), "A_Uebersicht") << "a click on a chart is a click on its plane";
}

/// Enter presses the button with the focus, and no other.
TEST_F(EbenenfokusTest, EingabetasteDruecktDenKnopfMitDemFokus) {
    starte("d");
    haupt().a_report.report_zeigen();
    ASSERT_TRUE(aktiv(such("Haupt", "A_Report")));
    taste(Qt::Key_Return);
    EXPECT_TRUE(haupt().a_report.fenster.sichtbar()) << "in the text it presses nothing";
    such("A_Report", "Command_Schliessen").setFocus();
    taste(Qt::Key_Enter);
    EXPECT_FALSE(haupt().a_report.fenster.sichtbar());
}

TEST_F(EbenenfokusTest, TemperaturdiagrammOeffnetDenZoomMitDerTaste) {
    starte("d");
    QWidget& diagramm = such("A_Uebersicht", "Temperaturen");
    QWidget& zoom = such("Haupt", "A_Zoom");
    EXPECT_EQ(diagramm.accessibleName().toStdString(), "Temperaturdiagramm vergrößern");
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        klicke("A_Menue", "Klima");
        klicke("A_Menue", "Uebersicht");
        EXPECT_TRUE(diagramm.hasFocus());
        const QImage bild = diagramm.grab().toImage();
        for (const QPoint ecke : {bild.rect().topLeft(), bild.rect().bottomRight(), QPoint(1, 1)})
            EXPECT_EQ(bild.pixel(ecke), stilfarben::betonung) << "shows the focus";
        EXPECT_NE(bild.pixel(2, 2), stilfarben::betonung);
        taste(key);
        ASSERT_TRUE(aktiv(zoom));
        such("A_Zoom", "Monatsbutton3").setFocus();
        taste(Qt::Key_Return);
        EXPECT_EQ(p().Monat_Uebersicht, 3);
        zoom.close();
        ASSERT_TRUE(aktiv(programm->fenster()));
        EXPECT_TRUE(diagramm.hasFocus());
    }
}

/// Keys of the menu, pressed where the focus happens to be.
TEST_F(BedienbarkeitTest, TastenRufenDieEintraegeDesMenues) {
    starte("d");
    const std::vector<std::pair<const char*, QKeyCombination>> tasten{
        {"mnuFileNeu", Qt::CTRL | Qt::Key_N},       {"mnuFileOeffnen", Qt::CTRL | Qt::Key_O},
        {"mnuFileSpeichern", Qt::CTRL | Qt::Key_S}, {"mnuFileunter", Qt::CTRL | Qt::SHIFT | Qt::Key_S},
        {"mnuFileDrucken", Qt::CTRL | Qt::Key_P},   {"mnuFileExit", Qt::CTRL | Qt::Key_Q}};
    std::string gerufen;
    for (const auto& [eintrag, keys] : tasten)
        haupt().menue.punkt(eintrag).gedrueckt = [&gerufen, name = eintrag] { gerufen += name; };
    for (const auto& [eintrag, keys] : tasten) {
        gerufen.clear();
        such("E_Geometrie", "l_sb").setFocus();
        taste(keys.key(), keys.keyboardModifiers());
        EXPECT_EQ(gerufen, eintrag);
    }
}

}  // namespace
}  // namespace velmaris
