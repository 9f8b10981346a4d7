#include "tests/desktop/programmprobe.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QMenu>
#include <QTest>

namespace velmaris {
namespace {

/// What people expect of the windows beside what the program does: keys, the way of the focus, names.
class BedienbarkeitTest : public test::Programmprobe {
  protected:
    /// The widgets of a plane that the tabulator key visits, in its order.
    static std::vector<QWidget*> tabulatorweg(QWidget& ebene) {
        std::vector<QWidget*> weg;
        ebene.setFocus();
        QTest::keyClick(&ebene, Qt::Key_Tab);
        while (ebene.isAncestorOf(QApplication::focusWidget()) && weg.size() < 100) {
            weg.push_back(QApplication::focusWidget());
            QTest::keyClick(weg.back(), Qt::Key_Tab);
        }
        return weg;
    }
};

/// Never back to what lies wholly above; side by side from left to right.
TEST_F(BedienbarkeitTest, TabulatorGehtVonObenNachUnten) {
    starte("d");
    programm->haupt().e_geometrie.Check_Dachgeschoss.setze(1);
    programm->haupt().e_fenster.Option1.setze(1);
    std::size_t besucht = 0;
    fuer_jede_ebene([&](QWidget& ebene) {
        const std::vector<QWidget*> weg = tabulatorweg(ebene);
        besucht += weg.size();
        for (std::size_t i = 1; i < weg.size(); ++i) {
            const QRect eins(weg[i - 1]->mapTo(&ebene, QPoint(0, 0)), weg[i - 1]->size());
            const QRect zwei(weg[i]->mapTo(&ebene, QPoint(0, 0)), weg[i]->size());
            const bool daneben = std::abs(eins.top() - zwei.top()) < 8;
            EXPECT_TRUE(daneben ? zwei.left() > eins.left() : zwei.bottom() > eins.top())
                << weg[i - 1]->objectName().toStdString() << " to " << weg[i]->objectName().toStdString();
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
            const QAccessibleInterface* vorleser = QAccessible::queryAccessibleInterface(teil);
            ASSERT_NE(vorleser, nullptr);
            const bool leer = teil->objectName().startsWith("Label_Auswahl");  // filled when the list opens
            EXPECT_TRUE(leer || !vorleser->text(QAccessible::Name).isEmpty())
                << sprache << " " << teil->metaObject()->className() << " "
                << teil->objectName().toStdString();
        }
        EXPECT_EQ(such("Haupt", "E_Daemmung").accessibleName(),
                  *sprache == 'd' ? QString::fromUtf8("Dämmung") : QStringLiteral("Insulation"));
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
    static std::string fokus() {
        const QWidget* ort = QApplication::focusWidget();
        return ort == nullptr ? "" : ort->objectName().toStdString();
    }
    /// Waits until a window has the keys.
    static bool aktiv(const QWidget& fenster) {
        return QTest::qWaitFor([&] { return QApplication::activeWindow() == &fenster; });
    }
    static void taste(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    /// The page that F1 opens where the focus is.
    std::string f1() {
        std::string seite;
        programm->plattform().hilfe_zeigen = [&](const std::filesystem::path&, const std::string& s) {
            seite = s;
        };
        taste(Qt::Key_F1);
        return seite;
    }

    void gehe(const Ebenenfall& fall, Weg weg) {
        auto& knopf = such<QAbstractButton>(fall.leiste, fall.knopf);
        if (weg == Weg::maus) klicke(knopf);
        if (weg == Weg::menue) menue(fall.menue).trigger();
        if (weg != Weg::leertaste && weg != Weg::eingabe) return;
        knopf.setFocus(Qt::TabFocusReason);
        taste(weg == Weg::leertaste ? Qt::Key_Space : Qt::Key_Return);
    }

    /// Goes to a plane, and looks where the focus is and where F1 and Tab lead.
    void pruefe(const Ebenenfall& fall, Weg weg, const std::string& davor) {
        const std::string wo = davor + " > " + fall.ebene + " " + std::to_string(static_cast<int>(weg));
        gehe(fall, weg);
        ASSERT_TRUE(such("Haupt", fall.ebene).isVisible()) << wo;
        const bool getastet = weg == Weg::leertaste || weg == Weg::eingabe;
        EXPECT_EQ(fokus(), getastet ? fall.leiste : fall.erstes) << wo;
        EXPECT_EQ(f1(), fall.ebene) << wo;
        if (!getastet) return;
        weg == Weg::leertaste ? pruefe_nachbarn(fall, Qt::Key_Tab, 1)
                              : pruefe_nachbarn(fall, Qt::Key_Left, -1);
    }

    /// A key leads from the button that was used to its neighbour in the bar, or out of the bar.
    void pruefe_nachbarn(const Ebenenfall& fall, Qt::Key key, int schritt) {
        const QWidget& leiste = such("Haupt", fall.leiste);
        const auto knoepfe = leiste.findChildren<QAbstractButton*>();
        const auto ziel = knoepfe.indexOf(&such<QAbstractButton>(fall.leiste, fall.knopf)) + schritt;
        taste(key);
        if (ziel >= 0 && ziel < knoepfe.size()) {
            EXPECT_EQ(fokus(), knoepfe[ziel]->objectName().toStdString()) << fall.ebene;
        } else {
            EXPECT_FALSE(leiste.isAncestorOf(QApplication::focusWidget())) << fall.ebene;
        }
    }
};

/// Each input plane with each output plane, one after the other in both orders, by every way.
TEST_F(EbenenfokusTest, LiegtInDerGewaehltenEbeneUndBleibtBeiTastenInDerLeiste) {
    starte("d");
    EXPECT_EQ(fokus(), "h_sb");
    EXPECT_EQ(f1(), "E_Geometrie");
    for (const Ebenenfall& eingabe : eingabefaelle) {
        for (const Ebenenfall& ausgabe : ausgabefaelle) {
            for (const Weg hin : {Weg::maus, Weg::menue, Weg::leertaste, Weg::eingabe}) {
                for (const Weg her : {Weg::maus, Weg::leertaste, Weg::eingabe}) {
                    programm->haupt().e_menue.klicke(&eingabe == &eingabefaelle[0] ? "Klima" : "Fenster");
                    programm->haupt().a_menue.klicke(&ausgabe == &ausgabefaelle[0] ? "Sankey" : "Klima");
                    pruefe(eingabe, hin, ausgabe.ebene);
                    pruefe(ausgabe, her, eingabe.ebene);
                    pruefe(eingabe, Weg::menue, ausgabe.ebene);
                }
            }
        }
    }
}

/// New leaves the planes and the focus, opening goes back to the first plane and its first control.
TEST_F(EbenenfokusTest, BleibtBeiNeuUndGehtBeimOeffnenAufDieErsteEbene) {
    starte("e");
    p().Datei = (ordner / "haus.vel").string();
    programm->haupt().datei.projekt_sichern();
    for (const Ebenenfall& fall : eingabefaelle) {
        for (const Weg weg : {Weg::maus, Weg::leertaste}) {
            programm->haupt().e_menue.klicke(&fall == &eingabefaelle[0] ? "Klima" : "Fenster");
            gehe(fall, weg);
            const std::string davor = fokus();
            menue("mnuFileNeu").trigger();
            EXPECT_EQ(fokus(), davor) << fall.ebene;
            EXPECT_EQ(f1(), fall.ebene);
            programm->haupt().datei.datei_oeffnen((ordner / "haus.vel").string());
            EXPECT_EQ(fokus(), "h_sb") << fall.ebene;
            EXPECT_EQ(f1(), "E_Geometrie");
        }
    }
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
}

/// Enter presses the button with the focus, and no other.
TEST_F(EbenenfokusTest, EingabetasteDruecktDenKnopfMitDemFokus) {
    starte("d");
    Haupt& haupt = programm->haupt();
    haupt.a_report.report_zeigen();
    ASSERT_TRUE(aktiv(such("Haupt", "A_Report")));
    EXPECT_EQ(fokus(), "Report1");
    taste(Qt::Key_Return);
    EXPECT_TRUE(haupt.a_report.fenster.sichtbar()) << "in the text it presses nothing";
    such("A_Report", "Seite4").setFocus();
    taste(Qt::Key_Return);
    EXPECT_TRUE(haupt.a_report.report_text.find("Wärmebilanz") != std::string::npos);
    such("A_Report", "Command_Schliessen").setFocus();
    taste(Qt::Key_Enter);
    EXPECT_FALSE(haupt.a_report.fenster.sichtbar());

    haupt.e_menue.klicke("Klima");
    haupt.e_klima.Option.setze(nummer(Klimabereich::welt));
    for (const auto& [ort, key, station] : {std::tuple{"Klimaregionwahl2", Qt::Key_Return, 1},
                                            {"Command2", Qt::Key_Return, 0},
                                            {"Command2", Qt::Key_Enter, 0},
                                            {"Command1", Qt::Key_Enter, 1}}) {
        haupt.e_klima.Klimaregionwahl2.setze(0);
        ASSERT_TRUE(aktiv(programm->fenster()));
        such("E_Klima", "Image1").setFocus();
        taste(key);
        ASSERT_TRUE(aktiv(such("Haupt", "E_Zoom_Klima")));
        haupt.e_klima.zoom.Klimaregionwahl2.setze(1);
        such("E_Zoom_Klima", ort).setFocus();
        taste(key);
        EXPECT_FALSE(such("Haupt", "E_Zoom_Klima").isVisible()) << ort;
        EXPECT_EQ(haupt.e_klima.Klimaregionwahl2.index(), station) << ort;
    }
}

TEST_F(EbenenfokusTest, TemperaturdiagrammOeffnetDenZoomMitDerTaste) {
    for (const auto& [sprache, name] :
         {std::pair{"d", "Temperaturdiagramm vergrößern"}, {"e", "Enlarge the temperature chart"}}) {
        starte(sprache);
        QWidget& diagramm = such("A_Uebersicht", "Temperaturen");
        QWidget& zoom = such("Haupt", "A_Zoom");
        const QImage ohne = diagramm.grab().toImage();
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            klicke(such<QAbstractButton>("A_Menue", "Klima"));
            klicke(such<QAbstractButton>("A_Menue", "Uebersicht"));
            EXPECT_TRUE(diagramm.hasFocus());
            EXPECT_EQ(diagramm.accessibleName().toStdString(), name);
            EXPECT_TRUE(diagramm.grab().toImage() != ohne) << "shows the focus";
            taste(key);
            ASSERT_TRUE(aktiv(zoom));
            such("A_Zoom", "Monatsbutton3").setFocus();
            taste(Qt::Key_Return);
            EXPECT_EQ(p().Monat_Uebersicht, 3);
            such("A_Zoom", "Command_Schliessen").setFocus();
            taste(key);
            EXPECT_FALSE(zoom.isVisible());
            ASSERT_TRUE(aktiv(programm->fenster()));
            EXPECT_TRUE(diagramm.hasFocus());
        }
    }
}

/// Keys of the menu, pressed where the focus happens to be.
TEST_F(BedienbarkeitTest, TastenRufenDieEintraegeDesMenues) {
    struct Fall {
        Qt::Key taste;
        Qt::KeyboardModifiers dazu;
        const char* eintrag;
    };
    starte("d");
    auto& laenge = such<Scrollleiste>("E_Geometrie", "l_sb");
    for (const Fall& fall : {Fall{Qt::Key_N, Qt::ControlModifier, "mnuFileNeu"},
                             {Qt::Key_O, Qt::ControlModifier, "mnuFileOeffnen"},
                             {Qt::Key_S, Qt::ControlModifier, "mnuFileSpeichern"},
                             {Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier, "mnuFileunter"},
                             {Qt::Key_P, Qt::ControlModifier, "mnuFileDrucken"},
                             {Qt::Key_Q, Qt::ControlModifier, "mnuFileExit"}}) {
        std::string gerufen;
        for (const char* eintrag : {"mnuFileNeu", "mnuFileOeffnen", "mnuFileSpeichern", "mnuFileunter",
                                    "mnuFileDrucken", "mnuFileExit"})
            programm->haupt().menue.punkt(eintrag).gedrueckt = [&gerufen, eintrag] { gerufen += eintrag; };
        laenge.setFocus();
        QTest::keyClick(&laenge, fall.taste, fall.dazu);
        EXPECT_EQ(gerufen, fall.eintrag);
    }
}

}  // namespace
}  // namespace velmaris
