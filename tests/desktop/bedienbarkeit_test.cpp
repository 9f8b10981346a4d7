#include "programmprobe.h"

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
    // geometry 8, windows 14, insulation 13, building 13, climate 2, energy 3, months of the overview 12
    EXPECT_EQ(besucht, 65U);
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
