#include "desktop/platform/qt_text.h"
#include "desktop/platform/stil.h"
#include "tests/desktop/programmprobe.h"

#include <QAccessible>
#include <QRadioButton>

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

/// Never back to what lies wholly above, side by side from left to right; and each has a name to be read out.
TEST_F(BedienbarkeitTest, TabulatorGehtVonObenNachUnten) {
    starte("d");
    haupt().e_geometrie.Check_Dachgeschoss.setze(1);
    haupt().e_fenster.Option1.setze(1);
    std::size_t besucht = 0;
    fuer_jede_ebene([&](QWidget& ebene) {
        const std::vector<QWidget*> weg = tabulatorweg(ebene);
        besucht += weg.size();
        for (std::size_t i = 0; i < weg.size(); ++i) {
            const QWidget &davor = *weg[i == 0 ? 0 : i - 1], &teil = *weg[i];
            const QString name = QAccessible::queryAccessibleInterface(weg[i])->text(QAccessible::Name);
            EXPECT_FALSE(name.isEmpty()) << utf8(teil.objectName());
            if (i == 0) continue;
            const QRect eins(davor.mapTo(&ebene, QPoint(0, 0)), davor.size());
            const QRect zwei(teil.mapTo(&ebene, QPoint(0, 0)), teil.size());
            const bool daneben = std::abs(eins.top() - zwei.top()) < 8;
            EXPECT_TRUE(daneben ? zwei.left() > eins.left() : zwei.bottom() > eins.top())
                << utf8(davor.objectName()) << " to " << utf8(teil.objectName());
        }
    });
    // geometry 8, windows 14, insulation 13, building 13, climate 3, energy 3, overview: chart and 12 months,
    // 28 other charts with values and 6 frames of figures
    EXPECT_EQ(besucht, 101U);
    const QStringList namen{
        such("Haupt", "E_Daemmung").accessibleName(), such("E_Geometrie", "l_sb").accessibleName(),
        such("E_Daemmung", "kwn_sb").accessibleName(), such("E_Klima", "Image1").accessibleName()};
    EXPECT_EQ(utf8(namen.join('|')), "Dämmung|Länge|U-Werte der Wände Nord:|Klimastationen - Welt");
}

/// By mouse and menu the focus goes to the plane, by keys it stays in the bar; F1 leads to the plane.
TEST_F(BedienbarkeitTest, FokusLiegtInDerGewaehltenEbeneUndBleibtBeiTastenInDerLeiste) {
    starte("d");
    EXPECT_EQ(fokus(), "h_sb");
    for (const auto& [ebene, erstes, eintrag] : {std::tuple{"E_Fenster", "fn_sb", "mnuWinFens"},
                                                 {"E_Daemmung", "kwn_sb", "mnuWinDaem"},
                                                 {"E_Gebaeude", "Troom_sb", "mnuWinGeb"},
                                                 {"E_Klima", "Option2", "mnuWinKlima"},
                                                 {"E_Energie", "Command1", "mnuWinEnerg"},
                                                 {"E_Geometrie", "h_sb", "mnuWinGeo"},
                                                 {"A_Klima", "Frame1", ""},
                                                 {"A_Heizen", "Heizbilanz", ""},
                                                 {"A_Uebersicht", "Temperaturen", ""}}) {
        const std::string leiste = *ebene == 'E' ? "E_Menue" : "A_Menue";
        auto& knopf = such<QAbstractButton>(leiste.c_str(), ebene + 2);
        const auto gehe = [&, name = ebene](const std::function<void()>& weg, const std::string& soll) {
            klicke(leiste.c_str(), *name == 'A' ? "Sankey" : name[2] == 'K' ? "Fenster" : "Klima");
            weg();
            EXPECT_TRUE(such("Haupt", name).isVisible()) << name;
            EXPECT_FALSE(knopf.isEnabled()) << "marks the plane on show, " << name;
            EXPECT_EQ(fokus(), soll) << name;
            EXPECT_EQ(f1(), name);
        };
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return})
            gehe([&] { knopf.setFocus(Qt::TabFocusReason), taste(key); }, leiste);
        EXPECT_EQ(knopf.grab().toImage().pixelColor(knopf.width() / 2, 2), QColor(Qt::white)) << "focus";
        taste(Qt::Key_Tab);
        EXPECT_NE(fokus(), leiste) << "to the next button or plane";
        gehe([&] { klicke(knopf); }, erstes);
        if (*eintrag != 0) gehe([&, name = eintrag] { menue(name).trigger(); }, erstes);
    }
    such("E_Menue", "Energie").setFocus(Qt::TabFocusReason);
    EXPECT_EQ(f1(), "A_Uebersicht") << "the plane that had the focus last";
    QTest::mouseClick(&such("A_Uebersicht", "UeberGrafik"), Qt::LeftButton);
    EXPECT_EQ(fokus(), "A_Uebersicht") << "a click on a chart is a click on its plane";
}

/// Tab, the bar and the menu come to the option that is set, not to the first one.
TEST_F(BedienbarkeitTest, DerFokusKommtZurGewaehltenOption) {
    starte("d");
    haupt().e_klima.Option.setze(3);
    haupt().e_daemmung.Waermebruecken_opt.setze(1);
    menue("mnuWinKlima").trigger();
    EXPECT_EQ(fokus(), "Option3");
    taste(Qt::Key_Left);
    EXPECT_EQ(p().Klimaauswahl, 2);
    menue("mnuWinGeo").trigger();
    menue("mnuWinKlima").trigger();
    EXPECT_EQ(fokus(), "Option2");
    klicke("E_Menue", "Daemmung");
    std::string optionen;
    for (const QWidget* teil : tabulatorweg(such("Haupt", "E_Daemmung")))
        if (qobject_cast<const QRadioButton*>(teil) != nullptr) optionen += utf8(teil->objectName());
    EXPECT_EQ(optionen, "Waermebruecken_opt1");
}

/// The region or station that the keys lead to is marked, told and taken by Enter.
TEST_F(BedienbarkeitTest, KartenLassenSichMitTastenBedienen) {
    starte("d");
    haupt().e_klima.Option.setze(1);
    klicke("E_Menue", "Klima");
    const auto karte = [&](const char* ebene, const char* name) -> QWidget& {
        QWidget& bild = such(ebene, name);
        EXPECT_TRUE(aktiv(*bild.window()));
        bild.setFocus(Qt::TabFocusReason);
        EXPECT_TRUE(bild.hasFocus());
        return bild;
    };
    QWidget& land = karte("E_Klima", "Picture1");
    const QImage vorher = land.grab().toImage();
    taste(Qt::Key_Down);
    EXPECT_NE(land.grab().toImage(), vorher);
    EXPECT_TRUE(land.accessibleDescription().contains("6: N")) << utf8(land.accessibleDescription());
    EXPECT_EQ(haupt().e_klima.Klimaregionwahl.index(), 3) << "region 6 is pointed at, 4 is chosen";
    const auto& liste = such<QComboBox>("E_Klima", "Klimaregionwahl2");
    for (const auto& [option, bild] : {std::pair{2, "Picture2"}, {3, "Picture3"}}) {
        haupt().e_klima.Option.setze(option);
        karte("E_Klima", bild);
        for (const auto& [taste_dahin, index] : {std::pair{Qt::Key_Home, 0}, {Qt::Key_PageDown, 1}}) {
            taste(taste_dahin);
            taste(Qt::Key_Return);
            EXPECT_EQ(liste.currentIndex(), index) << bild;
        }
    }
    klicke("E_Klima", "Image1");
    karte("E_Zoom_Klima", "Picture1");
    taste(Qt::Key_Home);
    taste(Qt::Key_Space);
    EXPECT_EQ(such<QComboBox>("E_Zoom_Klima", "Klimaregionwahl2").currentIndex(), 0);
    EXPECT_EQ(liste.currentIndex(), 1) << "not before the button takes it over";
}

TEST_F(BedienbarkeitTest, TemperaturdiagrammOeffnetDenZoomMitDerTaste) {
    starte("d");
    QWidget& diagramm = such("A_Uebersicht", "Temperaturen");
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        diagramm.setFocus();
        EXPECT_EQ(diagramm.grab().toImage().pixel(1, 1), stilfarben::betonung) << "shows the focus";
        taste(key);
        ASSERT_TRUE(aktiv(such("Haupt", "A_Zoom")));
        such("A_Zoom", "Monatsbutton3").setFocus();
        taste(Qt::Key_Return);
        EXPECT_EQ(p().Monat_Uebersicht, 3) << "Enter presses the button with the focus";
        such("Haupt", "A_Zoom").close();
        ASSERT_TRUE(aktiv(programm->fenster()));
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
